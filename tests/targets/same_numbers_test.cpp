/// The ellipse walk computes the same doubles and the same points on every machine. The sums below were made on amd64;
/// all that is hashed has the same size and byte order on each target.
#include "geometry/ellipse_walk.h"
#include "support/fixture.h"
#include "support/picture.h"
#include "targets/hash.h"

namespace {

using fake::Random;
using targets::Hash;

Hash decisions;

/// A double that puts its bits into the hash when it is held against zero, which the walk does with its decision value.
class Traced {
public:
    Traced(long long value) : value_(static_cast<double>(value)) {}
    Traced(int value) : value_(value) {}

    friend Traced operator+(Traced one, Traced other) { return Traced(one.value_ + other.value_); }
    friend Traced operator-(Traced one, Traced other) { return Traced(one.value_ - other.value_); }
    friend Traced operator*(Traced one, Traced other) { return Traced(one.value_ * other.value_); }
    friend bool operator>(Traced one, Traced other) { return one.value_ > other.value_; }
    friend Traced operator/(Traced one, Traced other) { return Traced(one.value_ / other.value_); }
    Traced operator-() const { return Traced(-value_); }
    void operator+=(Traced other) { value_ += other.value_; }
    void operator-=(Traced other) { value_ -= other.value_; }

    bool operator<(int zero) const { return decision(value_) < zero; }
    bool operator<=(int zero) const { return decision(-value_) >= zero; }

private:
    explicit Traced(double value) : value_(value) {}

    /// The walk carries a quarter of it along. A zero has no sign.
    static double decision(double quarter)
    {
        decisions.put(4 * quarter + 0.0);
        return quarter;
    }

    double value_;
};

/// Boxes from a few pixels to those of which a double holds only the upper half of each product.
DFBRectangle any_box(Random& random)
{
    const int longest = 16 << random.between(0, 12);
    const int x = random.between(-longest, longest), y = random.between(-longest, longest);
    const int w = random.between(1, longest);
    return {x, y, w, random.between(1, longest)};
}

Hash stamped;

DFBResult hash_points(IDirectFBSurface*, IDirectFBSurface*, const DFBRectangle*, const DFBPoint* points, int count)
{
    for (int i = 0; i < count; ++i)
        stamped.put(points[i]);
    return DFB_OK;
}

class SameNumbers : public Fakes {};

TEST_F(SameNumbers, AreTheDecisionValuesOfTheWalk)
{
    Random random(50);
    decisions = Hash();
    for (int i = 0; i < 100; ++i) {
        const DFBRectangle box = any_box(random);
        geometry::walk_quarter_in<Traced>({box.w, box.h + 1LL, box.h + 1LL}, [](long long, long long, bool) {},
                                     [](long long, long long, long long) {});
        geometry::walk_quarter_in<Traced>({box.w, box.h, 2LL * (box.h / 2)}, [](long long, long long, bool) {},
                                     [](long long, long long, long long) {});
    }
    EXPECT_EQ(decisions.sum(), 16441813188718874275u);
}

TEST_F(SameNumbers, AreThePointsOfTheOutline)
{
    fake::Surface& brush = fake::new_surface("brush", 1, 1, DSPF_LUT8);
    screen.BatchBlit = hash_points;
    Random random(51);
    stamped = Hash();
    for (int i = 0; i < 300; ++i) {
        const DFBRectangle box = any_box(random);
        EXPECT_EQ(stamp_ellipse(&screen, &box, &brush), 0);
    }
    EXPECT_EQ(stamped.sum(), 8062459573740935977u);
}

} // namespace
