#pragma once

#include "bytes.h"
#include "memory_surface.h"

#include <dtkhddvd.h>

namespace fuzz {

/// A toolkit on surfaces in guarded memory, driven by bytes.
class Session {
public:
    explicit Session(Bytes& bytes);
    ~Session();

    void run_operation();

private:
    using Operation = void (Session::*)();

    void set_stroke_color();
    void set_fill_color();
    void set_fill_pattern();
    void set_new_pen();
    void set_no_pen();
    void draw_line();
    void draw_rectangle();
    void draw_polygon();
    void draw_ellipse();
    void reattach();
    void detach();
    void toggle_lock();
    void unlock();
    void fail_soon();
    void count_reference();
    void fill_alone();
    void stamp_alone();

    MemorySurface* make_surface();
    DFBRectangle box();
    DFBRectangle inside_box(const MemorySurface& surface);

    static const Operation operations[];

    Bytes& bytes_;
    MemoryDirectFB directfb_;
    DTKHDDVD* toolkit_ = nullptr;
    MemorySurface* target_ = nullptr;
    MemorySurface* texture_ = nullptr;
    MemorySurface* locked_ = nullptr;
};

} // namespace fuzz
