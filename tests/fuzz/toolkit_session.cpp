#include "toolkit_session.h"

#include "fuzzed_platform.h"

#include <algorithm>

namespace fuzz {
namespace {

/// Walks visit each step, so that their lengths are kept small; where they begin is left alone.
constexpr int longest_walk = 3000;

int cut(int length)
{
    return std::clamp(length, -longest_walk, longest_walk);
}

int wrapping_sum(int a, int b)
{
    return static_cast<int>(static_cast<unsigned>(a) + static_cast<unsigned>(b));
}

} // namespace

const Session::Operation Session::operations[] = {
    &Session::set_stroke_color, &Session::set_fill_color, &Session::set_fill_pattern, &Session::set_new_pen,
    &Session::set_no_pen,       &Session::draw_line,      &Session::draw_rectangle,   &Session::draw_polygon,
    &Session::draw_ellipse,     &Session::reattach,       &Session::detach,           &Session::toggle_lock,
    &Session::fail_soon,        &Session::count_reference, &Session::fill_alone,      &Session::stamp_alone,
};

Session::Session(Bytes& bytes) : bytes_(bytes)
{
    const std::uint8_t options = bytes_.byte();
    directfb_.references = 1000;
    platform() = Platform();
    platform().has_engine = options & 1;
    target_ = make_surface();
    texture_ = make_surface();
    MemorySurface* surface = options & 2 ? target_ : nullptr;
    const DFBResult result = CreateDrawingToolkit_HDDVD(&directfb_, surface, options & 4, &toolkit_);
    require(result == DFB_OK && toolkit_, "a toolkit could not be made");
}

Session::~Session()
{
    directfb_.calls_until_failure = 0;
    platform().calls_until_failure = 0;
    toolkit_->SetPen(toolkit_, nullptr);
    toolkit_->Release(toolkit_);
    directfb_.check(locked_);
}

void Session::run_operation()
{
    (this->*operations[bytes_.below(sizeof operations / sizeof operations[0])])();
    directfb_.check(locked_);
    require(batch_n_blits == 0, "stamps were left in the batch");
}

MemorySurface* Session::make_surface()
{
    static const DFBSurfacePixelFormat formats[] = {DSPF_ARGB, DSPF_RGB32, DSPF_RGB16, DSPF_LUT8, DSPF_A8};
    const DFBSurfacePixelFormat format = formats[bytes_.below(sizeof formats / sizeof formats[0])];
    const int width = 1 + static_cast<int>(bytes_.below(96));
    return directfb_.create(width, 1 + static_cast<int>(bytes_.below(96)), format);
}

void Session::set_stroke_color()
{
    const u8 r = bytes_.byte(), g = bytes_.byte(), b = bytes_.byte();
    toolkit_->SetStrokeColor(toolkit_, r, g, b, bytes_.byte());
}

void Session::set_fill_color()
{
    const u8 r = bytes_.byte(), g = bytes_.byte(), b = bytes_.byte();
    toolkit_->SetFillColor(toolkit_, r, g, b, bytes_.byte());
}

void Session::set_fill_pattern()
{
    IDirectFBSurface* choices[] = {texture_, target_, nullptr};
    toolkit_->SetFillPattern(toolkit_, choices[bytes_.below(3)]);
}

void Session::set_new_pen()
{
    DTKHDDVDPenShape shape;
    for (int* number : {&shape.x0, &shape.y0, &shape.x1, &shape.y1, &shape.x2, &shape.y2, &shape.x3, &shape.y3})
        *number = bytes_.coordinate();
    DTKHDDVDPen* pen = nullptr;
    if (toolkit_->CreatePen(toolkit_, &shape, &pen))
        return;
    toolkit_->SetPen(toolkit_, pen);
    pen->Release(pen);
}

void Session::set_no_pen()
{
    toolkit_->SetPen(toolkit_, nullptr);
}

void Session::draw_line()
{
    const int x = bytes_.coordinate(), y = bytes_.coordinate();
    const int width = cut(bytes_.coordinate()), height = cut(bytes_.coordinate());
    toolkit_->Line(toolkit_, x, y, wrapping_sum(x, width), wrapping_sum(y, height));
}

DFBRectangle Session::box()
{
    const int x = bytes_.coordinate(), y = bytes_.coordinate(), width = bytes_.coordinate();
    return {x, y, cut(width), cut(bytes_.coordinate())};
}

void Session::draw_rectangle()
{
    const DFBRectangle rect = box();
    toolkit_->Rectangle(toolkit_, &rect, bytes_.byte());
}

void Session::draw_polygon()
{
    // On the heap and of the exact size, so that a read beyond the end is seen.
    const unsigned count = bytes_.below(8);
    std::vector<DFBPoint> points;
    DFBPoint point = {bytes_.coordinate(), 0};
    for (unsigned i = 0; i < count; ++i) {
        point.x = wrapping_sum(point.x, cut(bytes_.coordinate()));
        point.y = wrapping_sum(point.y, cut(bytes_.coordinate()));
        points.push_back(point);
    }
    points.shrink_to_fit();
    const u8 closed = bytes_.byte();
    toolkit_->Polygon(toolkit_, points.data(), count, closed, bytes_.byte());
}

void Session::draw_ellipse()
{
    const DFBRectangle rect = box();
    toolkit_->Ellipse(toolkit_, &rect, bytes_.byte());
}

void Session::reattach()
{
    detach();
    unlock();
    target_ = make_surface();
    AttachDFBSurfaceToDrawingToolkit_HDDVD(toolkit_, target_);
}

void Session::detach()
{
    DetachDFBSurfaceToDrawingToolkit_HDDVD(toolkit_);
}

void Session::toggle_lock()
{
    if (locked_) {
        unlock();
        return;
    }
    MemorySurface* surface = bytes_.flag() ? texture_ : target_;
    void* pixels = nullptr;
    int pitch = 0;
    if (!surface->Lock(surface, DSLF_WRITE, &pixels, &pitch))
        locked_ = surface;
}

void Session::unlock()
{
    if (locked_)
        locked_->Unlock(locked_);
    locked_ = nullptr;
}

void Session::fail_soon()
{
    directfb_.calls_until_failure = bytes_.below(24);
    platform().calls_until_failure = bytes_.below(8);
}

void Session::count_reference()
{
    toolkit_->AddRef(toolkit_);
    toolkit_->Release(toolkit_);
}

void Session::fill_alone()
{
    const DFBRectangle rect = box();
    const DFBRectangle clip = inside_box(*target_);
    const bool is_clipped = bytes_.flag();
    const auto fill = bytes_.flag() ? fill_ellipse_argb : fill_ellipse_lut8;
    fill(target_, &rect, is_clipped ? &clip : nullptr, static_cast<u32>(bytes_.word()));
}

DFBRectangle Session::inside_box(const MemorySurface& surface)
{
    const int x = static_cast<int>(bytes_.below(static_cast<unsigned>(surface.width)));
    const int y = static_cast<int>(bytes_.below(static_cast<unsigned>(surface.height)));
    return {x, y, surface.width - x, surface.height - y};
}

void Session::stamp_alone()
{
    const DFBRectangle rect = box();
    switch (bytes_.below(3)) {
    case 0:
        stamp_line(target_, rect.x, rect.y, wrapping_sum(rect.x, rect.w), wrapping_sum(rect.y, rect.h), texture_);
        break;
    case 1:
        stamp_rectangle(target_, &rect, texture_);
        break;
    default:
        stamp_ellipse(target_, &rect, texture_);
    }
}

} // namespace fuzz
