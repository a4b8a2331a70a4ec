#pragma once

#include "real/differential/scene.h"

#include <map>
#include <memory>
#include <vector>

namespace differential {

struct ReleaseInterface {
    template <typename Interface>
    void operator()(Interface* object) const
    {
        object->Release(object);
    }
};

using Surface = std::unique_ptr<IDirectFBSurface, ReleaseInterface>;

/// The pixels of a picture, row by row, 0xAARRGGBB. Below the colours, alpha is only along for the ride.
using Picture = std::vector<u32>;

Picture random_picture(std::mt19937& random);

enum class BackEnd { software, hardware };

/// DirectFB, started through the platform, and what scenes are drawn on and with.
///
/// The platform is switched between having an engine and having none, because pens ask it and not the toolkit.
class Bench {
public:
    static Bench& instance();

    /// Draws a scene onto a background. No picture: the back end answered a failure.
    std::optional<Picture> draw(BackEnd back_end, const Scene& scene, const Picture& background);

private:
    Bench();

    Surface make_surface(int width, int height, DFBSurfacePixelFormat format);
    Surface& target(DFBSurfacePixelFormat format);
    bool draw_on(IDirectFBSurface* surface, BackEnd back_end, const Scene& scene);

    IDirectFB* dfb_;
    Surface argb_target_, rgb32_target_;
    std::map<Texture, Surface> textures_;
};

} // namespace differential
