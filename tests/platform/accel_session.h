/// A DirectFB of its own for each run: in a child process, with or without the graphics driver.
#ifndef TESTS_PLATFORM_ACCEL_SESSION_H
#define TESTS_PLATFORM_ACCEL_SESSION_H

#include <directfb.h>

#include <functional>
#include <string>
#include <vector>

namespace accel {

enum class Driver { off, on };

/// What a run has to say, line by line.
using Lines = std::vector<std::string>;

/// Runs @p program in a child process and answers what it said. The last line is "finished" unless the child died.
Lines run_apart(const std::function<void(Lines&)>& program);

/// The same with a DirectFB, which is not released. @p words are added to DirectFB's options.
Lines run_with_directfb(Driver driver, const std::function<void(IDirectFB&, Lines&)>& program,
                        const std::string& words = "");

/// Starts DirectFB in this process.
IDirectFB* start_directfb(Driver driver, const std::string& words = "");

/// Fails the test when a call did not succeed.
void must(DFBResult result);

} // namespace accel

#endif
