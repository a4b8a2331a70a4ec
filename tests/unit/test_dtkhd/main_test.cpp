#include "support/fixture.h"

#include <dlfcn.h>

/// The library's main, around a test_dtkhd of this program's own.

DFBResult test_dtkhd(IDirectFB*, IDirectFBSurface* surface)
{
    return transcript().call("test_dtkhd(dfb, " + fake::name_of(surface) + ")");
}

namespace {

class Main : public Fakes {
protected:
    Main() : layer(&screen)
    {
        dfb.layer = &layer;
        fake::platform().directfb = &dfb;
        fake::platform().layer_id = 3;
        fake::platform().video_format = 9;
    }

    /// Runs the main of the library, which this program's own main hides.
    static Outcome run_main()
    {
        using MainFunction = int (*)(int, char**);
        void* library = dlopen("libdtkhddvd.so.1", RTLD_NOW | RTLD_NOLOAD);
        const auto library_main = reinterpret_cast<MainFunction>(dlsym(library, "main"));
        char name[] = "program", word[] = "--word";
        char* words[] = {name, word, nullptr};
        const Outcome outcome = run([&] { return DFBResult(library_main(2, words)); });
        dlclose(library);
        return outcome;
    }

    fake::DisplayLayer layer;
};

TEST_F(Main, BringsEverythingUpAndDown)
{
    const Outcome outcome = run_main();
    EXPECT_EQ(outcome.result, 0);
    EXPECT_EQ(outcome.error, "--DirectFB Initialized--\n");
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(calls(), R"(
zuvo_init(4108)
zuvo_display_open(1)
zuvo_display_get(31)
zuvo_display_set(31, format 0, last 77)
zuvo_dfb_ext_open_with_params(6, 2, program)
dfb.SetVideoMode(1920, 1080, 32)
zuvo_dfb_ext_layer_open(7)
zuvo_dfb_ext_layer_get(53)
dfb.GetDisplayLayer(3)
layer.SetCooperativeLevel(2)
layer.SetConfiguration(flags 3, 1920 x 1080)
layer.SetBackgroundMode(1)
layer.GetSurface()
layer.Release()
test_dtkhd(dfb, screen)
screen.Release()
dfb.Release()
zuvo_dfb_ext_close()
zuvo_display_close(31)
zuvo_uninit()
)");
    EXPECT_EQ(layer.references, 0);
    EXPECT_EQ(screen.references, 1);
}

TEST_F(Main, LeavesOtherVideoFormatsAsTheyAre)
{
    fake::platform().video_format = 4;
    const Outcome outcome = run_main();
    EXPECT_EQ(outcome.output, "not re-configured\n");
    EXPECT_EQ(outcome.error, "--DirectFB Initialized--\n");
    const std::string all = calls();
    EXPECT_EQ(all.find("SetVideoMode"), std::string::npos);
    EXPECT_EQ(all.find("SetConfiguration"), std::string::npos);
}

TEST_F(Main, ReportsEachFailureAndStillTearsEverythingDown)
{
    for (const char* failing : {"dfb.GetDisplayLayer", "layer.SetCooperativeLevel", "layer.SetConfiguration",
                                "layer.SetBackgroundMode", "layer.GetSurface", "test_dtkhd"}) {
        transcript().reset();
        transcript().fail_every(failing, refusal);
        dfb.references = 1;
        const Outcome outcome = run_main();
        EXPECT_EQ(outcome.result, 0) << failing;
        EXPECT_EQ(outcome.error, std::string("--DirectFB Initialized--\nERROR!! ") + refusal_text + "\n") << failing;
        EXPECT_EQ(layer.references, 0) << failing;
        EXPECT_EQ(dfb.references, 0) << failing;
        EXPECT_EQ(screen.references, 1) << failing;
        const std::string all = calls();
        const std::string last = "dfb.Release()\nzuvo_dfb_ext_close()\nzuvo_display_close(31)\nzuvo_uninit()\n";
        EXPECT_EQ(all.substr(all.size() - last.size()), last) << failing;
    }
}

TEST_F(Main, SurvivesAPlatformWithoutDirectFBOrLayer)
{
    for (const char* failing : {"zuvo_dfb_ext_open_with_params", "zuvo_dfb_ext_layer_open", "zuvo_dfb_ext_layer_get"}) {
        transcript().reset();
        transcript().fail_every(failing, refusal);
        dfb.references = 1;
        const Outcome outcome = run_main();
        EXPECT_EQ(outcome.result, 0) << failing;
        EXPECT_THAT(outcome.error, testing::HasSubstr("ERROR!! ")) << failing;
        EXPECT_EQ(transcript().lines().back(), "zuvo_uninit()") << failing;
    }
}

} // namespace
