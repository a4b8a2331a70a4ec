/// Surfaces of every kind that a drawing toolkit uses.
#ifndef TESTS_PLATFORM_ACCEL_CANVASES_H
#define TESTS_PLATFORM_ACCEL_CANVASES_H

#include <directfb.h>

#include <string>
#include <vector>

#include "accel_dice.h"

namespace accel {

/// The size of all canvases but the pens.
constexpr int width = 97, height = 61;

template <class Flags>
constexpr Flags operator|(Flags a, Flags b)
{
    return static_cast<Flags>(static_cast<unsigned int>(a) | static_cast<unsigned int>(b));
}

struct Canvas {
    std::string name;
    IDirectFBSurface* surface;
    DFBSurfacePixelFormat format;
    int width, height;
    bool is_part; ///< Of another canvas, whose memory it shares.
};

class Canvases {
public:
    explicit Canvases(IDirectFB& directfb);
    ~Canvases();

    Canvas& any(Dice& dice);
    Canvas& any_pen(Dice& dice);
    Canvas& any_source_for(const Canvas& target, Dice& dice);
    Canvas& any_flipped(Dice& dice);
    const std::vector<Canvas>& all() const { return canvases_; }

private:
    void add(const std::string& name, DFBSurfacePixelFormat format, DFBSurfaceCapabilities caps, int w, int h);
    void add_part(const std::string& name, const DFBRectangle& rect);
    void add_layer();
    Canvas& named(const std::string& name);

    IDirectFB& directfb_;
    std::vector<Canvas> canvases_;
};

/// Tells the contents of the memory that belongs to a canvas's pixels, unused bytes included.
size_t hash_of(const Canvas& canvas);

} // namespace accel

#endif
