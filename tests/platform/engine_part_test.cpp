#include "platform/hosted_session.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <memory>

/// Parts of surfaces, as GetSubSurface makes them, as the engine's target and texture.

namespace {

struct Parts : testing::Test {
    HostedSession session;
    HostedSession::Surface whole = session.make_surface(12, 8);

    static HostedSession::Surface part(const HostedSession::Surface& parent, const DFBRectangle& rect)
    {
        IDirectFBSurface* surface = nullptr;
        EXPECT_EQ(parent->GetSubSurface(parent.get(), &rect, &surface), DFB_OK);
        return HostedSession::Surface(surface);
    }

    /// Fills a box on the target.
    int fill(unsigned int target, const DFBRectangle& rect)
    {
        if (int error = zuvo_dtk_set_output_surface(session.engine, target))
            return error;
        zuvo_dtk_set_fill_color(session.engine, 1, 2, 3, 255);
        return zuvo_dtk_draw_rectangle(session.engine, &rect, 0x30);
    }
};

TEST_F(Parts, HaveHandlesOfTheirOwn)
{
    DFBSurfaceID id = 0;
    whole->GetID(whole.get(), &id);
    EXPECT_EQ(handle_of(whole), id) << "a whole surface is known by its id";

    const auto left = part(whole, {0, 0, 6, 8}), right = part(whole, {6, 0, 6, 8}), again = part(whole, {0, 0, 6, 8});
    EXPECT_NE(handle_of(left), id);
    EXPECT_NE(handle_of(left), handle_of(right));
    EXPECT_EQ(handle_of(left), handle_of(again));
    EXPECT_EQ(handle_of(left), handle_of(left));

    IDirectFBSurface* all = nullptr;
    ASSERT_EQ(whole->GetSubSurface(whole.get(), nullptr, &all), DFB_OK);
    EXPECT_EQ(handle_of(HostedSession::Surface(all)), id);
    ASSERT_EQ(left->GetSubSurface(left.get(), nullptr, &all), DFB_OK);
    EXPECT_EQ(handle_of(HostedSession::Surface(all)), handle_of(left));
}

TEST_F(Parts, AreDrawnOnFromTheirOwnCorners)
{
    const auto middle = part(whole, {3, 2, 6, 4});
    ASSERT_EQ(fill(handle_of(middle), {1, 1, 2, 100}), ZUVO_OK);
    EXPECT_EQ(text_of(whole), "............\n............\n............\n....##......\n....##......\n....##......\n"
                              "............\n............\n");
}

TEST_F(Parts, OfPartsAreCutToAllTheirParents)
{
    const auto middle = part(whole, {3, 2, 6, 4});
    const auto inner = part(middle, {-1, 1, 4, 10});
    ASSERT_EQ(fill(handle_of(inner), {-5, 0, 100, 100}), ZUVO_OK);
    EXPECT_EQ(text_of(whole), "............\n............\n............\n...###......\n...###......\n...###......\n"
                              "............\n............\n");
}

TEST_F(Parts, ThatReachPastTheirParentAreCut)
{
    const auto corner = part(whole, {-2, -3, 5, 5});
    ASSERT_EQ(fill(handle_of(corner), {0, 0, 4, 5}), ZUVO_OK);
    const auto other = part(whole, {9, 6, 5, 5});
    ASSERT_EQ(fill(handle_of(other), {1, 0, 4, 4}), ZUVO_OK);
    EXPECT_EQ(text_of(whole), "##..........\n##..........\n............\n............\n............\n............\n"
                              "..........##\n..........##\n");
}

TEST_F(Parts, WithoutPixelsAreRefused)
{
    const auto outside = part(whole, {50, 50, 5, 5});
    EXPECT_EQ(fill(handle_of(outside), {0, 0, 4, 5}), ZUVO_LOCK_FAILED);
}

TEST_F(Parts, AreTextures)
{
    auto texture = session.make_surface(6, 4);
    ASSERT_EQ(fill(handle_of(texture), {3, 1, 1, 2}), ZUVO_OK);
    const auto tile = part(texture, {2, 1, 3, 2});
    ASSERT_EQ(zuvo_dtk_set_output_surface(session.engine, handle_of(whole)), ZUVO_OK);
    ASSERT_EQ(zuvo_dtk_set_fill_pattern(session.engine, handle_of(tile)), ZUVO_OK);
    const DFBRectangle rect = {1, 1, 6, 3};
    ASSERT_EQ(zuvo_dtk_draw_rectangle(session.engine, &rect, 0x30), ZUVO_OK);
    EXPECT_EQ(text_of(whole), "............\n..#..#......\n..#..#......\n..#..#......\n............\n............\n"
                              "............\n............\n");
}

TEST_F(Parts, OfOneSurfaceAreTexturesOfEachOtherUnlessTheyOverlap)
{
    const auto left = part(whole, {0, 0, 6, 8}), right = part(whole, {6, 0, 6, 8}), middle = part(whole, {4, 0, 4, 8});
    ASSERT_EQ(fill(handle_of(left), {1, 0, 1, 8}), ZUVO_OK);
    const DFBRectangle rect = {0, 0, 6, 2};
    ASSERT_EQ(zuvo_dtk_set_output_surface(session.engine, handle_of(right)), ZUVO_OK);
    ASSERT_EQ(zuvo_dtk_set_fill_pattern(session.engine, handle_of(left)), ZUVO_OK);
    EXPECT_EQ(zuvo_dtk_draw_rectangle(session.engine, &rect, 0x30), ZUVO_OK);
    EXPECT_EQ(text_of(whole).substr(0, 26), ".#.....#....\n.#.....#....\n");
    for (const unsigned int pattern : {handle_of(middle), handle_of(whole), handle_of(right)}) {
        ASSERT_EQ(zuvo_dtk_set_fill_pattern(session.engine, pattern), ZUVO_OK);
        EXPECT_EQ(zuvo_dtk_draw_rectangle(session.engine, &rect, 0x30), ZUVO_PATTERN_IS_OUTPUT);
    }
}

TEST_F(Parts, AreGoneWithTheirSurface)
{
    auto surface = session.make_surface(5, 5);
    auto corner = part(surface, {1, 1, 2, 2});
    const unsigned int handle = handle_of(corner);
    EXPECT_EQ(fill(handle, {0, 0, 1, 1}), ZUVO_OK);
    corner.reset();
    surface.reset();
    EXPECT_EQ(fill(handle, {0, 0, 1, 1}), ZUVO_NO_SUCH_SURFACE);
    zuvo_dtk_set_output_surface(session.engine, handle_of(whole));
    EXPECT_EQ(fill(0x80000000u | 0x7fffffffu, {0, 0, 1, 1}), ZUVO_NO_SUCH_SURFACE);
}

TEST_F(Parts, OfSurfacesThatAreGoneLeaveRoomForOthers)
{
    const auto kept = part(whole, {1, 1, 2, 2});
    const unsigned int handle = handle_of(kept);
    unsigned int greatest = 0;
    for (int i = 0; i < 2000; ++i) {
        const auto surface = session.make_surface(5, 5);
        for (int x = 0; x < 3; ++x)
            greatest = std::max(greatest, handle_of(part(surface, {x, 1, 2, 2})) & 0xffff);
    }
    EXPECT_LT(greatest, 200u);
    EXPECT_EQ(handle_of(kept), handle);
    EXPECT_EQ(fill(handle, {0, 0, 1, 1}), ZUVO_OK);
}

TEST_F(Parts, AreAskedForInDirectFBsOwnInterfacesAlone)
{
    // All but one slot of it leads nowhere.
    IDirectFBSurface foreign;
    std::fill_n(reinterpret_cast<unsigned char*>(&foreign), sizeof foreign, static_cast<unsigned char>(0xa5));
    static unsigned int* asked;
    foreign.GetID = [](IDirectFBSurface*, DFBSurfaceID* ret_id) {
        asked = ret_id;
        *ret_id = 77;
        return DFB_OK;
    };
    unsigned int handle = 0;
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(zuvo_dtk_get_part_handle(&foreign, &handle), DFB_UNSUPPORTED);
        EXPECT_EQ(handle, 0u);
        handle_of(part(whole, {1, 1, 2, 2})); // By now DirectFB's own slot is known.
    }
    EXPECT_EQ(zuvo_dtk_surface_handle(&foreign, &handle), DFB_OK);
    EXPECT_EQ(handle, 77u);
    EXPECT_EQ(asked, &handle);
}

} // namespace
