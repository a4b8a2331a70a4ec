#include "zuvo.h"

const char* zuvo_error_text(int error)
{
    switch (error) {
    case ZUVO_OK:
        return "success";
    case ZUVO_NO_SUCH_DISPLAY:
        return "no such display";
    case ZUVO_NO_SUCH_VIDEO_FORMAT:
        return "no such video format";
    case ZUVO_NO_SUCH_LAYER:
        return "no such layer";
    case ZUVO_NO_SUCH_ENGINE:
        return "no such drawing engine";
    case ZUVO_NULL_ARGUMENT:
        return "an argument is NULL";
    case ZUVO_NO_SUCH_SURFACE:
        return "no such surface, or it was released";
    case ZUVO_WRONG_PIXEL_FORMAT:
        return "a surface of this pixel format cannot be used";
    case ZUVO_NO_OUTPUT:
        return "no output surface is set";
    case ZUVO_NO_FILL:
        return "no fill is set";
    case ZUVO_NO_PEN:
        return "no pen is set";
    case ZUVO_LOCK_FAILED:
        return "the surface's memory cannot be reached";
    case ZUVO_PATTERN_IS_OUTPUT:
        return "the pattern is the output surface itself";
    case ZUVO_PEN_TOO_LARGE:
        return "the pen is too large";
    case ZUVO_NO_MEMORY:
        return "no memory";
    case ZUVO_EMPTY_RECTANGLE:
        return "the rectangle has no width or no height";
    default:
        return "unknown error";
    }
}
