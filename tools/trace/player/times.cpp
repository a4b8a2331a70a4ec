#include "times.h"

#include <algorithm>

namespace trace {

namespace {

double median(std::vector<double> values)
{
    if (values.empty())
        return 0;
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// Clear, Flip, and what is made before the drawing begins.
bool is_surroundings(const Call& call)
{
    return call.number() < Number::set_stroke_color;
}

} // namespace

void Times::add_call(const Call& call, double microseconds)
{
    if (call.number() < Number::flip || call.number() == Number::result)
        return;
    Sum& sum = sums_[call.function().name];
    ++sum.count;
    ++call_count_;
    sum.total += microseconds;
    sum.longest = std::max(sum.longest, microseconds);
    current_.all += microseconds;
    if (!is_surroundings(call))
        current_.drawing += microseconds;
}

void Times::end_frame(double waiting)
{
    current_.all += waiting;
    current_.drawing += waiting;
    frames_.push_back(current_);
    current_ = Frame();
}

double Times::median_drawing() const
{
    std::vector<double> values;
    for (const Frame& frame : frames_)
        values.push_back(frame.drawing);
    return median(values);
}

void Times::print() const
{
    std::printf("%-40s%10s%12s%12s%12s\n", "", "calls", "all, us", "mean, us", "longest, us");
    for (const auto& [name, sum] : sums_)
        std::printf("%-40s%10zu%12.0f%12.2f%12.1f\n", name.c_str(), sum.count, sum.total,
                    sum.total / static_cast<double>(sum.count), sum.longest);
    std::vector<double> all;
    double longest = 0;
    for (const Frame& frame : frames_) {
        all.push_back(frame.all);
        longest = std::max(longest, frame.all);
    }
    std::printf("%zu frames: median %.0f us, of it drawing %.0f us; longest %.0f us\n", frames_.size(), median(all),
                median_drawing(), longest);
}

void Times::print_frames(FILE* file) const
{
    std::fputs("frame,microseconds,drawing\n", file);
    for (std::size_t i = 0; i < frames_.size(); ++i)
        std::fprintf(file, "%zu,%.1f,%.1f\n", i + 1, frames_[i].all, frames_[i].drawing);
}

} // namespace trace
