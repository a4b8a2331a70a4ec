#pragma once

#include "engine/span.h"

#include <functional>
#include <string>
#include <vector>

struct _cairo;

/// Which pixels of a small picture are covered, row by row.
struct Coverage : zuvo::RowSink {
    explicit Coverage(zuvo::Extent size);

    /// How often a pixel was covered.
    unsigned& at(int x, int y) { return counts[static_cast<std::size_t>(y * extent.width + x)]; }
    unsigned at(int x, int y) const { return counts[static_cast<std::size_t>(y * extent.width + x)]; }

    /// The picture in rows of characters: '.' not covered, '#' once, '2' more often.
    std::string text() const;

    zuvo::Extent extent;
    std::vector<unsigned> counts;
    bool is_well_formed;    ///< All spans so far were inside, in order and apart.
};

/// What cairo covers with the path that @p trace makes, filled without antialiasing.
Coverage cairo_coverage(zuvo::Extent extent, const std::function<void(struct _cairo*)>& trace);
