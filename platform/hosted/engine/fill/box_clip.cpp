#include "box_clip.h"

#include <algorithm>
#include <cstdint>

namespace zuvo {
namespace {

void take_inside(RowSink& self, int row, const Span* spans, int count)
{
    const BoxClip& clip = static_cast<const BoxClip&>(self);
    if (row < clip.box.y || row >= int64_t(clip.box.y) + clip.box.h)
        return;

    const int64_t right = int64_t(clip.box.x) + clip.box.w;
    for (int i = 0; i < count; ++i) {
        if (spans[i].left >= right)
            continue;
        const Span span = {std::max(spans[i].left, clip.box.x),
                           static_cast<int>(std::min(int64_t(spans[i].right), right))};
        if (span.left < span.right)
            clip.sink.take(clip.sink, row, &span, 1);
    }
}

} // namespace

BoxClip::BoxClip(RowSink& passed_to, const DFBRectangle& inside) : RowSink{take_inside}, sink(passed_to), box(inside)
{
}

} // namespace zuvo
