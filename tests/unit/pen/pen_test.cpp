#include "support/fixture.h"

namespace {

const DTKHDDVDPenShape square = {-2, -2, 2, -2, 2, 2, -2, 2};

class PenObject : public Fakes {
protected:
    Pen create(const Toolkit& toolkit)
    {
        DTKHDDVDPen* made = nullptr;
        EXPECT_EQ(DTKHDDVD_CreatePen(toolkit.get(), &square, &made), 0);
        return Pen(made);
    }
};

TEST_F(PenObject, OfSoftwareIsRenderedAndKeyed)
{
    const Toolkit toolkit = software_toolkit(0);
    const Pen pen = create(toolkit);
    const std::string all = calls();
    EXPECT_EQ(all.substr(all.rfind("alpha.Release")), "alpha.Release()\npen.SetSrcColorKeyIndex(2)\n");

    const DTKHDDVDPen_data& data = *pen->priv;
    EXPECT_EQ(data.ref_count, 1u);
    EXPECT_EQ(data.surface, &fake::surface_named("pen"));
    EXPECT_EQ(data.surface->magic, 0);
    EXPECT_EQ(data.width, 0);
    EXPECT_EQ(data.height, 0);
    EXPECT_EQ(data.color, 0u);
    EXPECT_EQ(fake::surface_named("pen").references, 1);
    EXPECT_EQ(fake::surface_named("alpha").references, 0);
}

TEST_F(PenObject, OfSoftwareHasNoShapeSlot)
{
    const Toolkit toolkit = software_toolkit(0);
    const Pen pen = create(toolkit);
    EXPECT_EQ(pen->magic, 0u);
    EXPECT_EQ(pen->AddRef, &DTKHDDVDPen_AddRef);
    EXPECT_EQ(pen->Release, &DTKHDDVDPen_Release);
    EXPECT_EQ(pen->GetSize, &DTKHDDVDPen_GetSize);
    EXPECT_EQ(pen->GetSurface, &DTKHDDVDPen_GetSurface);
    EXPECT_EQ(pen->GetShape, nullptr);
}

TEST_F(PenObject, OfSoftwareTellsAShapeOfZeros)
{
    const Toolkit toolkit = software_toolkit(0);
    const Pen pen = create(toolkit);
    const DTKHDDVDPenShape* shape = nullptr;
    EXPECT_EQ(DTKHDDVDPen_GetShape(pen.get(), &shape), 0);
    EXPECT_EQ(shape, &pen->priv->shape);
    const int* words = &shape->x0;
    EXPECT_THAT(std::vector<int>(words, words + 8), testing::Each(0));
}

TEST_F(PenObject, OfSoftwareHasTheSizeOfItsSurface)
{
    const Toolkit toolkit = software_toolkit(0);
    const Pen pen = create(toolkit);
    int width = 0, height = 0;
    EXPECT_EQ(pen->GetSize(pen.get(), &width, &height), 0);
    EXPECT_EQ(width, 4);
    EXPECT_EQ(height, 4);
    transcript().fail_every("pen.GetSize", refusal);
    EXPECT_EQ(pen->GetSize(pen.get(), &width, &height), refusal);
}

TEST_F(PenObject, OfSoftwareHandsOutItsSurfaceWithAReference)
{
    const Toolkit toolkit = software_toolkit(0);
    const Pen pen = create(toolkit);
    IDirectFBSurface* surface = nullptr;
    EXPECT_EQ(pen->GetSurface(pen.get(), &surface), 0);
    EXPECT_EQ(surface, &fake::surface_named("pen"));
    EXPECT_EQ(fake::surface_named("pen").references, 2);
    surface->Release(surface);
}

TEST_F(PenObject, OfHardwareKeepsItsShapeAndSize)
{
    const Toolkit toolkit = hardware_toolkit();
    const Pen pen = create(toolkit);
    EXPECT_EQ(calls(), "\n") << "no surface is made";
    EXPECT_EQ(pen->GetShape, &DTKHDDVDPen_GetShape);
    EXPECT_EQ(pen->priv->surface, nullptr);
    EXPECT_EQ(pen->priv->color, 0xFF00FFFFu);
    EXPECT_EQ(pen->priv->ref_count, 1u);

    int width = 0, height = 0;
    EXPECT_EQ(pen->GetSize(pen.get(), &width, &height), 0);
    EXPECT_EQ(width, 5);
    EXPECT_EQ(height, 5);
    const DTKHDDVDPenShape* shape = nullptr;
    EXPECT_EQ(pen->GetShape(pen.get(), &shape), 0);
    const int* words = &shape->x0;
    EXPECT_THAT(std::vector<int>(words, words + 8), testing::ElementsAre(-2, -2, 2, -2, 2, 2, -2, 2));
}

TEST_F(PenObject, OfHardwareLeavesTheCallersSurfaceAlone)
{
    const Toolkit toolkit = hardware_toolkit();
    const Pen pen = create(toolkit);
    IDirectFBSurface* surface = &screen;
    EXPECT_EQ(pen->GetSurface(pen.get(), &surface), 0);
    EXPECT_EQ(surface, &screen);
}

TEST_F(PenObject, AnswersInTheMannerOfThePlatform)
{
    const Toolkit toolkit = software_toolkit(0);
    const Pen pen = create(toolkit);
    fake::platform().engine_handle = 7;
    int width = -1, height = -1;
    EXPECT_EQ(pen->GetSize(pen.get(), &width, &height), 0);
    EXPECT_EQ(width, 0);
    EXPECT_EQ(height, 0);
    IDirectFBSurface* surface = nullptr;
    EXPECT_EQ(pen->GetSurface(pen.get(), &surface), 0);
    EXPECT_EQ(surface, nullptr);
}

TEST_F(PenObject, OfHardwareHasNoSizeOnceThePlatformSaysSoftware)
{
    const Toolkit toolkit = hardware_toolkit();
    const Pen pen = create(toolkit);
    fake::platform().engine_handle = 0;
    int width = 0, height = 0;
    EXPECT_EQ(pen->GetSize(pen.get(), &width, &height), thiz_null);
}

TEST_F(PenObject, AsksThePlatformOnceForEachAnswer)
{
    const Toolkit toolkit = software_toolkit(0);
    const Pen pen = create(toolkit);
    fake::platform().handle_queries = 0;
    int width, height;
    pen->GetSize(pen.get(), &width, &height);
    EXPECT_EQ(fake::platform().handle_queries, 1);
}

TEST_F(PenObject, LivesUntilItsLastRelease)
{
    const Toolkit toolkit = software_toolkit(0);
    DTKHDDVDPen* pen = create(toolkit).release();
    calls();
    EXPECT_EQ(pen->AddRef(pen), 0);
    EXPECT_EQ(pen->priv->ref_count, 2u);
    EXPECT_EQ(pen->Release(pen), 0);
    EXPECT_EQ(calls(), "\n");
    EXPECT_EQ(pen->Release(pen), 0);
    EXPECT_EQ(calls(), "\npen.Release()\n");
}

TEST_F(PenObject, RefusesANullInterface)
{
    const Outcome outcome = run([] {
        DTKHDDVDPen* pen = nullptr;
        int width, height;
        IDirectFBSurface* surface = nullptr;
        const DTKHDDVDPenShape* shape = nullptr;
        for (unsigned int handle : {0u, 7u}) {
            fake::platform().engine_handle = handle;
            EXPECT_EQ(DTKHDDVDPen_GetSize(nullptr, &width, &height), thiz_null);
            EXPECT_EQ(DTKHDDVDPen_GetSurface(nullptr, &surface), thiz_null);
        }
        EXPECT_EQ(DTKHDDVDPen_AddRef(nullptr), thiz_null);
        EXPECT_EQ(DTKHDDVDPen_Release(nullptr), thiz_null);
        EXPECT_EQ(DTKHDDVDPen_GetShape(nullptr, &shape), thiz_null);
        EXPECT_EQ(DTKHDDVDPen_GetSize_SW(nullptr, &width, &height), thiz_null);
        EXPECT_EQ(DTKHDDVDPen_GetSize_HW(nullptr, &width, &height), thiz_null);
        EXPECT_EQ(DTKHDDVDPen_GetSurface_SW(nullptr, &surface), thiz_null);
        EXPECT_EQ(DTKHDDVDPen_GetSurface_HW(nullptr, &surface), thiz_null);
        EXPECT_EQ(DTKHDDVD_CreatePen_SW(nullptr, &square, &pen), thiz_null);
        EXPECT_EQ(DTKHDDVD_CreatePen_HW(nullptr, &square, &pen), thiz_null);
        return DTKHDDVD_SetPen_SW(nullptr, nullptr);
    });
    EXPECT_EQ(outcome.result, thiz_null);
    EXPECT_EQ(outcome.error, "");
}

std::string size_of(const DTKHDDVDPenShape& shape)
{
    int width = -1, height = -1;
    ComputeSize(&shape, &width, &height);
    return fake::text("%d x %d", width, height);
}

TEST(PenSize, CountsBothEnds)
{
    EXPECT_EQ(size_of(square), "5 x 5");
    EXPECT_EQ(size_of({3, 3, 3, 3, 3, 3, 3, 3}), "1 x 1");
    EXPECT_EQ(size_of({0, 0, 3, 0, 3, 0, 0, 0}), "4 x 1");
    EXPECT_EQ(size_of({0, 7, 1, -2, 5, 0, 9, 4}), "10 x 10");
}

TEST(PenSize, TurnsAnOverflowPositive)
{
    EXPECT_EQ(size_of({-2147483647, 0, 2147483647, 0, 0, 0, 0, 0}), "1 x 1");
    EXPECT_EQ(size_of({-2000000000, 0, 2000000000, 0, 0, 0, 0, 0}), "294967295 x 1");
}

} // namespace
