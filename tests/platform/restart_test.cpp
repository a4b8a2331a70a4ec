#include "platform/hosted_session.h"

#include <gtest/gtest.h>

/// DirectFB ends and starts again in one process.

namespace {

TEST(Restart, WorksAHundredTimesWithDrawing)
{
    for (int i = 0; i < 100; ++i) {
        HostedSession session;
        const auto surface = session.make_surface(40, 30);
        ASSERT_EQ(zuvo_dtk_set_output_surface(session.engine, handle_of(surface)), ZUVO_OK);
        ASSERT_EQ(zuvo_dtk_set_fill_color(session.engine, 1, 2, static_cast<u8>(i), 255), ZUVO_OK);
        const DFBRectangle rect = {5, 5, 20, 10};
        ASSERT_EQ(zuvo_dtk_draw_ellipse(session.engine, &rect, 0x30), ZUVO_OK);
        ASSERT_EQ(surface->SetColor(surface.get(), 9, 9, 9, 255), DFB_OK);
        ASSERT_EQ(surface->DrawLine(surface.get(), 0, 0, 39, 29), DFB_OK);
        ASSERT_EQ(read(surface)[10 * 40 + 15], 0xff010200u + static_cast<unsigned>(i));
    }
}

} // namespace
