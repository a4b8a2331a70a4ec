#include <cstdio>
#include <set>

#include <gmock/gmock.h>

#include "command.h"

namespace {

/// The picture that the gallery draws with @p arguments.
Picture gallery(const std::string& arguments)
{
    const std::string file = temporary_file("gallery.png");
    const Outcome outcome = run_command("gallery " + file + " " + arguments);
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, "");
    const Picture picture = read_png(file);
    std::remove(file.c_str());
    return picture;
}

std::size_t different_colours(const Picture& picture)
{
    return std::set<std::uint32_t>(picture.pixels.begin(), picture.pixels.end()).size();
}

} // namespace

TEST(Gallery, DrawsEveryMannerInSoftware)
{
    const Picture picture = gallery("--backend software");
    EXPECT_EQ(picture.width, 1078u);
    EXPECT_EQ(picture.height, 702u);
    EXPECT_GE(different_colours(picture), 16u);
}

TEST(Gallery, DrawsWithWhatThePlatformOffers)
{
    EXPECT_GE(different_colours(gallery("")), 16u);
}

TEST(Gallery, WithoutAnEngineHardwareFailsWithOneLine)
{
    const Outcome outcome = run_command("gallery " + temporary_file("none.png") + " --backend hardware --zuvo:dtk=off");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output, "gallery: the platform has no drawing engine\n");
}

TEST(Gallery, MisuseExitsWith2AndOneLine)
{
    EXPECT_EQ(run_command("gallery").output, "gallery: file is required; try --help\n");
    EXPECT_EQ(run_command("gallery").status, 2);
    EXPECT_EQ(run_command("gallery x.png --backend firmware").output,
              "gallery: --backend: firmware not in {software,hardware}; try --help\n");
    EXPECT_EQ(run_command("gallery x.png --backend firmware").status, 2);
}
