/// The endless frames of test_dtkhd, ended by a Flip that fails.
#ifndef TESTS_UNIT_TEST_DTKHD_FRAMES_H
#define TESTS_UNIT_TEST_DTKHD_FRAMES_H

#include "support/fake_clock.h"
#include "support/fixture.h"

#include <string>

class Frames : public Fakes {
protected:
    Frames();
    ~Frames() override;

    /// Runs the program until its n-th Flip fails.
    Outcome run_frames(int n);

    /// Runs frames on the drawing engine, whose calls are few, and returns those of the last frame.
    std::string last_frame_on_the_engine(int n);
};

#endif
