#include <algorithm>

#include <gmock/gmock.h>

#include "command.h"

namespace {

using testing::Contains;
using testing::Each;
using testing::EndsWith;
using testing::IsEmpty;
using testing::Not;

/// The lines of DirectFB's debugging that one frame of the demo prints.
std::vector<std::string> traced(const std::string& back_end, const std::string& words)
{
    const Outcome outcome = run_command("dtk_demo --frames 1 --size 640x360 --backend " + back_end + " " + words);
    EXPECT_EQ(outcome.status, 0) << outcome.output;
    std::vector<std::string> lines = lines_of(outcome.output);
    lines.erase(std::remove_if(lines.begin(), lines.end(),
                               [](const std::string& line) { return line.find("DTKHDDVD/") == std::string::npos; }),
                lines.end());
    return lines;
}

} // namespace

TEST(Trace, TellsTheWayOfEachPrimitiveInSoftware)
{
    const auto lines = traced("software", "--dfb:debug=DTKHDDVD/Software");
    EXPECT_THAT(lines, Contains(EndsWith(" DTKHDDVD_Rectangle: colour fill, no outline, straight onto the target")));
    EXPECT_THAT(lines, Contains(EndsWith(" DTKHDDVD_Rectangle: colour fill, no outline, through the scratch pad")));
    EXPECT_THAT(lines, Contains(EndsWith(" DTKHDDVD_Polygon: pattern fill, outline with a pen, through the scratch pad")));
    EXPECT_THAT(lines, Contains(EndsWith(" DTKHDDVD_Line: no fill, outline with a pen, through the scratch pad")));
    EXPECT_THAT(lines, Each(testing::HasSubstr("DTKHDDVD/Software:")));
}

TEST(Trace, TellsTheWayOfEachPrimitiveInHardware)
{
    const auto lines = traced("hardware", "--dfb:debug=DTKHDDVD/Hardware");
    EXPECT_THAT(lines, Contains(EndsWith(" DTKHDDVD_Rectangle: colour fill, no outline")));
    EXPECT_THAT(lines, Contains(EndsWith(" DTKHDDVD_Polygon: pattern fill, outline with a pen")));
    EXPECT_THAT(lines, Contains(EndsWith(" DTKHDDVD_Ellipse: colour fill, outline with a pen")));
    EXPECT_THAT(lines, Contains(EndsWith(" DTKHDDVD_Line: no fill, outline with a pen")));
}

TEST(Trace, IsSilentUnlessItsOwnBackEndIsAskedFor)
{
    EXPECT_THAT(traced("software", ""), IsEmpty());
    EXPECT_THAT(traced("software", "--dfb:debug=DTKHDDVD/Hardware"), IsEmpty());
    EXPECT_THAT(traced("hardware", "--dfb:debug=DTKHDDVD/Software"), IsEmpty());
    EXPECT_THAT(traced("hardware", "--dfb:debug=DTKHDDVD"), Not(IsEmpty()));
}
