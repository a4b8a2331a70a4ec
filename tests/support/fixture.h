#pragma once

#include "support/capture.h"
#include "support/fake_cairo.h"
#include "support/fake_directfb.h"
#include "support/fake_engine.h"
#include "support/fake_surface.h"
#include "support/transcript.h"
#include "toolkit/records.h"

#include <dtkhddvd.h>
#include <functional>
#include <gmock/gmock.h>
#include <memory>

using fake::calls;
using fake::calls_with;
using fake::transcript;

/// A result that DirectFB and the engine answer when a test wants a failure, and its text.
constexpr DFBResult refusal = DFB_BUSY;
constexpr char refusal_text[] = "The resource or device is busy";

/// The library's own results as numbers, as the contract states them.
constexpr DFBResult own_failure = DFBResult(1);
constexpr DFBResult no_memory = DFBResult(2);
constexpr DFBResult thiz_null = DFBResult(20);

/// What a person reads for own_failure and for no_memory. DirectFB 1.7 and DirectFB2 spell it differently.
inline const char* const own_failure_text = DirectFBErrorString(DFB_FAILURE);
inline const char* const no_memory_text = DirectFBErrorString(DFB_INIT);

template <class Interface>
struct ReleaseInterface {
    void operator()(Interface* object) const { object->Release(object); }
};

using Toolkit = std::unique_ptr<DTKHDDVD, ReleaseInterface<DTKHDDVD>>;
using Pen = std::unique_ptr<DTKHDDVDPen, ReleaseInterface<DTKHDDVDPen>>;

/// One line of standard error: "error in OPERATION: TEXT\n".
inline std::string complaint(const std::string& operation, const std::string& reason)
{
    return "error in " + operation + ": " + reason + "\n";
}

/// A world of fakes: DirectFB, a 64 x 48 ARGB screen and a platform, without an engine unless a test sets one.
class Fakes : public testing::Test {
protected:
    Fakes();
    ~Fakes() override;

    Toolkit software_toolkit(u8 use_scratch_pad);
    Toolkit hardware_toolkit();

    /// A software toolkit whose scratch pad is an 8-bit surface.
    Toolkit indexed_toolkit();

    /// A pen of that size, not yet set. The transcript starts afresh.
    Pen pen(const Toolkit& toolkit, int width, int height);

    /// Makes a pen of that size current; the toolkit alone holds it.
    void set_pen(const Toolkit& toolkit, int width, int height);

    /// A 4 x 4 texture, set as the toolkit's fill pattern.
    void set_texture(const Toolkit& toolkit);

    /// Lets the first, the second, the third ... call of an operation fail until none is left. Each time the result
    /// must be answered unchanged and printed once, and whatever the operation took be given back; but nobody looks
    /// at the results of the calls in `unchecked`: "Unlock" names all calls that contain it, "pen.GetSize() #1" one.
    void expect_each_failure_reported(const std::string& operation, const std::function<Toolkit()>& prepare,
                                      const std::function<DFBResult(DTKHDDVD*)>& operate,
                                      const std::vector<std::string>& unchecked = {});

    fake::DirectFB dfb;
    fake::Surface& screen;
};

/// What an operation did: its result and what it wrote to the two standard streams.
struct Outcome {
    DFBResult result;
    std::string error;
    std::string output;
};

/// Runs an operation with standard error and standard output caught.
Outcome run(const std::function<DFBResult()>& operation);

/// How many references are held on surfaces, palettes, DirectFB and cairo objects.
int held_references(const fake::DirectFB& dfb);

/// Gives back the pen that a toolkit holds, which its Release leaves alone.
void drop_pen(const Toolkit& toolkit);
