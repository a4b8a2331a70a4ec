/**
 * @file dtkhddvd.hpp
 * The toolkit for C++17: owning handles over the C interface of dtkhddvd.h, which explains every operation.
 *
 *     auto toolkit = dtkhddvd::Toolkit::create(dfb, surface, dtkhddvd::ScratchPad::with);
 *     if (!toolkit)
 *         return toolkit.error();
 *     toolkit->set_fill_color({0xff, 0x20, 0x60, 0xa0});
 *     dtkhddvd::Result drawn = toolkit->ellipse({20, 20, 200, 120}, dtkhddvd::Draw::fill);
 *
 * A caller chooses how failures come back. The operations of a Toolkit return them as a Result; those of a
 * ThrowingToolkit, its double in all else, throw Error. Everything is inline: a call is what it is in C.
 */
#ifndef DTKHDDVD_HPP
#define DTKHDDVD_HPP

#include "dtkhddvd.h"

#include <cstddef>
#include <utility>

#ifdef __cpp_exceptions
#include <stdexcept>
#endif

/** The toolkit for C++17. */
namespace dtkhddvd {

/** What a rectangle, a polygon or an ellipse draws. */
enum class Draw : u32 {
    nothing = 0,                           ///< Nothing.
    stroke = DTKHDDVD_STROKE,              ///< The outline.
    fill = DTKHDDVD_FILL,                  ///< The inside.
    both = DTKHDDVD_FILL | DTKHDDVD_STROKE ///< The inside, then the outline.
};

/** Both of two. */
constexpr Draw operator|(Draw a, Draw b)
{
    return static_cast<Draw>(static_cast<u32>(a) | static_cast<u32>(b));
}

/** Whether translucent and textured drawing goes through a scratch pad. */
enum class ScratchPad : u8 {
    without = 0, ///< Colours are stored as they are.
    with = 1     ///< A translucent shape is blended once.
};

/** Whether a polygon's outline goes back from the last corner to the first. */
enum class Outline : u8 {
    open = 0,  ///< It ends at the last corner.
    closed = 1 ///< It goes back to the first corner.
};

/** What a result means, in words: DirectFB's text, also for the library's own numbers, which DirectFB does not know. */
inline const char* describe(DFBResult result)
{
    switch (static_cast<unsigned>(result)) {
    case DTKHDDVD_FAILURE:
        return DirectFBErrorString(DFB_FAILURE);
    case DTKHDDVD_INIT:
        return DirectFBErrorString(DFB_INIT);
    case DTKHDDVD_UNSUPPORTED:
        return DirectFBErrorString(DFB_UNSUPPORTED);
    case DTKHDDVD_INVARG:
        return DirectFBErrorString(DFB_INVARG);
    case DTKHDDVD_THIZNULL:
        return DirectFBErrorString(DFB_THIZNULL);
    default:
        return DirectFBErrorString(result);
    }
}

/** How a drawing ended: nothing failed, or a DFBResult. */
class [[nodiscard]] Result {
public:
    /** What an operation returned. */
    constexpr Result(DFBResult result = DFB_OK) : result_(result) {}

    /** Whether nothing failed. */
    constexpr explicit operator bool() const { return result_ == DFB_OK; }

    /** The failure, DFB_OK if there is none. */
    constexpr DFBResult error() const { return result_; }

    /** Says that a failure does not matter. */
    constexpr void ignore() const {}

private:
    DFBResult result_;
};

/** An object, or why there is none. */
template <typename Value>
class [[nodiscard]] Expected {
public:
    /** A failure; never DFB_OK. */
    Expected(DFBResult failure) : result_(failure) {}

    /** An object. */
    Expected(Value&& value) : value_(std::move(value)) {}

    /** Whether there is an object. */
    explicit operator bool() const { return result_ == DFB_OK; }

    /** Why there is none, DFB_OK if there is one. */
    DFBResult error() const { return result_; }

    /** The object, which must be there; it is empty otherwise. */
    Value& operator*() & { return value_; }

    /** The object, to be moved away. */
    Value&& operator*() && { return std::move(value_); }

    /** The object. */
    Value* operator->() { return &value_; }

private:
    DFBResult result_ = DFB_OK;
    Value value_;
};

/** Failures come back as results. */
struct ReturnResults {
    /** What an operation returns. */
    using Outcome = Result;

    /** What a creation returns. */
    template <typename Value>
    using Created = Expected<Value>;

    /** Passes on what an operation of the C interface returned. */
    static constexpr Result outcome(DFBResult result) { return result; }

    /** Passes on what a creation of the C interface returned; the object is empty when it failed. */
    template <typename Value>
    static Expected<Value> created(DFBResult result, Value&& value)
    {
        return result ? Expected<Value>(result) : Expected<Value>(std::move(value));
    }
};

#ifdef __cpp_exceptions

/** A failed operation. */
class Error : public std::runtime_error {
public:
    /** what() describes the result. */
    explicit Error(DFBResult result) : std::runtime_error(describe(result)), result_(result) {}

    /** What the operation returned. */
    DFBResult result() const { return result_; }

private:
    DFBResult result_;
};

/** Failures are thrown. */
struct ThrowErrors {
    /** What an operation returns. */
    using Outcome = void;

    /** What a creation returns. */
    template <typename Value>
    using Created = Value;

    /** Throws what an operation of the C interface returned, if it failed. */
    static void outcome(DFBResult result)
    {
        if (result)
            throw Error(result);
    }

    /** Throws what a creation of the C interface returned, if it failed. */
    template <typename Value>
    static Value created(DFBResult result, Value&& value)
    {
        outcome(result);
        return std::move(value);
    }
};

#endif

/** Owns one reference on a record of the C interface; moved, not copied. */
template <typename Record>
class Handle {
public:
    /** Owns nothing. */
    Handle() = default;

    /** Takes over a reference of the caller's. */
    explicit Handle(Record* record) : record_(record) {}

    /** Takes over what the other owns. */
    Handle(Handle&& other) noexcept : record_(other.release()) {}
    /** Gives back what is owned and takes over what the other owns. */
    Handle& operator=(Handle&& other) noexcept
    {
        Handle(std::move(other)).swap(*this);
        return *this;
    }
    ~Handle()
    {
        if (record_)
            record_->Release(record_);
    }

    /** The record, for the C interface; NULL when nothing is owned. */
    Record* get() const { return record_; }

    /** Whether something is owned. */
    explicit operator bool() const { return record_; }

    /** Hands the reference to the caller and owns nothing. */
    Record* release() { return std::exchange(record_, nullptr); }

    /** Exchanges what two handles own. */
    void swap(Handle& other) { std::swap(record_, other.record_); }

private:
    Record* record_ = nullptr;
};

/** A pen. A toolkit that it is set in holds it, too. */
class Pen : public Handle<DTKHDDVDPen> {
public:
    using Handle::Handle;
};

/**
 * A toolkit, for one thread as all toolkits and pens.
 *
 * Its end takes its pen away first, which the C interface leaves to the caller: whoever has made further references
 * on the record finds no pen set.
 */
template <typename Failures>
class BasicToolkit {
public:
    /** What the operations return. */
    using Outcome = typename Failures::Outcome;

    /** Nothing: no operation may be called. */
    BasicToolkit() = default;

    /** Takes over a reference of the caller's. */
    explicit BasicToolkit(DTKHDDVD* toolkit) : toolkit_(toolkit) {}

    /** Takes over what the other owns. */
    BasicToolkit(BasicToolkit&& other) noexcept = default;

    /** Gives back what is owned and takes over what the other owns. */
    BasicToolkit& operator=(BasicToolkit&& other) noexcept
    {
        drop_pen();
        toolkit_ = std::move(other.toolkit_);
        return *this;
    }
    ~BasicToolkit() { drop_pen(); }

    /** CreateDrawingToolkit_HDDVD(). */
    static typename Failures::template Created<BasicToolkit> create(IDirectFB* dfb, IDirectFBSurface* surface,
                                                                    ScratchPad scratch_pad)
    {
        DTKHDDVD* toolkit = nullptr;
        const DFBResult result = CreateDrawingToolkit_HDDVD(dfb, surface, static_cast<u8>(scratch_pad), &toolkit);
        return Failures::created(result, BasicToolkit(toolkit));
    }

    /** AttachDFBSurfaceToDrawingToolkit_HDDVD(). */
    Outcome attach(IDirectFBSurface* surface)
    {
        return Failures::outcome(AttachDFBSurfaceToDrawingToolkit_HDDVD(get(), surface));
    }

    /** DetachDFBSurfaceToDrawingToolkit_HDDVD(). */
    Outcome detach() { return Failures::outcome(DetachDFBSurfaceToDrawingToolkit_HDDVD(get())); }

    /** DTKHDDVD_SetStrokeColor(). */
    Outcome set_stroke_color(const DFBColor& color)
    {
        return Failures::outcome(get()->SetStrokeColor(get(), color.r, color.g, color.b, color.a));
    }

    /** DTKHDDVD_SetFillColor(). */
    Outcome set_fill_color(const DFBColor& color)
    {
        return Failures::outcome(get()->SetFillColor(get(), color.r, color.g, color.b, color.a));
    }

    /** DTKHDDVD_SetFillPattern(). */
    Outcome set_fill_pattern(IDirectFBSurface* texture)
    {
        return Failures::outcome(get()->SetFillPattern(get(), texture));
    }

    /** DTKHDDVD_CreatePen(). */
    typename Failures::template Created<Pen> create_pen(const DTKHDDVDPenShape& shape)
    {
        DTKHDDVDPen* pen = nullptr;
        const DFBResult result = get()->CreatePen(get(), &shape, &pen);
        return Failures::created(result, Pen(pen));
    }

    /** DTKHDDVD_SetPen(); the caller may give up the pen while it is set. */
    Outcome set_pen(const Pen& pen) { return Failures::outcome(get()->SetPen(get(), pen.get())); }

    /** DTKHDDVD_SetPen() with no pen. */
    Outcome set_no_pen() { return Failures::outcome(get()->SetPen(get(), nullptr)); }

    /** DTKHDDVD_Line(). */
    Outcome line(const DFBPoint& from, const DFBPoint& to)
    {
        return Failures::outcome(get()->Line(get(), from.x, from.y, to.x, to.y));
    }

    /** DTKHDDVD_Rectangle(). */
    Outcome rectangle(const DFBRectangle& rect, Draw draw)
    {
        return Failures::outcome(get()->Rectangle(get(), &rect, static_cast<u32>(draw)));
    }

    /** DTKHDDVD_Polygon(). */
    Outcome polygon(const DFBPoint* points, std::size_t count, Outline outline, Draw draw)
    {
        return Failures::outcome(get()->Polygon(get(), points, static_cast<u32>(count), static_cast<u8>(outline),
                                                static_cast<u32>(draw)));
    }

    /** DTKHDDVD_Polygon() of an array. */
    template <std::size_t count>
    Outcome polygon(const DFBPoint (&points)[count], Outline outline, Draw draw)
    {
        return polygon(points, count, outline, draw);
    }

    /** DTKHDDVD_Ellipse(). */
    Outcome ellipse(const DFBRectangle& rect, Draw draw)
    {
        return Failures::outcome(get()->Ellipse(get(), &rect, static_cast<u32>(draw)));
    }

    /** The record, for the C interface; NULL in an empty toolkit. */
    DTKHDDVD* get() const { return toolkit_.get(); }

    /** Whether there is a toolkit. */
    explicit operator bool() const { return get(); }

    /** Hands the reference to the caller, with the pen that is set. */
    DTKHDDVD* release() { return toolkit_.release(); }

private:
    void drop_pen()
    {
        if (toolkit_)
            get()->SetPen(get(), nullptr);
    }

    Handle<DTKHDDVD> toolkit_;
};

/** A toolkit whose operations return their failures. */
using Toolkit = BasicToolkit<ReturnResults>;

#ifdef __cpp_exceptions
/** A toolkit whose operations throw their failures. */
using ThrowingToolkit = BasicToolkit<ThrowErrors>;
#endif

} // namespace dtkhddvd

#endif
