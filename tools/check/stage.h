#pragma once

#include "scene.h"

#include <map>
#include <memory>
#include <vector>

namespace conformance {

struct ReleaseInterface {
    template <typename Interface>
    void operator()(Interface* object) const
    {
        object->Release(object);
    }
};

using Surface = std::unique_ptr<IDirectFBSurface, ReleaseInterface>;
using Toolkit = std::unique_ptr<DTKHDDVD, ReleaseInterface>;

/// The pixels of a picture, row by row, 0xAARRGGBB. Below the colours, alpha is only along for the ride.
using Picture = std::vector<u32>;

Picture random_picture(std::mt19937& random);

/// Reads the pixels of a 32-bit surface, when the engine has drawn everything.
Picture read(IDirectFBSurface* surface);

/// The part of a surface as a surface.
Surface part_of(IDirectFBSurface* surface, const DFBRectangle& rect);

enum class BackEnd { software, hardware };

/// What scenes are drawn on and with. The platform's engine is hidden while software draws, see show_engine.
class Stage {
public:
    /// @param dfb  Started through the platform; it outlives the stage.
    /// @throws std::runtime_error when DirectFB makes no surfaces.
    explicit Stage(IDirectFB* dfb);

    IDirectFB* dfb() const { return dfb_; }

    /// Draws a scene onto a background. No picture: the back end answered a failure.
    std::optional<Picture> draw(BackEnd back_end, const Scene& scene, const Picture& background);

    /// A new surface, all of it 0.
    Surface make_surface(int width, int height, DFBSurfacePixelFormat format) const;

    /// A new toolkit of a back end, which is the one that the platform shows from now on.
    Toolkit make_toolkit(BackEnd back_end, IDirectFBSurface* surface) const;

private:
    Surface& target(DFBSurfacePixelFormat format);
    bool draw_on(IDirectFBSurface* surface, BackEnd back_end, const Scene& scene);

    IDirectFB* dfb_;
    Surface argb_target_, rgb32_target_;
    std::map<Texture, Surface> textures_;
};

} // namespace conformance
