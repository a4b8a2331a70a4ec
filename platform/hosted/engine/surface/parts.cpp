#include "parts.h"

#include "directfb_core.h"
#include "engine/buffer.h"
#include "zuvo.h"

#include <cstdint>

namespace zuvo {
namespace {

// Below the bit of parts there is how often an entry was used before, and its index.
const unsigned int part_bit = 1u << 31;
const unsigned int index_bits = 16;
const unsigned int index_mask = (1u << index_bits) - 1;
const unsigned int use_mask = (1u << (31 - index_bits)) - 1;

struct Entry {
    DirectFBPart part;      ///< Of surface 0 when the entry is free.
    unsigned int use;
};

struct {
    Buffer<Entry> entries;
    unsigned int count;
    unsigned int latest;    ///< Most calls ask for the same part again.
} parts;

bool is_same(const DFBRectangle& one, const DFBRectangle& other)
{
    return one.x == other.x && one.y == other.y && one.w == other.w && one.h == other.h;
}

bool is_same(const DirectFBPart& one, const DirectFBPart& other)
{
    return one.id == other.id && is_same(one.wanted, other.wanted) && is_same(one.granted, other.granted);
}

bool is_gone(const Entry& entry)
{
    DFBSurfacePixelFormat format = DSPF_UNKNOWN;
    return directfb_core_get_format(entry.part.id, &format) != DIRECTFB_CORE_OK;
}

/// Returns the index of the entry with a part, or the number of entries.
unsigned int index_of(const DirectFBPart& part)
{
    if (parts.latest < parts.count && is_same(parts.entries[parts.latest].part, part))
        return parts.latest;
    unsigned int index = 0;
    while (index < parts.count && !is_same(parts.entries[index].part, part))
        ++index;
    return index;
}

/// Frees the entries of surfaces that are gone, before more memory is taken.
void forget_what_is_gone()
{
    for (unsigned int i = 0; i < parts.count; ++i) {
        Entry& entry = parts.entries[i];
        if (entry.part.id && is_gone(entry))
            entry = {{}, (entry.use + 1) & use_mask};
    }
}

/// Returns the index of a free entry, or the number of entries, one more than which there is room for then.
unsigned int free_index()
{
    if (parts.count == parts.entries.capacity)
        forget_what_is_gone();
    unsigned int index = 0;
    while (index < parts.count && parts.entries[index].part.id)
        ++index;
    return index;
}

unsigned int handle_at(unsigned int index)
{
    return part_bit | parts.entries[index].use << index_bits | index;
}

bool add_part(unsigned int index, const DirectFBPart& part)
{
    if (index == parts.count) {
        if (index > index_mask || !parts.entries.reserve(size_t(index) + 1))
            return false;
        parts.entries[index].use = 0;
        ++parts.count;
    }
    parts.entries[index].part = part;
    return true;
}

} // namespace

unsigned int handle_of_part(const DirectFBPart& part)
{
    unsigned int index = index_of(part);
    if (index == parts.count) {
        index = free_index();
        if (!add_part(index, part))
            return 0;
    }
    parts.latest = index;
    return handle_at(index);
}

const DirectFBPart* find_part(unsigned int handle)
{
    const unsigned int index = handle & index_mask;
    if (index >= parts.count || handle != handle_at(index) || !parts.entries[index].part.id)
        return nullptr;
    return &parts.entries[index].part;
}

DFBSurfaceID surface_of_part(unsigned int handle)
{
    const DirectFBPart* const part = find_part(handle);
    return part ? part->id : 0;
}

} // namespace zuvo

DFBResult zuvo_dtk_get_part_handle(IDirectFBSurface* surface, unsigned int* ret_handle)
{
    DirectFBPart part;
    if (!directfb_get_part(surface, &part))
        return DFB_UNSUPPORTED;
    const unsigned int handle = zuvo::handle_of_part(part);
    if (!handle)
        return DFB_NOSYSTEMMEMORY;
    *ret_handle = handle;
    return DFB_OK;
}
