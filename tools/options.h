#ifndef TOOLS_OPTIONS_H
#define TOOLS_OPTIONS_H

#include <functional>
#include <string>
#include <vector>

#include <getopt.h>

namespace tools {

/// Takes the words for DirectFB and the platform out of a command line: they go to @p words.
std::vector<char*> other_arguments(int argc, char** argv, std::vector<std::string>& words);

/// Hands each option of @p arguments, the first of which is the program's name, to @p apply as its letter and its
/// value.
///
/// @throws std::invalid_argument for an unknown option, one without its value, and anything that is no option.
void read_options(std::vector<char*> arguments, const option* known,
                  const std::function<void(int letter, const char* value)>& apply);

/// Takes the path of a file or a folder, which may be anything but empty.
///
/// @throws std::invalid_argument "<name> takes a path, not ''".
const char* parse_path(const char* name, const char* text);

/// Reads a number from @p smallest to 1000000000, all of @p text.
///
/// @throws std::invalid_argument "<name> takes <wanted>, not '<text>'".
double parse_number(const char* name, const char* text, double smallest, const char* wanted);

} // namespace tools

#endif
