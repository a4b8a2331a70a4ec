#include "command.h"

#include <cstdio>
#include <fstream>
#include <iterator>
#include <sstream>

#include <png.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

Outcome outcome_of(int status, const std::string& output)
{
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, output, WIFSIGNALED(status) ? WTERMSIG(status) : 0};
}

std::string program(const std::string& line)
{
    return "exec '" PROGRAMS "'/" + line;
}

Outcome run_command(const std::string& line, const std::string& environment)
{
    const std::string command = environment + " '" PROGRAMS "'/" + line;
    FILE* pipe = popen(("{ " + command + "; } 2>&1").c_str(), "r");
    if (!pipe)
        return {-1, "cannot start the shell"};

    std::string output;
    char part[4096];
    while (const std::size_t length = std::fread(part, 1, sizeof part, pipe))
        output.append(part, length);
    return outcome_of(pclose(pipe), output);
}

std::string contents(const std::string& file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::vector<std::string> examples()
{
    std::istringstream names(EXAMPLES);
    return {std::istream_iterator<std::string>(names), {}};
}

std::vector<std::string> lines_of(const std::string& text)
{
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

std::string temporary_file(const std::string& name)
{
    return testing::TempDir() + "dtk-" + std::to_string(getpid()) + "-" + name;
}

Picture read_png(const std::string& path)
{
    png_image image = {};
    image.version = PNG_IMAGE_VERSION;
    if (!png_image_begin_read_from_file(&image, path.c_str()))
        return {};

    image.format = PNG_FORMAT_RGB;
    std::vector<std::uint8_t> bytes(PNG_IMAGE_SIZE(image));
    if (!png_image_finish_read(&image, nullptr, bytes.data(), 0, nullptr))
        return {};

    Picture picture = {image.width, image.height, {}};
    for (std::size_t i = 0; i < bytes.size(); i += 3)
        picture.pixels.push_back(static_cast<std::uint32_t>(bytes[i] << 16 | bytes[i + 1] << 8 | bytes[i + 2]));
    return picture;
}

void write_png(const std::string& path, const Picture& picture)
{
    std::vector<std::uint8_t> bytes;
    for (const std::uint32_t pixel : picture.pixels) {
        for (const int shift : {16, 8, 0})
            bytes.push_back(static_cast<std::uint8_t>(pixel >> shift));
    }
    png_image image = {};
    image.version = PNG_IMAGE_VERSION;
    image.width = picture.width;
    image.height = picture.height;
    image.format = PNG_FORMAT_RGB;
    EXPECT_TRUE(png_image_write_to_file(&image, path.c_str(), 0, bytes.data(), 0, nullptr)) << path;
}
