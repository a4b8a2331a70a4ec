#ifndef TOOLS_ENGINE_SWITCH_H
#define TOOLS_ENGINE_SWITCH_H

namespace tools {

/// Shows the platform's drawing engine to the toolkit, or hides it. Pens answer in the manner of the platform, so the
/// engine has to be hidden while a software toolkit draws.
void show_engine(bool is_visible);

} // namespace tools

#endif
