#pragma once

#include <functional>

#include <dlfcn.h>
#include <zuvo.h>

/// A platform with one fault, which the environment variable ZUVO_FAULT names: functions stand before the platform's
/// own, pass calls on to them, and do one thing wrong. Each fault is one that a board's engine may have.
namespace faults {

/// Whether this is the fault.
bool has(const char* fault);

/// The platform's own function of a name.
template <typename Function>
Function* platform(const char* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

#define PLATFORM(function) static const auto next = faults::platform<decltype(function)>(#function)

/// What the platform was told last.
struct State {
    unsigned int engine, output;
    u32 fill_color;
    zuvo_dtk_pen pen;
    bool has_pattern;
};

extern State state;

/// Whether a call ends at once, with a result that is not the platform's.
bool is_spoiled(unsigned int dtk, int& result);

/// Passes a drawing call on: now or, with that fault, at the next call.
int draw(unsigned int dtk, const std::function<int()>& call);

/// Draws what is late.
void catch_up();

} // namespace faults
