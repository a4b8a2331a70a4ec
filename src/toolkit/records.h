#ifndef DTK_TOOLKIT_RECORDS_H
#define DTK_TOOLKIT_RECORDS_H

#include "toolkit/result.h"

#include <cairo.h>

#include <cstddef>
#include <cstdlib>
#include <cstring>

/// The state of a toolkit, made by its back end and freed by Release.
struct DTKHDDVD_data {
    u32 ref_count;
    u8 use_scratch_pad;                     ///< Not 0: attaching makes a scratch pad.
    IDirectFB* dfb;                         ///< One reference for each attach; NULL is possible before one.
    IDirectFBSurface* target;               ///< Owned sub-surface of the attached surface; NULL while unattached.
    cairo_t* target_cr;                     ///< Owned; software only.
    DFBColor palette[3];                    ///< Stroke, fill, and the key colour of palette surfaces.
    cairo_pattern_t* fill_pattern;          ///< Owned; software only. NULL: the fill colour is used.
    DTKHDDVDPen* pen;                       ///< Holds one reference; NULL for none.
    IDirectFBSurface* scratch;              ///< Owned scratch pad; NULL for none.
    cairo_t* scratch_cr;                    ///< Owned; software only.
    cairo_surface_t* target_cairo_surface;  ///< Borrowed from target_cr, as an attach leaves it.
    cairo_surface_t* scratch_cairo_surface; ///< Borrowed from scratch_cr, as an attach leaves it.
    u32 dtk;                                ///< The drawing engine; 0 makes this a software toolkit.
    u8 has_fill_pattern;                    ///< 1 while a pattern is set; hardware only.
    u32 fill_pattern_handle;                ///< The engine's handle of the pattern; hardware only.
    IDirectFBSurface* texture;              ///< Borrowed from fill_pattern, which keeps it alive; software only.
};

/// The state of a pen.
struct DTKHDDVDPen_data {
    u32 ref_count;
    IDirectFBSurface* surface; ///< Owned picture of the pen; software only.
    DTKHDDVDPenShape shape;    ///< Hardware only.
    int width;                 ///< Hardware only.
    int height;                ///< Hardware only.
    u32 color;                 ///< Written at creation and read by nobody.
};

namespace dtk {

/// What the entries of a toolkit's palette, and of every palette surface that it draws with, stand for.
inline constexpr u8 stroke_index = 0;
inline constexpr u8 fill_index = 1;
inline constexpr u8 key_index = 2;

/// Allocates a record and clears it; NULL without memory. It is freed with std::free.
template <typename Record>
Record* allocate_cleared()
{
    void* memory = std::malloc(sizeof(Record));
    if (memory)
        std::memset(memory, 0, sizeof(Record));
    return static_cast<Record*>(memory);
}

inline constexpr std::size_t word = sizeof(void*);

static_assert(offsetof(DTKHDDVD, magic) == word && offsetof(DTKHDDVD, AddRef) == 2 * word);
static_assert(offsetof(DTKHDDVD, Ellipse) == 12 * word && sizeof(DTKHDDVD) == 13 * word);
static_assert(offsetof(DTKHDDVDPen, AddRef) == 2 * word && sizeof(DTKHDDVDPen) == 7 * word);
static_assert(sizeof(DTKHDDVDPenShape) == 32 && sizeof(DFBColor) == 4);
static_assert(offsetof(DTKHDDVD_data, use_scratch_pad) == 4 && offsetof(DTKHDDVD_data, dfb) == 8);
static_assert(offsetof(DTKHDDVD_data, palette) == 8 + 3 * word);
static_assert(offsetof(DTKHDDVD_data, dtk) == offsetof(DTKHDDVD_data, fill_pattern) + 6 * word);
static_assert(offsetof(DTKHDDVDPen_data, shape) == 2 * word);

} // namespace dtk

#endif
