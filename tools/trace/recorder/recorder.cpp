#include "recorder.h"

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include <dlfcn.h>
#include <pthread.h>
#include <sched.h>

namespace recorder {

thread_local int Call::depth_ = 0;

namespace {

std::atomic_flag is_taken = ATOMIC_FLAG_INIT;

void leave_to_parent()
{
    state().file.abandon();
    is_taken.clear();
}

long number_of(const char* variable)
{
    const char* text = std::getenv(variable);
    return text ? std::atol(text) : -1;
}

State* start()
{
    // Never destroyed: other libraries may use the toolkit to the very end.
    auto* state = new State;
    state->frames_left = number_of("DTK_TRACE_FRAMES");
    const char* textures = std::getenv("DTK_TRACE_TEXTURES");
    state->takes_drawn_textures = textures && !std::strcmp(textures, "drawn");
    const char* path = std::getenv("DTK_TRACE_FILE");
    const char* problem = path ? state->file.open(path) : "no file is named";
    if (problem)
        std::fprintf(stderr, "dtk_trace: cannot record into %s: %s\n", path ? path : "nothing", problem);
    pthread_atfork(nullptr, nullptr, leave_to_parent);
    return state;
}

/// Set when the first call is made, so that a shell that starts the program leaves the trace alone.
State* the_state = nullptr;

__attribute__((destructor)) void finish()
{
    if (!the_state)
        return;
    const Turn turn;
    the_state->file.close();
}

/// A program that opens the library by itself has it where only the library's own name leads.
void* look_up(const char* name)
{
    if (void* function = dlsym(RTLD_NEXT, name))
        return function;
    void* library = dlopen("libdtkhddvd.so.1", RTLD_LAZY | RTLD_NOLOAD);
    void* function = library ? dlsym(library, name) : nullptr;
    if (function)
        return function;
    std::fprintf(stderr, "dtk_trace: the toolkit has no %s\n", name);
    std::abort();
}

} // namespace

Turn::Turn()
{
    while (is_taken.test_and_set(std::memory_order_acquire))
        sched_yield();
}

Turn::~Turn()
{
    is_taken.clear(std::memory_order_release);
}

State& state()
{
    static State* const started = the_state = start();
    return *started;
}

void count_frame()
{
    State& all = state();
    if (all.frames_left > 0 && --all.frames_left == 0)
        all.file.close();
}

void* next_function(std::uint8_t code)
{
    static std::atomic<void*> known[256];
    if (void* function = known[code].load(std::memory_order_relaxed))
        return function;
    const std::string name = trace::functions[code >> 2].name + std::string(suffix_of(trace::form_of(code)));
    void* function = look_up(name.c_str());
    known[code].store(function, std::memory_order_relaxed);
    return function;
}

void record_result(std::uint32_t call, DFBResult result)
{
    const Turn turn;
    State& all = state();
    all.file.append(trace::most_call, trace::code_of(Number::result, Form::plain), [&](Encoder& encoder) {
        encoder.natural(all.call_count - call + 1);
        encoder.word(static_cast<std::uint32_t>(result));
    });
}

void put_shape(Encoder& encoder, const DTKHDDVDPenShape* shape)
{
    encoder.byte(shape != nullptr);
    if (!shape)
        return;
    for (const int number : {shape->x0, shape->y0, shape->x1, shape->y1, shape->x2, shape->y2, shape->x3, shape->y3})
        encoder.integer(bits(number));
}

} // namespace recorder
