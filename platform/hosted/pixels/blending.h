/**
 * @file blending.h
 * The arithmetic of DirectFB's renderer, written once for a vector of pixels: of 16 or 32 bytes, or of 4 bytes, one
 * pixel.
 *
 * A pixel is seen as two 16-bit lanes: blue and red in their low bytes, green and alpha in the high ones. No product of
 * two channels exceeds 16 bits.
 */
#ifndef ZUVO_ACCEL_BLENDING_H
#define ZUVO_ACCEL_BLENDING_H

#include <stddef.h>
#include <stdint.h>
#include <string.h>

// Each file that includes this compiles it for its own processor.
namespace {

template <size_t Bytes>
struct Vector {
    typedef uint32_t Pixels __attribute__((vector_size(Bytes)));
    typedef uint16_t Lanes __attribute__((vector_size(Bytes)));
    typedef int16_t SignedLanes __attribute__((vector_size(Bytes)));

    static constexpr size_t count = Bytes / sizeof(uint32_t);
};

using Single = Vector<sizeof(uint32_t)>;

template <class V>
inline typename V::Pixels load(const uint32_t* pixels)
{
    typename V::Pixels loaded;
    memcpy(&loaded, pixels, sizeof(loaded));
    return loaded;
}

template <class V>
inline void store(uint32_t* target, typename V::Pixels pixels)
{
    memcpy(target, &pixels, sizeof(pixels));
}

/// Each pixel's alpha in both of its lanes.
template <class V>
inline typename V::Lanes alpha_of(typename V::Pixels pixels)
{
    const typename V::Pixels alpha = pixels >> 24;
    return (typename V::Lanes)(alpha | alpha << 16);
}

/// The pixels' channels times @p factors, of which 256 is one.
template <class V>
inline typename V::Pixels scale(typename V::Pixels pixels, typename V::Lanes factors)
{
    const auto lanes = (typename V::Lanes)pixels;
    return (typename V::Pixels)(((lanes & 0xff) * factors >> 8) | ((lanes >> 8) * factors & 0xff00));
}

/// Without vectors, both lanes in one multiplication. The factor is the same for both.
template <>
inline Single::Pixels scale<Single>(Single::Pixels pixels, Single::Lanes factors)
{
    const uint32_t lanes = 0x00ff00ff, pixel = pixels[0], factor = factors[0];
    return Single::Pixels{} + (((pixel & lanes) * factor >> 8 & lanes) | ((pixel >> 8 & lanes) * factor & ~lanes));
}

/// What a source adds to a target, and of which part of 256 the target is left.
template <class V>
inline typename V::Pixels scaled_source(typename V::Pixels source)
{
    return scale<V>(source, alpha_of<V>(source) + 1);
}

template <class V>
inline typename V::Lanes rest_of(typename V::Pixels source)
{
    return 256 - alpha_of<V>(source);
}

template <class V>
inline typename V::Pixels blended(typename V::Pixels source, typename V::Pixels target)
{
    return scaled_source<V>(source) + scale<V>(target, rest_of<V>(source));
}

/// A source that is the same for every pixel.
class ConstantSource {
public:
    explicit ConstantSource(uint32_t colour)
        : scaled_(scaled_source<Single>(Single::Pixels{} + colour)[0]),
          rest_(static_cast<uint16_t>(256 - (colour >> 24)))
    {
    }

    template <class V>
    typename V::Pixels blended(typename V::Pixels target) const
    {
        return scale<V>(target, typename V::Lanes{} + rest_) + scaled_;
    }

private:
    uint32_t scaled_;
    uint16_t rest_;
};

/// One channel of each lane, in the low byte: the way from @p onto to @p from, of which 128 @p steps are the whole.
template <class V>
inline typename V::Lanes approach(typename V::Lanes from, typename V::Lanes onto, typename V::SignedLanes steps)
{
    const auto way = (typename V::SignedLanes)(from - onto) * steps >> 7;
    return onto + (typename V::Lanes)way;
}

/// Onto pixels without alpha.
template <class V>
inline typename V::Pixels blended_rgb32(typename V::Pixels source, typename V::Pixels target)
{
    const auto steps = (typename V::SignedLanes)((alpha_of<V>(source) >> 1) + 1);
    const auto from = (typename V::Lanes)source, onto = (typename V::Lanes)target;
    const auto red_blue = approach<V>(from & 0xff, onto & 0xff, steps);
    const auto green = approach<V>(from >> 8, onto >> 8, steps);
    return (typename V::Pixels)(red_blue | green << 8) & 0x00ffffff;
}

} // namespace

#endif
