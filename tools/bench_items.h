#ifndef TOOLS_BENCH_ITEMS_H
#define TOOLS_BENCH_ITEMS_H

#include <string>
#include <vector>

#include <dtkhddvd.h>

#include "platform.h"

namespace tools {

/// How an item draws.
struct Manner {
    const char* name;
    u32 flags;
    u8 alpha;
    bool has_pattern;
    int pen_size; ///< How many pixels the pen leaves in each direction.
};

/// One line of the table: a primitive in one manner.
struct BenchItem {
    std::string name;
    Manner manner;
    DFBResult (*draw)(DTKHDDVD* toolkit, const DFBRectangle& box, u32 flags);
};

/// The items whose names contain @p text, in the order of the table.
std::vector<BenchItem> bench_items(const std::string& text);

/// Draws one item again and again: has a toolkit with the item's pen and texture.
class ItemPainter {
public:
    /// @param has_engine Whether the toolkit will draw through the platform's drawing engine.
    /// @throws std::runtime_error when something cannot be made.
    ItemPainter(IDirectFB* dfb, IDirectFBSurface* surface, const BenchItem& item, bool has_engine);
    ItemPainter(const ItemPainter&) = delete;
    ItemPainter& operator=(const ItemPainter&) = delete;
    ~ItemPainter();

    void set_color(u8 r, u8 g, u8 b);
    DFBResult draw(const DFBRectangle& box) { return item_.draw(toolkit_.get(), box, item_.manner.flags); }

private:
    void create_pen(bool has_engine);
    void create_texture(IDirectFB* dfb);

    const BenchItem& item_;
    Owned<IDirectFBSurface> texture_;
    Owned<DTKHDDVD> toolkit_;
    Owned<DTKHDDVDPen> pen_;
};

} // namespace tools

#endif
