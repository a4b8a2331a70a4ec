#include "support/fixture.h"

namespace {

constexpr unsigned int engine_handle = 7;

bool contains_one_of(const std::string& line, const std::vector<std::string>& parts)
{
    for (const std::string& part : parts) {
        if (line.find(part) != std::string::npos)
            return true;
    }
    return false;
}

} // namespace

Fakes::Fakes() : screen(fake::new_surface("screen", 64, 48, DSPF_ARGB))
{
    transcript().reset();
    fake::platform() = fake::Platform();
    fake::cairo() = fake::Cairo();
}

Fakes::~Fakes()
{
    transcript().reset();
    fake::forget_surfaces();
}

Toolkit Fakes::software_toolkit(u8 use_scratch_pad)
{
    DTKHDDVD* toolkit = nullptr;
    EXPECT_EQ(CreateDrawingToolkit_HDDVD_SW(&dfb, &screen, use_scratch_pad, &toolkit), 0);
    calls();
    return Toolkit(toolkit);
}

Toolkit Fakes::hardware_toolkit()
{
    fake::platform().engine_handle = engine_handle;
    DTKHDDVD* toolkit = nullptr;
    EXPECT_EQ(CreateDrawingToolkit_HDDVD_HW(&dfb, &screen, 0, &toolkit), 0);
    calls();
    return Toolkit(toolkit);
}

Toolkit Fakes::indexed_toolkit()
{
    dfb.replaced_format = DSPF_LUT8;
    return software_toolkit(1);
}

Pen Fakes::pen(const Toolkit& toolkit, int width, int height)
{
    const DTKHDDVDPenShape shape = {0, 0, width, 0, width, height, 0, height};
    DTKHDDVDPen* made = nullptr;
    EXPECT_EQ(toolkit->CreatePen(toolkit.get(), &shape, &made), 0);
    calls();
    return Pen(made);
}

void Fakes::set_pen(const Toolkit& toolkit, int width, int height)
{
    const Pen made = pen(toolkit, width, height);
    EXPECT_EQ(toolkit->SetPen(toolkit.get(), made.get()), 0);
    calls();
}

void Fakes::set_texture(const Toolkit& toolkit)
{
    fake::Surface& texture = fake::new_surface("texture", 4, 4, DSPF_ARGB);
    EXPECT_EQ(toolkit->SetFillPattern(toolkit.get(), &texture), 0);
    calls();
}

void Fakes::expect_each_failure_reported(const std::string& operation, const std::function<Toolkit()>& prepare,
                                         const std::function<DFBResult(DTKHDDVD*)>& operate,
                                         const std::vector<std::string>& unchecked)
{
    for (int n = 1;; n++) {
        const Toolkit toolkit = prepare();
        const int held_before = held_references(dfb);
        transcript().reset();
        transcript().fail_call(n, refusal);
        const Outcome outcome = run([&] { return operate(toolkit.get()); });
        const std::string failed = transcript().failed_call();
        transcript().reset();

        EXPECT_EQ(held_references(dfb), held_before) << "after a failure of " << failed;
        EXPECT_EQ(batch_n_blits, 0) << "after a failure of " << failed;
        const bool is_reported = !failed.empty() && !contains_one_of(failed, unchecked);
        EXPECT_EQ(outcome.result, is_reported ? refusal : DFB_OK) << "after a failure of " << failed;
        EXPECT_EQ(outcome.error, is_reported ? complaint(operation, refusal_text) : "") << "after " << failed;
        EXPECT_EQ(outcome.output, "");
        drop_pen(toolkit);
        if (failed.empty()) {
            EXPECT_GT(n, 1) << "nothing ever failed";
            return;
        }
    }
}

int held_references(const fake::DirectFB& dfb)
{
    return fake::surface_references() + dfb.references + fake::cairo().live_objects;
}

Outcome run(const std::function<DFBResult()>& operation)
{
    Capture error(stderr);
    Capture output(stdout);
    const DFBResult result = operation();
    return {result, error.text(), output.text()};
}

void drop_pen(const Toolkit& toolkit)
{
    toolkit->SetPen(toolkit.get(), nullptr);
}
