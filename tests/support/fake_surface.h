#pragma once

#include <directfb.h>
#include <string>
#include <vector>

namespace fake {

/// A palette that keeps its entries.
struct Palette : IDirectFBPalette {
    explicit Palette(const std::string& name_of_palette);

    std::string name;
    int references = 1;
    std::vector<DFBColor> entries;
};

/// A surface whose calls are written down. Locks give real memory between two guard rows; fills change it.
struct Surface : IDirectFBSurface {
    Surface(const std::string& name_of_surface, int w, int h, DFBSurfacePixelFormat pixel_format);

    std::string name;
    int references = 1;
    int width, height;
    DFBSurfacePixelFormat format;
    int pitch;                      ///< May be changed before the memory is first used.
    unsigned int id = 0;            ///< What GetID answers.
    Palette* palette = nullptr;     ///< What GetPalette answers, with a new reference.
    bool locked = false;
    bool last_lock_failed = false;  ///< Some routines unlock without a look at the result of their lock.
    u32 color = 0;                  ///< The colour word or the index that fills write.
    bool refuses_empty_fills = true; ///< FillRectangle without an area answers DFB_INVARG, as DirectFB does.
    std::string sub_surface_name = "target";

    /// Writes the call down and answers its result.
    DFBResult call(const std::string& call_and_arguments);

    /// The first pixel's byte; the memory is made, and filled with 0xEE, when it is first asked for.
    unsigned char* pixels();

    /// The pixel at (x, y) of a 32-bit surface or an 8-bit one.
    u32 pixel(int x, int y);

    /// The bytes of the guard rows above and below, all 0xEE as long as nobody wrote there.
    bool guards_are_untouched();

    /// All bytes, guard rows included.
    const std::vector<unsigned char>& memory();

    void fill(int x, int y, int w, int h, u32 value);

    int bytes_per_pixel() const { return DFB_BYTES_PER_PIXEL(format); }

private:
    std::vector<unsigned char> bytes_;
};

/// Makes a surface that lives until forget_surfaces().
Surface& new_surface(const std::string& name, int width, int height, DFBSurfacePixelFormat format);

/// The surface of that name, made by a test or by the library.
Surface& surface_named(const std::string& name);

/// How many references all surfaces and palettes hold together.
int surface_references();

void forget_surfaces();

/// Forgets all surfaces but one, so that the names of those made by the library start afresh.
void forget_surfaces_but(const Surface& kept);

/// A name for logs: the surface's, or NULL.
std::string name_of(const IDirectFBSurface* surface);

} // namespace fake
