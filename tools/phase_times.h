#ifndef TOOLS_PHASE_TIMES_H
#define TOOLS_PHASE_TIMES_H

namespace tools {

/// How long the phases of test_dtkhd's frames took, added up.
class PhaseTimes {
public:
    /// Adds the frame that has just been shown, which took @p flip microseconds.
    void add_frame(double flip);

    /// Prints the milliseconds of a frame's phases in two lines, on average.
    void print() const;

private:
    static constexpr int count = 9;
    double microseconds_[count] = {};
    int frames_ = 0;
};

} // namespace tools

#endif
