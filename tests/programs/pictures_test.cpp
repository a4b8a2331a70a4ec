#include <algorithm>
#include <cstdio>
#include <filesystem>

#include <zlib.h>

#include <gmock/gmock.h>

#include "command.h"

/// Every picture of the documentation is what its program draws now.
namespace {

/// How one of the pictures below docs/ is drawn.
struct Kept {
    const char* file;
    const char* program; ///< Draws the picture into a file, or dumps it into a directory: see writes_png.
    bool writes_png;
};

void PrintTo(const Kept& kept, std::ostream* stream)
{
    *stream << kept.file;
}

const Kept kept_pictures[] = {
    {"gallery.png", "gallery @ software", true},
    {"pictures/pens.png", "guide_pictures pens @", true},
    {"pictures/patterns.png", "guide_pictures patterns @", true},
    {"pictures/scratch-pad.png", "guide_pictures scratch-pad @", true},
    {"pictures/back-end-software.png", "guide_pictures back-end @ software", true},
    {"pictures/back-end-hardware.png", "guide_pictures back-end @ hardware", true},
    {"pictures/hello.png", "hello --dfb:system=dummy,quiet,no-cursor,mode=640x480 --dump @", false},
    {"pictures/clock.png", "df_clock --dfb:system=dummy,quiet,no-cursor,mode=640x480 --dump @", false},
    {"pictures/chart.png", "df_chart --dfb:system=dummy,quiet,no-cursor,mode=640x480 --dump @", false},
    {"pictures/paint.png", "df_paint --dfb:system=dummy,quiet,no-cursor,mode=640x480 --dump @", false},
#ifdef PYTHON_EXAMPLE
    {"pictures/rosette.png", PYTHON_EXAMPLE " --dfb:system=dummy,quiet,no-cursor,mode=640x480 --dump @", false},
#endif
};

/// A picture as IDirectFBSurface::Dump writes it: compressed by DirectFB 1.7, as it is by DirectFB2.
Picture read_dump(const std::filesystem::path& file)
{
    gzFile stream = gzopen(file.c_str(), "rb");
    Picture picture;
    char header[64] = "";
    for (int line = 0; line < 3; ++line) {
        // The size stands alone on its line.
        if (gzgets(stream, header, sizeof header) && picture.width == 0)
            std::sscanf(header, "%u %u", &picture.width, &picture.height);
    }
    unsigned char pixel[3];
    while (gzread(stream, pixel, sizeof pixel) == sizeof pixel)
        picture.pixels.push_back(static_cast<std::uint32_t>(pixel[0] << 16 | pixel[1] << 8 | pixel[2]));
    gzclose(stream);
    return picture;
}

Picture read_dump_in(const std::filesystem::path& directory)
{
    for (const auto& entry : std::filesystem::directory_iterator(directory)) {
        const std::string name = entry.path().filename();
        if (name.find(".ppm") != std::string::npos)
            return read_dump(entry.path());
    }
    return {};
}

Picture draw(const Kept& kept)
{
    const std::filesystem::path target = temporary_file("drawn");
    if (!kept.writes_png)
        std::filesystem::create_directory(target);
    std::string line = kept.program;
    line.replace(line.find('@'), 1, target.string());
    const Outcome outcome = run_command(line);
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, "");
    const Picture picture = kept.writes_png ? read_png(target) : read_dump_in(target);
    std::filesystem::remove_all(target);
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
