#include "compare_trace.h"

#include <cstdio>

#include "../../write_png.h"
#include "../player/files.h"
#include "../player/frames.h"
#include "comparison.h"

namespace trace {

namespace {

/// The line of a call in the text form, without its end.
std::string text_of(const Call& call)
{
    const std::string text = print({{call}, false});
    const std::size_t start = text.find('\n') + 1;
    return text.substr(start, text.find('\n', start) - start);
}

void print_finding(const Finding& finding, const Trace& trace, const char* what)
{
    const Difference& difference = finding.difference;
    const auto pixel = static_cast<std::size_t>(difference.first_y) * static_cast<std::size_t>(finding.width) +
                       static_cast<std::size_t>(difference.first_x);
    std::printf("the first %s: call %zu, %s: %zu pixels, the first at (%d, %d), software %06x, engine %06x\n", what,
                finding.index + 1, text_of(trace.calls[finding.index]).c_str(), difference.count, difference.first_x,
                difference.first_y, finding.software[pixel] & 0xffffff, finding.engine[pixel] & 0xffffff);
}

void report(const ReplayOptions& options, const Trace& trace, const Comparison& comparison)
{
    std::printf("%s, %zu drawings\n", options.file.c_str(), comparison.drawing_count());
    for (const auto& [kind, count] : comparison.documented())
        std::printf("%8zu differ, documented: %s\n", count, kind.c_str());
    std::printf("%8zu differ without being documented\n", comparison.undocumented_count());
    if (const Finding* finding = comparison.finding())
        print_finding(*finding, trace, comparison.undocumented_count() ? "undocumented one" : "one");
}

} // namespace

int compare_trace(const ReplayOptions& options, const Trace& trace, const std::vector<std::string>& words)
{
    const Extent extent = extent_of(trace);
    const tools::Platform platform(extent.width, extent.height, tools::BackEnd::hardware, tools::without_window(words));
    Comparison comparison(platform.dfb());
    const std::vector<Frame> frames = frames_of(trace);
    const std::size_t end = frames[count_of(frames, options.frame) - 1].end;
    for (std::size_t i = 0; i < end; ++i)
        naming_call(options.file, trace.calls[i], i, [&] { comparison.play(trace.calls[i], i); });
    report(options, trace, comparison);
    const Finding* finding = comparison.finding();
    if (finding && !options.png.empty())
        tools::write_png(options.png, picture_of(*finding, platform.dfb()).get());
    return comparison.undocumented_count() ? 1 : 0;
}

} // namespace trace
