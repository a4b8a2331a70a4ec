#include <algorithm>
#include <cstdio>
#include <filesystem>

#include <gmock/gmock.h>

#include "command.h"

/// Every picture of the documentation is what its program draws now.
namespace {

/// How one of the pictures below docs/ is drawn.
struct Kept {
    const char* file;
    const char* program; ///< Draws the picture into a file.
};

void PrintTo(const Kept& kept, std::ostream* stream)
{
    *stream << kept.file;
}

const Kept kept_pictures[] = {
    {"gallery.png", "gallery @ --backend software"},
    {"pictures/pens.png", "guide_pictures pens @"},
    {"pictures/patterns.png", "guide_pictures patterns @"},
    {"pictures/scratch-pad.png", "guide_pictures scratch-pad @"},
    {"pictures/back-end-software.png", "guide_pictures back-end @ --backend software"},
    {"pictures/back-end-hardware.png", "guide_pictures back-end @ --backend hardware"},
    {"pictures/hello.png", "hello --png @"},
    {"pictures/clock.png", "df_clock --png @"},
    {"pictures/chart.png", "df_chart --png @"},
    {"pictures/menu.png", "df_menu --png @"},
    {"pictures/paint.png", "df_paint --png @"},
#ifdef PYTHON_EXAMPLE
    {"pictures/rosette.png", PYTHON_EXAMPLE " --png @"},
#endif
};

Picture draw(const Kept& kept)
{
    const std::filesystem::path target = temporary_file("drawn.png");
    std::string line = kept.program;
    line.replace(line.find('@'), 1, target.string());
    const Outcome outcome = run_command(line);
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, "");
    const Picture picture = read_png(target);
    std::filesystem::remove(target);
    return picture;
}

class Pictures : public testing::TestWithParam<Kept> {};

std::string name_of(const testing::TestParamInfo<Kept>& info)
{
    std::string name = std::filesystem::path(info.param.file).stem();
    name.erase(std::remove(name.begin(), name.end(), '-'), name.end());
    return name;
}

INSTANTIATE_TEST_SUITE_P(Documentation, Pictures, testing::ValuesIn(kept_pictures), name_of);

} // namespace

TEST_P(Pictures, AreDrawnAsTheyAreKept)
{
    const Picture drawn = draw(GetParam());
    ASSERT_FALSE(drawn.pixels.empty());
    const std::string kept = std::string(DOCUMENTATION) + "/" + GetParam().file;
    const std::string copy = std::string(DRAWN) + "/" + GetParam().file;
    if (read_png(kept).width == drawn.width && read_png(kept).pixels == drawn.pixels)
        return;

    std::filesystem::create_directories(std::filesystem::path(copy).parent_path());
    write_png(copy, drawn);
    FAIL() << "Look at " << copy << ". If it is meant to be so, copy it to " << kept;
}
