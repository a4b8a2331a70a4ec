#pragma once

#include "family.h"
#include "speed.h"

#include <iosfwd>

namespace conformance {

/// What was found about one family.
struct Result {
    const Family* family;
    Verdict verdict;

    const char* status() const;
};

/// What was found about a platform.
struct Report {
    std::string device;             ///< DirectFB's graphics device.
    std::vector<Result> results;    ///< In the order of families().
    std::vector<Speed> speeds;

    /// The highest level below which nothing fails.
    Level level() const;

    /// The first family that fails, NULL when none does.
    const Family* first_failure() const;
};

/// A line for each family, with the first of what it lacks, and what it comes to.
void write_text(std::ostream& stream, const Report& report);

/// The same for programs.
void write_json(std::ostream& stream, const Report& report);

/// A page that needs no other file, with pictures of what differs.
void write_html(std::ostream& stream, const Report& report);

} // namespace conformance
