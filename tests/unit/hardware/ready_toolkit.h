#pragma once

#include "support/fixture.h"

inline constexpr u32 both = DTKHDDVD_STROKE | DTKHDDVD_FILL;
inline const DFBRectangle box = {8, 9, 20, 10};
inline const std::vector<DFBPoint> triangle = {{5, 6}, {20, 8}, {9, 30}};

/// Primitives on a hardware toolkit, all with the same box and the same triangle.
class HardwarePrimitives : public Fakes {
protected:
    /// A toolkit with a pen; the engine's handle of its target is 102.
    Toolkit ready(u8 stroke_alpha, u8 fill_alpha)
    {
        Toolkit toolkit = hardware_toolkit();
        toolkit->SetStrokeColor(toolkit.get(), 1, 2, 3, stroke_alpha);
        toolkit->SetFillColor(toolkit.get(), 5, 6, 7, fill_alpha);
        fake::surface_named("target").id = 102;
        const DTKHDDVDPenShape shape = {-2, -1, 2, -1, 2, 1, -2, 1};
        DTKHDDVDPen* pen = nullptr;
        toolkit->CreatePen(toolkit.get(), &shape, &pen);
        toolkit->SetPen(toolkit.get(), pen);
        pen->Release(pen);
        calls();
        return toolkit;
    }

    static DFBResult rectangle(const Toolkit& toolkit, u32 flags)
    {
        return toolkit->Rectangle(toolkit.get(), &box, flags);
    }

    static DFBResult ellipse(const Toolkit& toolkit, u32 flags) { return toolkit->Ellipse(toolkit.get(), &box, flags); }

    static DFBResult polygon(const Toolkit& toolkit, u8 closed, u32 flags)
    {
        return toolkit->Polygon(toolkit.get(), triangle.data(), u32(triangle.size()), closed, flags);
    }

    /// Sets a pattern whose handle is 555.
    void set_pattern(const Toolkit& toolkit)
    {
        set_texture(toolkit);
        toolkit->priv->fill_pattern_handle = 555;
    }
};
