#ifndef TOOLS_PLATFORM_H
#define TOOLS_PLATFORM_H

#include <memory>
#include <string>
#include <vector>

#include <directfb.h>

namespace tools {

/// Which back end a toolkit is to draw with.
enum class BackEnd { any, software, hardware };

/// The back end that is called @p name.
///
/// @throws std::invalid_argument for a name that is neither "software" nor "hardware".
BackEnd back_end_named(const std::string& name);

/// "software" or "hardware".
const char* name_of(BackEnd back_end);

/// Whether @p argument is for DirectFB or the platform: it begins with `--dfb:` or `--zuvo:`.
bool is_platform_word(const std::string& argument);

/// Gives a DirectFB-style interface back.
struct Releaser {
    template <typename Interface>
    void operator()(Interface* interface) const
    {
        interface->Release(interface);
    }
};

/// Owns one reference of a DirectFB-style interface.
template <typename Interface>
using Owned = std::unique_ptr<Interface, Releaser>;

/// @throws std::runtime_error "<what>: <text of the result>" for any result but DFB_OK.
void check(DFBResult result, const std::string& what);

/// A new surface; its pixels are undefined.
///
/// @throws std::runtime_error when DirectFB does not make it.
Owned<IDirectFBSurface> create_surface(IDirectFB* dfb, int width, int height, DFBSurfacePixelFormat format);

/// The platform with its display and DirectFB, from construction to destruction.
class Platform {
public:
    /// Starts the platform with a display of @p width x @p height pixels.
    ///
    /// @param words The arguments for DirectFB and the platform.
    /// @throws std::runtime_error when DirectFB does not start, or @p back_end is hardware and there is no engine.
    Platform(int width, int height, BackEnd back_end, const std::vector<std::string>& words);
    Platform(const Platform&) = delete;
    Platform& operator=(const Platform&) = delete;
    ~Platform();

    IDirectFB* dfb() const { return dfb_; }

    /// The surface of the graphics layer, configured to @p width x @p height pixels.
    Owned<IDirectFBSurface> layer_surface(int width, int height) const;

    /// @throws std::runtime_error where nobody sees what is drawn on the graphics layer.
    void require_display() const;

    /// Whether toolkits draw through the platform's drawing engine.
    bool has_engine() const;

    /// Whether DirectFB has a graphics driver that draws for it.
    bool is_accelerated() const;

private:
    void stop();

    unsigned int display_;
    IDirectFB* dfb_;
};

} // namespace tools

#endif
