#ifndef DTK_PEN_BATCH_H
#define DTK_PEN_BATCH_H

#include "dtkhddvd.h"
#include "geometry/line_walk.h"

#include <cstddef>

namespace dtk {

/// Stamps a pen's picture, centred on one point after the other, and sends 64 stamps with each BatchBlit.
///
/// It fills the process-wide batch, so there is one at a time. A failed blit does not end the stamping. How many stamps
/// wait is kept here and not in the batch, which lets the compiler hold it in a register.
class StampBatch {
public:
    StampBatch(IDirectFBSurface* dest, IDirectFBSurface* pen_surface)
        : start_(start(dest, pen_surface)), result_(start_.result)
    {
    }

    void add(int x, int y)
    {
        put(x, y);
        send_if_full();
    }

    /// For those who add nothing but pairs: two stamps, with one look at whether the batch is full.
    void add_pair(int x1, int y1, int x2, int y2)
    {
        put(x1, y1);
        put(x2, y2);
        send_if_full();
    }

    /// The coordinates of points whose stamps may be seen: no surface reaches as far as a stamp that begins further away
    /// from its corner than this, and none is queued there.
    geometry::Range near_columns() const { return {start_.half_width - reach, start_.half_width + reach}; }
    geometry::Range near_rows() const { return {start_.half_height - reach, start_.half_height + reach}; }

    /// Whether all points between two corners have such stamps.
    bool is_near(long long left, long long top, long long right, long long bottom) const
    {
        return near_columns().contains(left) && near_columns().contains(right) && near_rows().contains(top) &&
               near_rows().contains(bottom);
    }

    void add_if_near(long long x, long long y)
    {
        if (near_columns().contains(x) && near_rows().contains(y))
            add(static_cast<int>(x), static_cast<int>(y));
    }

    /// Sends what is left. The result is that of the last DirectFB call.
    DFBResult finish() { return count_ ? send(static_cast<int>(count_), is_first_) : result_; }

private:
    static constexpr long long reach = 65536;

    struct Start {
        int half_width, half_height;
        DFBResult result;
    };

    static Start start(IDirectFBSurface* dest, IDirectFBSurface* pen_surface);
    static DFBResult send(int count, bool is_first);

    void put(int x, int y) { batch_points[count_++] = {x - start_.half_width, y - start_.half_height}; }

    void send_if_full()
    {
        if (count_ == DTKHDDVD_BATCH_SIZE) {
            result_ = send(DTKHDDVD_BATCH_SIZE, is_first_);
            is_first_ = false;
            count_ = 0;
        }
    }

    Start start_;
    DFBResult result_;
    std::ptrdiff_t count_ = 0; ///< As wide as an address, so that each stamp is found without converting it.
    bool is_first_ = true;
};

} // namespace dtk

#endif
