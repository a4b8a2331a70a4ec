#ifndef BENCH_VERIFY_H
#define BENCH_VERIFY_H

#include <string>

#include "painter.h"

namespace bench {

/// How many pixels a picture has that are not background, and their mean colour.
struct Impression {
    long pixels;
    double red, green, blue;
};

Impression impression(const Picture& picture);

/// What a drawing of a task has to look like.
struct Expectation {
    Impression floor;
    Impression software;
    Picture software_picture;
};

/// Draws the task once on a cleared picture.
Picture draw_once(Painter& painter, const Draw& draw);

/// Compares a drawing with what is expected: about as many pixels as the floor's, of its mean colour.
///
/// @return An empty text, or what is wrong.
std::string compare(const Picture& picture, const Task& task, const Impression& expected);

/// The same for a picture that may also have the mean colour of the software back end, which multiplies a translucent
/// polygon's colour by its alpha twice.
std::string compare_either(const Picture& picture, const Task& task, const Expectation& expectation);

} // namespace bench

#endif
