#ifndef DTK_HARDWARE_MESSAGES_H
#define DTK_HARDWARE_MESSAGES_H

namespace dtk {

/// What an operation prints when an engine call fails, up to the engine's code: "<operation>: <step> err 0x<code>".
///
/// Several name another engine call than the one that failed; users' log filters know them as they are.
struct EngineMessages {
    const char* operation;
    const char* bind_target;
    const char* set_fill;
    const char* draw_pattern_fill;
    const char* draw_color_fill;
    const char* set_pen;
    const char* draw_outline;
};

extern const EngineMessages line_messages;
extern const EngineMessages rectangle_messages;
extern const EngineMessages ellipse_messages;
extern const EngineMessages polygon_messages;

} // namespace dtk

#endif
