#pragma once

#include "real/directfb.h"

#include <functional>
#include <ostream>
#include <string>
#include <vector>

namespace faults {

enum class Fill { opaque, translucent, pattern };

/// How a toolkit is set up.
struct Mode {
    bool is_hardware;
    bool uses_scratch_pad;
    bool has_pen;
    Fill fill;
};

/// Every mode of both back ends.
std::vector<Mode> all_modes();

std::string words_of(const Mode& mode);

/// How GoogleTest names a mode.
inline void PrintTo(const Mode& mode, std::ostream* out)
{
    *out << words_of(mode);
}

/// An operation that draws, by its name in messages.
struct Drawing {
    std::string name;
    std::function<DFBResult(DTKHDDVD*)> draw;
};

/// One call of each primitive, with fill and outline.
const std::vector<Drawing>& all_drawings();

/// A toolkit on a surface of its own, with a texture for patterns, on real DirectFB behind the shim.
class Session {
public:
    explicit Session(const Mode& mode, DFBSurfacePixelFormat target_format = DSPF_ARGB,
                     DFBSurfacePixelFormat texture_format = DSPF_ARGB);
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    DTKHDDVD* toolkit() const { return toolkit_.get(); }
    IDirectFBSurface* target() const { return target_.get(); }
    IDirectFBSurface* texture() const { return texture_.get(); }

    /// Gives the application's reference on the texture back.
    void release_texture() { texture_.reset(); }

    /// What a good call draws onto a clean target. The call before it has made the scratch pad clean.
    real::Pixels draw_twice(const Drawing& drawing) const;

private:
    real::Surface target_;
    real::Surface texture_;
    real::Toolkit toolkit_;
};

/// What an operation answered and wrote.
struct Outcome {
    DFBResult result;
    std::string error;
};

Outcome run(const std::function<DFBResult()>& operation);

int line_count(const std::string& text);

} // namespace faults
