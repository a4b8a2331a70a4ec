#ifndef DTK_HARDWARE_ENGINE_H
#define DTK_HARDWARE_ENGINE_H

#include "hardware/messages.h"
#include "toolkit/drawing.h"
#include "zuvo.h"

namespace dtk {

/// Prints failing engine calls and remembers that there was one; most do not stop the sequence they belong to.
class EngineErrors {
public:
    explicit EngineErrors(const EngineMessages& messages) : messages_(messages) {}

    /// Takes the code that an engine call returned and the message for it.
    void check(const char* message, int error)
    {
        if (error)
            print(message, error);
    }

    void remember_failure() { result_ = result::failure; }
    DFBResult result() const { return result_; }
    const EngineMessages& messages() const { return messages_; }

private:
    void print(const char* message, int error);

    const EngineMessages& messages_;
    DFBResult result_ = result::ok;
};

/// The draw flags of an engine call.
inline unsigned draw_flags(bool blends)
{
    return blends ? ZUVO_DTK_DRAW | ZUVO_DTK_BLEND : ZUVO_DTK_DRAW;
}

/// Makes the toolkit's target the engine's output surface.
void bind_target(const DTKHDDVD_data& toolkit, EngineErrors& errors);

/// Loads the fill pattern or the fill colour.
void load_fill(const DTKHDDVD_data& toolkit, EngineErrors& errors);

/// Loads the current pen in the stroke colour. It needs a current pen.
void load_pen(const DTKHDDVD_data& toolkit, EngineErrors& errors);

/// Fills a primitive: binds the target, loads the fill and calls `draw()`, which returns the engine's code.
template <typename Draw>
DFBResult draw_fill(const DTKHDDVD_data& toolkit, const EngineMessages& messages, Draw&& draw)
{
    EngineErrors errors(messages);
    bind_target(toolkit, errors);
    load_fill(toolkit, errors);
    errors.check(toolkit.has_fill_pattern ? messages.draw_pattern_fill : messages.draw_color_fill, draw());
    return errors.result();
}

/// Outlines a primitive: binds the target, loads the pen and calls `draw(errors)`. Without a pen there is no outline.
template <typename Draw>
DFBResult draw_outline(const DTKHDDVD_data& toolkit, const EngineMessages& messages, Draw&& draw)
{
    if (!toolkit.pen)
        return result::ok;
    EngineErrors errors(messages);
    bind_target(toolkit, errors);
    load_pen(toolkit, errors);
    draw(errors);
    return errors.result();
}

/// A primitive that is drawn into a box, with the two engine calls for it.
struct BoxPrimitive {
    const EngineMessages& messages;
    int (*fill)(unsigned dtk, const DFBRectangle* box, unsigned flags);
    int (*border)(unsigned dtk, const DFBRectangle* box, unsigned flags);
};

/// Fills and outlines such a primitive, as far as the drawing flags ask for it.
DFBResult draw_box(const DTKHDDVD_data& toolkit, const BoxPrimitive& primitive, const DFBRectangle* box, u32 flags);

} // namespace dtk

#endif
