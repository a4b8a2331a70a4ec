#pragma once

#include "family.h"

#include <functional>

#include <zuvo.h>

namespace conformance {

constexpr u32 red = 0xffff0000, green = 0xff00ff00, blue = 0xff0000ff;

/// The platform's engine, called without the toolkit, and a small surface to draw on. The surface holds zeros.
class Direct {
public:
    static constexpr int size = 40;

    explicit Direct(const Examination& examination);
    Direct(const Direct&) = delete;
    Direct& operator=(const Direct&) = delete;

    /// Waits: memory that a faulty engine still draws on is not given back.
    ~Direct();

    unsigned int engine() const { return engine_; }
    unsigned int target() const { return target_; }
    IDirectFBSurface* surface() const { return surface_.get(); }

    /// Sets the surface, a fill of one colour and a pen of 3 x 3 pixels of that colour.
    void set(u32 color) const;

    void set_fill(u32 color) const;
    void set_pen(u32 color) const;
    int fill_box(const DFBRectangle& box, unsigned int flags = ZUVO_DTK_DRAW) const;

    /// An ellipse over all of the surface, which covers the middle.
    int fill_ellipse(unsigned int flags = ZUVO_DTK_DRAW) const;

    /// All drawing calls for an engine handle, by name.
    std::vector<std::pair<std::string, std::function<int(unsigned int)>>> calls() const;

    /// The pixel at a place, when everything has been drawn.
    u32 at(int x, int y) const;
    u32 middle() const { return at(size / 2, size / 2); }

    /// Whether the surface still holds zeros.
    bool is_untouched() const;

private:
    Surface surface_;
    unsigned int engine_, target_;
};

/// The engine's handle of a surface, 0 when the platform has none for it.
unsigned int handle_of(IDirectFBSurface* surface);

/// A pixel read by Lock alone, without any other waiting.
u32 pixel_by_lock(IDirectFBSurface* surface, int x, int y, DFBSurfaceLockFlags flags);

/// A number as it is written in programs: 0x0000002a.
std::string hexadecimal(u32 number);

} // namespace conformance
