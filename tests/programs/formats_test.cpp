#include <fstream>

#include <gmock/gmock.h>

#include "command.h"

/// The table of target formats in the guide says what really happens.
namespace {

const char* const formats[] = {"ARGB", "RGB32", "RGB16", "A8", "LUT8"};
const char refusal[] = " cannot be drawn";

/// What each item does, in the order in which they are drawn.
using Row = std::pair<std::string, std::string>;

/// The name at the start of a line of dtk_bench.
std::string item_of(const std::string& line)
{
    const std::string name = line.substr(0, 40);
    return name.substr(0, name.find_last_not_of(' ') + 1);
}

/// Draws everything by a back end on each format.
std::vector<Row> draw_table(const std::string& back_end)
{
    std::vector<Row> rows;
    for (const char* format : formats) {
        const Outcome outcome = run_command("dtk_bench --duration 0.001 --size 16 --backend " + back_end +
                                            " --pixelformat " + format + " 2>/dev/null");
        std::vector<std::string> lines = lines_of(outcome.output);
        lines.erase(lines.begin(), lines.begin() + 4);
        rows.resize(lines.size());
        for (std::size_t i = 0; i < lines.size(); ++i) {
            rows[i].first = item_of(lines[i]);
            rows[i].second += lines[i].find(refusal) == std::string::npos ? " yes |" : " refused |";
        }
    }
    return rows;
}

/// The rows of the guide's table under the heading @p heading.
std::vector<Row> read_table(const std::string& heading)
{
    std::ifstream guide(GUIDE "/formats.md");
    std::vector<Row> rows;
    bool is_wanted = false;
    for (std::string line; std::getline(guide, line);) {
        if (line.compare(0, 2, "##") == 0)
            is_wanted = line == "## " + heading;
        const std::size_t bar = line.find(" |", 2);
        if (is_wanted && line.compare(0, 2, "| ") == 0 && line.compare(0, 6, "| What") != 0)
            rows.emplace_back(line.substr(2, bar - 2), line.substr(bar + 2));
    }
    return rows;
}

} // namespace

TEST(Formats, AreTakenBySoftwareAsTheGuideSays)
{
    EXPECT_EQ(read_table("In software"), draw_table("software"));
}

TEST(Formats, AreTakenByTheEngineAsTheGuideSays)
{
    const std::vector<Row> guide = read_table("On the hosted platform's drawing engine");
    ASSERT_EQ(guide.size(), 1u);
    for (const Row& row : draw_table("hardware"))
        EXPECT_EQ(row.second, guide[0].second) << row.first;
}
