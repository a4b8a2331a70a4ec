#ifndef TOOLS_TRACE_PLAYER_OBJECTS_H
#define TOOLS_TRACE_PLAYER_OBJECTS_H

#include <deque>
#include <stdexcept>

#include <dtkhddvd.h>

#include "../../platform.h"
#include "../call.h"

namespace trace {

/// Thrown for a call with an object that this back end did not make, because it refused to.
struct Missing {};

/// A toolkit of the trace, and what it draws with.
struct Toolkit {
    DTKHDDVD* toolkit = nullptr;    ///< NULL when it was not made, or has been given back.
    unsigned references = 0;
    bool has_ended = false;         ///< All references have been given back.
    unsigned attach_count = 0;      ///< How many references on DirectFB it has taken.
    bool has_scratch_pad = false;
    std::uint32_t target = 0, pen = 0, texture = 0;     ///< Their numbers, 0 for none.
    DFBColor stroke = {255, 255, 255, 255}, fill = {255, 255, 255, 255};
};

struct Pen {
    DTKHDDVDPen* pen = nullptr;
    DTKHDDVDPenShape shape = {};
    unsigned references = 0;        ///< The trace's own.
    unsigned holders = 0;           ///< Those of toolkits.
    bool has_ended = false;
};

struct Surface {
    tools::Owned<IDirectFBSurface> surface;
    int width = 0, height = 0;
    DFBSurfacePixelFormat format = DSPF_UNKNOWN;
};

/// The objects of one kind by their numbers, which grow by one.
template <typename Object>
class Numbered {
public:
    Numbered() { objects_.emplace_back(); }

    /// @throws std::runtime_error for a number that the trace has not got to yet.
    Object& at(std::uint32_t number)
    {
        if (number >= objects_.size())
            throw std::runtime_error("it has an object that was never made");
        return objects_[number];
    }

    /// The object of a number that may be the next one.
    Object& add(std::uint32_t number)
    {
        if (number == objects_.size())
            objects_.emplace_back();
        return at(number);
    }

    auto begin() { return objects_.begin(); }
    auto end() { return objects_.end(); }

private:
    std::deque<Object> objects_;    ///< The first one stands for NULL.
};

} // namespace trace

#endif
