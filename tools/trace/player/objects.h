#ifndef TOOLS_TRACE_PLAYER_OBJECTS_H
#define TOOLS_TRACE_PLAYER_OBJECTS_H

#include <map>
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
    bool has_directfb = false, has_scratch_pad = false;
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

/// The objects of one kind by their numbers. 0 stands for NULL.
template <typename Object>
class Numbered {
public:
    /// @throws std::runtime_error for a number that the trace has not named yet.
    Object& at(std::uint32_t number)
    {
        const auto found = objects_.find(number);
        if (found == objects_.end())
            throw std::runtime_error("it has an object that was never made");
        return found->second;
    }

    /// The object of a number that may be a new one.
    Object& add(std::uint32_t number) { return objects_[number]; }

    /// Calls `visit(number, object)` for each.
    template <typename Visit>
    void for_each(Visit&& visit)
    {
        for (auto& [number, object] : objects_)
            visit(number, object);
    }

private:
    std::map<std::uint32_t, Object> objects_ = make_null();

    static std::map<std::uint32_t, Object> make_null()
    {
        std::map<std::uint32_t, Object> objects;
        objects[0];
        return objects;
    }
};

} // namespace trace

#endif
