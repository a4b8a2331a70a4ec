#ifndef TOOLS_TRACE_RECORDER_RECORDER_H
#define TOOLS_TRACE_RECORDER_RECORDER_H

#include <unordered_map>
#include <utility>

#include <dtkhddvd.h>

#include "../functions.h"
#include "trace_file.h"

/// What is put before a program's other libraries by dtk_trace. It has the names of the toolkit's exported functions; each
/// of them writes its call into the trace and passes it on. The toolkit finds its functions by name, too, so that the slots
/// of its records lead here as well.
namespace recorder {

using trace::Encoder;
using trace::Form;
using trace::Number;

/// The numbers that a trace has for the objects of one kind.
class Names {
public:
    /// The number of an object, 0 for NULL and for one that was never named.
    std::uint32_t of(const void* object)
    {
        if (object == last_object_)
            return last_number_;
        const auto found = numbers_.find(object);
        if (found == numbers_.end())
            return 0;
        last_object_ = object;
        return last_number_ = found->second;
    }

    /// A number for an object that is about to be made.
    std::uint32_t next() { return ++count_; }

    void name(const void* object, std::uint32_t number)
    {
        numbers_[object] = last_number_ = number;
        last_object_ = object;
    }

private:
    std::unordered_map<const void*, std::uint32_t> numbers_;
    const void* last_object_ = nullptr;
    std::uint32_t last_number_ = 0, count_ = 0;
};

/// Held while the trace or the names are used. Toolkits take turns anyway, so nobody waits here but by accident.
class Turn {
public:
    Turn();
    Turn(const Turn&) = delete;
    Turn& operator=(const Turn&) = delete;
    ~Turn();
};

/// To be used in a turn alone.
struct State {
    TraceFile file;
    Names toolkits, pens, surfaces;
    std::uint32_t call_count = 0;
    long frames_left = -1;          ///< Negative: as many as there are.
    bool takes_drawn_textures = false;
};

State& state();

/// Counts the frames that were asked for, and ends the trace after the last one.
void count_frame();

/// The function that a call is passed on to.
void* next_function(std::uint8_t code);

/// Whether this thread is inside a function of the toolkit already: what the toolkit calls by itself is no call of the
/// program's.
class Call {
public:
    Call() : is_outermost_(depth_++ == 0) {}
    Call(const Call&) = delete;
    Call& operator=(const Call&) = delete;
    ~Call() { --depth_; }

    bool is_outermost() const { return is_outermost_; }

private:
    // The library is there from the start of the program, so the quickest way to its variables is open.
    static thread_local int depth_ __attribute__((tls_model("initial-exec")));

    bool is_outermost_;
};

/// Writes a call into the trace, before it is made. Returns which one it is.
template <typename Write>
std::uint32_t record(Number number, Form form, std::size_t most_size, Write&& write)
{
    const Turn turn;
    state().file.append(most_size, trace::code_of(number, form), std::forward<Write>(write));
    return ++state().call_count;
}

void record_result(std::uint32_t call, DFBResult result);

/// Records a call whose arguments @p write puts into the trace, and passes it on.
template <typename Function, typename Write, typename... Arguments>
DFBResult pass_on(Number number, Form form, Function*, Write&& write, Arguments... arguments)
{
    const auto next = reinterpret_cast<Function*>(next_function(trace::code_of(number, form)));
    const Call call;
    if (!call.is_outermost())
        return next(arguments...);
    const std::uint32_t index = record(number, form, trace::most_call, std::forward<Write>(write));
    const DFBResult result = next(arguments...);
    if (result)
        record_result(index, result);
    return result;
}

// Arguments that take more than a number.

inline std::uint32_t bits(int value)
{
    return static_cast<std::uint32_t>(value);
}

inline void put_box(Encoder& encoder, const DFBRectangle* box)
{
    encoder.byte(box != nullptr);
    if (!box)
        return;
    encoder.point(bits(box->x), bits(box->y));
    encoder.integer(bits(box->w));
    encoder.integer(bits(box->h));
}

inline void put_color(Encoder& encoder, u8 r, u8 g, u8 b, u8 a)
{
    encoder.word(std::uint32_t(r) << 24 | std::uint32_t(g) << 16 | std::uint32_t(b) << 8 | a);
}

void put_shape(Encoder& encoder, const DTKHDDVDPenShape* shape);

} // namespace recorder

#endif
