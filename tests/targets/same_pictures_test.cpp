/// Random scenes by both back ends give the same pixels on every machine. The sums below were made on amd64. A change
/// that draws other pixels on purpose looks at them, in the tests with pictures, and then puts the new sum here.
#include "soak/scene.h"
#include "targets/hash.h"

#include "real/directfb.h"
#include "support/capture.h"
#include "zuvo.h"

#include <gtest/gtest.h>

namespace {

class SamePictures : public testing::Test {
protected:
    ~SamePictures() override { zuvo_uninit(); }

    std::uint64_t draw_scenes() const
    {
        targets::Hash hash;
        const Capture errors(stderr);
        for (unsigned seed = 0; seed < 60; ++seed) {
            const std::uint64_t sum = soak::draw_scene(real::directfb(), target_.get(), texture_.get(), seed);
            EXPECT_NE(sum, 0u) << "scene " << seed << " was not drawn";
            hash.put(sum);
        }
        return hash.sum();
    }

private:
    real::Surface target_ = real::make_surface(640, 360);
    real::Surface texture_ = make_texture();

    static real::Surface make_texture()
    {
        real::Surface texture = real::make_surface(15, 11);
        real::clear(texture, 0x903070c0);
        real::write_pixel(texture, 4, 5, 0xff40ff40);
        real::write_pixel(texture, 11, 2, 0x00ffffff);
        return texture;
    }
};

TEST_F(SamePictures, ComeFromTheSoftwareBackEnd)
{
    zuvo_uninit();
    EXPECT_EQ(draw_scenes(), 5976289029515182809u);
}

TEST_F(SamePictures, ComeFromTheEngine)
{
    zuvo_init(0);
    EXPECT_EQ(draw_scenes(), 4390702634801874046u);
}

} // namespace
