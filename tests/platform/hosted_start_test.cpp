#include <cstdlib>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>
#include <zuvo.h>

namespace {

/// A program's arguments as main receives them.
struct Arguments {
    explicit Arguments(std::vector<std::string> words) : texts(std::move(words))
    {
        for (std::string& text : texts)
            pointers.push_back(text.data());
        pointers.push_back(nullptr);
        count = static_cast<int>(texts.size());
        vector = pointers.data();
    }

    std::vector<std::string> left() const { return {vector, vector + count}; }

    std::vector<std::string> texts;
    std::vector<char*> pointers;
    int count;
    char** vector;
};

const char headless[] = "--dfb:system=dummy,quiet,no-cursor,no-sighandler";

u32 display_format()
{
    zuvo_display_settings settings;
    EXPECT_EQ(zuvo_display_get(zuvo_display_open(1), &settings), ZUVO_OK);
    return settings.video_format;
}

struct Hosted : testing::Test {
    void SetUp() override { unsetenv("ZUVOARGS"); }

    DFBDimension layer_size(Arguments& arguments)
    {
        directfb = zuvo_dfb_ext_open_with_params(6, &arguments.count, &arguments.vector);
        zuvo_dfb_ext_layer_settings settings;
        EXPECT_EQ(zuvo_dfb_ext_layer_get(zuvo_dfb_ext_layer_open(7), &settings), ZUVO_OK);
        IDirectFBDisplayLayer* layer = nullptr;
        EXPECT_EQ(directfb->GetDisplayLayer(directfb, settings.layer_id, &layer), DFB_OK);
        DFBDisplayLayerConfig config;
        layer->GetConfiguration(layer, &config);
        layer->Release(layer);
        return {config.width, config.height};
    }

    void TearDown() override
    {
        if (directfb)
            directfb->Release(directfb);
        zuvo_uninit();
    }

    IDirectFB* directfb = nullptr;
};

TEST_F(Hosted, HasNoEngineBeforeItIsStarted)
{
    EXPECT_EQ(zuvo_dtk_get_handle(), 0u);
    zuvo_init(4108);
    EXPECT_NE(zuvo_dtk_get_handle(), 0u);
    zuvo_uninit();
    EXPECT_EQ(zuvo_dtk_get_handle(), 0u);
}

TEST_F(Hosted, KeepsNoFileOpen)
{
    const auto open_files = [] {
        const std::filesystem::directory_iterator files("/proc/self/fd");
        return std::distance(begin(files), end(files));
    };
    zuvo_init(4108);
    zuvo_uninit();
    const auto before = open_files();
    for (int i = 0; i < 3; ++i) {
        zuvo_init(4108);
        zuvo_uninit();
    }
    EXPECT_EQ(open_files(), before);
}

TEST_F(Hosted, EnvironmentSwitchesTheEngineOffWithoutACommandLine)
{
    setenv("ZUVOARGS", "format=720,dtk=off", 1);
    zuvo_init(4108);
    EXPECT_EQ(zuvo_dtk_get_handle(), 0u);
    EXPECT_EQ(display_format(), 7u);
}

TEST_F(Hosted, ArgumentsSwitchTheEngineOffAndAreRemoved)
{
    Arguments arguments({"program", "one", "--zuvo:dtk=off", headless, "--zuvo:", "two"});
    zuvo_init(4108);
    directfb = zuvo_dfb_ext_open_with_params(6, &arguments.count, &arguments.vector);
    ASSERT_TRUE(directfb);
    EXPECT_EQ(zuvo_dtk_get_handle(), 0u);
    EXPECT_THAT(arguments.left(), testing::ElementsAre("program", "one", "two"));
}

TEST_F(Hosted, ArgumentsOutweighTheEnvironment)
{
    setenv("ZUVOARGS", "dtk=off", 1);
    Arguments arguments({"program", "--zuvo:dtk=on", headless});
    zuvo_init(4108);
    directfb = zuvo_dfb_ext_open_with_params(6, &arguments.count, &arguments.vector);
    EXPECT_NE(zuvo_dtk_get_handle(), 0u);
}

TEST_F(Hosted, ComplainsInOneLineAboutAnUnknownWord)
{
    setenv("ZUVOARGS", "dtk=maybe,format=1080", 1);
    testing::internal::CaptureStderr();
    zuvo_init(4108);
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "zuvo: unknown word 'dtk=maybe' (dtk=on|off, accel=on|off, format=1080|720|576|480, "
              "window=on|off|fullscreen|WIDTHxHEIGHT)\n");
    EXPECT_NE(zuvo_dtk_get_handle(), 0u);
}

TEST_F(Hosted, KnowsEachWordAsAWhole)
{
    for (const char* word : {"abcdefg720", "format=7", "format=7200", "format=", "forma", "dtk", "dtk=offf", "window=x20"}) {
        setenv("ZUVOARGS", word, 1);
        testing::internal::CaptureStderr();
        zuvo_init(4108);
        EXPECT_THAT(testing::internal::GetCapturedStderr(), testing::StartsWith("zuvo: unknown word '" + std::string(word) + "'"));
        EXPECT_EQ(display_format(), 9u) << word;
        EXPECT_NE(zuvo_dtk_get_handle(), 0u) << word;
        zuvo_uninit();
    }
}

class Format : public Hosted, public testing::WithParamInterface<std::tuple<const char*, u32, int, int>> {};

TEST_P(Format, IsTheDisplaysAndTheLayers)
{
    const auto [word, number, width, height] = GetParam();
    Arguments arguments({"program", headless, std::string("--zuvo:format=") + word});
    zuvo_init(4108);
    const DFBDimension size = layer_size(arguments);
    EXPECT_EQ(size.w, width);
    EXPECT_EQ(size.h, height);
    EXPECT_EQ(display_format(), number);
}

INSTANTIATE_TEST_SUITE_P(Known, Format,
                         testing::Values(std::tuple("1080", 9u, 1920, 1080), std::tuple("720", 7u, 1280, 720),
                                         std::tuple("576", 3u, 720, 576), std::tuple("480", 1u, 720, 480)));

TEST_F(Hosted, StartsWithoutAnyArguments)
{
    setenv("DISPLAY", "", 1);
    unsetenv("DFBARGS");
    zuvo_init(4108);
    directfb = zuvo_dfb_ext_open_with_params(6, nullptr, nullptr);
    EXPECT_TRUE(directfb);
}

TEST_F(Hosted, StartsWithEmptyArgumentsAndWithoutADisplay)
{
    unsetenv("DISPLAY");
    unsetenv("DFBARGS");
    Arguments arguments({});
    zuvo_init(4108);
    EXPECT_EQ(layer_size(arguments).w, 1920);
}

TEST_F(Hosted, DisplayIsFullHighDefinitionUnlessAskedOtherwise)
{
    zuvo_init(4108);
    EXPECT_EQ(display_format(), 9u);
    Arguments arguments({"program", headless});
    const DFBDimension size = layer_size(arguments);
    EXPECT_EQ(size.w, 1920);
    EXPECT_EQ(size.h, 1080);
}

TEST_F(Hosted, DirectFBTakesArgumentsWhereNothingWasStartedBefore)
{
    Arguments arguments({"program", "--zuvo:format=576", headless});
    EXPECT_EQ(layer_size(arguments).h, 576);
}

TEST_F(Hosted, LayerKeepsTheModeThatDirectFBWasAskedFor)
{
    Arguments arguments({"program", "--dfb:system=dummy,quiet,no-cursor,no-sighandler,mode=320x200"});
    zuvo_init(4108);
    const DFBDimension size = layer_size(arguments);
    EXPECT_EQ(size.w, 320);
    EXPECT_EQ(size.h, 200);
}

TEST_F(Hosted, DisplaySettingZeroKeepsTheFormatAndTellsIt)
{
    zuvo_init(4108);
    const unsigned int display = zuvo_display_open(1);
    zuvo_display_settings settings = {};
    EXPECT_EQ(zuvo_display_set(display, &settings), ZUVO_OK);
    EXPECT_EQ(settings.video_format, 9u);
    settings.video_format = 7;
    EXPECT_EQ(zuvo_display_set(display, &settings), ZUVO_OK);
    EXPECT_EQ(display_format(), 7u);
    settings.video_format = 4711;
    EXPECT_EQ(zuvo_display_set(display, &settings), ZUVO_NO_SUCH_VIDEO_FORMAT);
    EXPECT_EQ(display_format(), 7u);
    zuvo_display_close(display);
}

TEST_F(Hosted, RefusesOtherDisplaysAndLayers)
{
    zuvo_init(4108);
    zuvo_display_settings settings = {};
    zuvo_dfb_ext_layer_settings layer = {};
    EXPECT_EQ(zuvo_display_open(2), 0u);
    EXPECT_EQ(zuvo_display_get(0, &settings), ZUVO_NO_SUCH_DISPLAY);
    EXPECT_EQ(zuvo_display_set(5, &settings), ZUVO_NO_SUCH_DISPLAY);
    EXPECT_EQ(zuvo_display_get(zuvo_display_open(1), nullptr), ZUVO_NULL_ARGUMENT);
    EXPECT_EQ(zuvo_display_set(zuvo_display_open(1), nullptr), ZUVO_NULL_ARGUMENT);
    EXPECT_EQ(zuvo_dfb_ext_layer_open(1), 0u);
    EXPECT_EQ(zuvo_dfb_ext_layer_get(0, &layer), ZUVO_NO_SUCH_LAYER);
    EXPECT_EQ(zuvo_dfb_ext_layer_get(zuvo_dfb_ext_layer_open(7), nullptr), ZUVO_NULL_ARGUMENT);
}

} // namespace
