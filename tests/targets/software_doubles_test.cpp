/// What the library computes in doubles, counted on a target that computes them in software.
#include "real/directfb.h"
#include "support/capture.h"
#include "targets/counted_doubles.h"
#include "zuvo.h"

#include <cstdio>
#include <functional>
#include <gtest/gtest.h>

namespace {

constexpr u32 both = DTKHDDVD_FILL | DTKHDDVD_STROKE;

/// A toolkit with a texture at hand.
class Desk {
public:
    explicit Desk(int width = 320, int height = 240) : target_(real::make_surface(width, height))
    {
        EXPECT_EQ(CreateDrawingToolkit_HDDVD(real::directfb(), target_.get(), 1, &toolkit_), 0);
    }
    ~Desk()
    {
        toolkit_->SetPen(toolkit_, nullptr);
        toolkit_->Release(toolkit_);
    }
    Desk(const Desk&) = delete;
    Desk& operator=(const Desk&) = delete;

    void use_pen(int size) const
    {
        const DTKHDDVDPenShape shape = real::rectangular_pen(size, size);
        DTKHDDVDPen* pen = nullptr;
        ASSERT_EQ(toolkit_->CreatePen(toolkit_, &shape, &pen), 0);
        toolkit_->SetPen(toolkit_, pen);
        pen->Release(pen);
    }
    void use_texture() const { EXPECT_EQ(toolkit_->SetFillPattern(toolkit_, texture_.get()), 0); }

    DTKHDDVD* toolkit() const { return toolkit_; }

private:
    real::Surface target_;
    real::Surface texture_ = real::make_surface(7, 5);
    DTKHDDVD* toolkit_ = nullptr;
};

/// Counts the operations of one drawing and prints them as a row of a table.
unsigned long count(const std::string& what, const std::function<DFBResult()>& draw)
{
    const unsigned long before = targets::counted_doubles();
    EXPECT_EQ(draw(), 0) << what;
    const unsigned long operations = targets::counted_doubles() - before;
    std::printf("| %s | %lu |\n", what.c_str(), operations);
    return operations;
}

std::string size_of(const DFBRectangle& box)
{
    return std::to_string(box.w) + " x " + std::to_string(box.h);
}

unsigned long rectangle(const Desk& desk, const std::string& what, const DFBRectangle& box, u32 flags)
{
    return count(what + " " + size_of(box), [&] { return desk.toolkit()->Rectangle(desk.toolkit(), &box, flags); });
}

unsigned long ellipse(const Desk& desk, const std::string& what, const DFBRectangle& box, u32 flags)
{
    return count(what + " " + size_of(box), [&] { return desk.toolkit()->Ellipse(desk.toolkit(), &box, flags); });
}

/// A fan of corners in a square.
unsigned long polygon(const Desk& desk, const std::string& what, int corners, int size)
{
    std::vector<DFBPoint> points;
    for (int i = 0; i < corners; ++i)
        points.push_back({i * size / corners, i % 2 ? size : i * 7 % size});
    return count(what + " of " + std::to_string(corners) + " corners in " + std::to_string(size) + " pixels", [&] {
        return desk.toolkit()->Polygon(desk.toolkit(), points.data(), static_cast<u32>(corners), 1, DTKHDDVD_FILL);
    });
}

constexpr DFBRectangle small_box = {10, 10, 30, 20};
constexpr DFBRectangle large_box = {10, 10, 280, 200};

} // namespace

TEST(SoftwareDoubles, AreNotUsedForLinesColoursAndOutlines)
{
    const Desk desk;
    for (const char* pen : {"thin", "5 x 5 pen"}) {
        const std::string with = std::string(", ") + pen + ",";
        for (const DFBRectangle& box : {small_box, large_box}) {
            EXPECT_EQ(count("line" + with + " to " + size_of(box),
                            [&] { return desk.toolkit()->Line(desk.toolkit(), 3, 4, box.w, box.h); }), 0u);
            EXPECT_EQ(rectangle(desk, "rectangle and outline" + with, box, both), 0u);
            EXPECT_EQ(ellipse(desk, "ellipse and outline" + with, box, both), 0u);
        }
        desk.use_pen(5);
    }
    desk.toolkit()->SetFillColor(desk.toolkit(), 1, 2, 3, 100);
    EXPECT_EQ(rectangle(desk, "translucent rectangle", large_box, both), 0u);
    EXPECT_EQ(ellipse(desk, "translucent ellipse", large_box, both), 0u);
}

TEST(SoftwareDoubles, AreNotUsedForAnyScreen)
{
    const Desk desk;
    for (const DFBRectangle& box : {DFBRectangle{0, 0, 1920, 1080}, {0, 0, 3840, 2160}, {0, 0, 8190, 8190}})
        EXPECT_EQ(ellipse(desk, "ellipse", box, DTKHDDVD_FILL), 0u);
}

TEST(SoftwareDoubles, HandFewNumbersToCairo)
{
    const Desk desk;
    const unsigned long three = polygon(desk, "polygon", 3, 20), four = polygon(desk, "polygon", 4, 20);
    EXPECT_GT(four, three);
    EXPECT_EQ(polygon(desk, "polygon", 3, 200), three) << "pixels cost nothing";
    EXPECT_EQ(polygon(desk, "polygon", 12, 200), three + 9 * (four - three)) << "corners cost alike";

    desk.use_texture();
    const unsigned long textured = polygon(desk, "textured polygon", 3, 20);
    EXPECT_EQ(polygon(desk, "textured polygon", 3, 200), textured);
    EXPECT_EQ(rectangle(desk, "textured rectangle", small_box, DTKHDDVD_FILL),
              rectangle(desk, "textured rectangle", large_box, DTKHDDVD_FILL));
    EXPECT_EQ(ellipse(desk, "textured ellipse", small_box, DTKHDDVD_FILL),
              ellipse(desk, "textured ellipse", large_box, DTKHDDVD_FILL));
}

/// Ellipses of more than 2^26 pixels are walked in doubles.
TEST(SoftwareDoubles, GrowWithTheStepsOfTheLargestEllipses)
{
    const Desk desk, large_desk(1000, 700);
    const unsigned long once = ellipse(desk, "ellipse", {0, 0, 10000, 10000}, DTKHDDVD_FILL);
    const unsigned long twice = ellipse(desk, "ellipse", {0, 0, 20000, 20000}, DTKHDDVD_FILL);
    EXPECT_GT(once, 0u);
    EXPECT_NEAR(double(twice) / double(once), 2, 0.01) << "twice the steps, four times the pixels";
    EXPECT_EQ(ellipse(large_desk, "ellipse on a larger surface,", {0, 0, 10000, 10000}, DTKHDDVD_FILL), once)
        << "the pixels that are stored cost nothing";
    EXPECT_GT(ellipse(desk, "ellipse outline", {0, 0, 10000, 10000}, DTKHDDVD_STROKE), 0u);
}

TEST(SoftwareDoubles, AreTheEnginesAffair)
{
    zuvo_init(0);
    const Desk desk;
    desk.use_pen(5);
    EXPECT_EQ(rectangle(desk, "rectangle and outline, engine,", large_box, both), 0u);
    EXPECT_EQ(ellipse(desk, "ellipse and outline, engine,", large_box, both), 0u);
    EXPECT_EQ(polygon(desk, "polygon, engine,", 12, 200), 0u);
    zuvo_uninit();
}
