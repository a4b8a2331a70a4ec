#pragma once

#include <string>

/// This program defines both back ends itself, in front of the library's, so that it sees what the dispatchers pass on.

/// What a recorded form answers.
constexpr int software_reached = 1001;
constexpr int hardware_reached = 1002;

/// The forms that were reached, one per line with their arguments after `thiz`: "Line 1 2 3 4_SW".
extern std::string reached;

/// What zuvo_dtk_get_handle answers, and how often it was asked.
extern unsigned int platform_handle;
extern int handle_queries;
