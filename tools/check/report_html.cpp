#include "embedded_png.h"
#include "report.h"

#include <iomanip>
#include <ostream>

#include "compare.h"

namespace conformance {
namespace {

const char head[] = R"(<!DOCTYPE html>
<html lang="en"><head><meta charset="utf-8"><title>zuvo_check</title><style>
body { font: 15px/1.5 sans-serif; max-width: 1340px; margin: 2em auto; padding: 0 1em; color: #222; background: #fff }
table { border-collapse: collapse } th, td { text-align: left; padding: .15em 1em .15em 0 } td.number { text-align: right }
.failed { color: #b00020; font-weight: bold } .passed { color: #1b6e2e }
img { width: 400px; image-rendering: pixelated; border: 1px solid #888; display: block }
figure { display: inline-block; margin: 0 1em 1em 0 } figcaption { color: #555 }
p.finding { font-family: monospace }
</style></head><body>
)";

std::string escaped(const std::string& text)
{
    std::string result;
    for (const char letter : text) {
        if (letter == '<')
            result += "&lt;";
        else if (letter == '&')
            result += "&amp;";
        else
            result += letter;
    }
    return result;
}

/// What differs is red, on what was expected in pale.
Picture difference_of(const Picture& expected, const Picture& drawn)
{
    Picture picture;
    for (std::size_t i = 0; i < expected.size(); ++i) {
        const u32 pale = 0xffc0c0c0 + (expected[i] >> 2 & 0x3f3f3f);
        picture.push_back(distance(expected[i], drawn[i]) > 1 ? 0xffd00000 : pale);
    }
    return picture;
}

void write_figure(std::ostream& stream, const char* caption, const Picture& picture)
{
    stream << "<figure><img alt=\"" << caption << "\" src=\"data:image/png;base64," << base64(png_of(picture))
           << "\"><figcaption>" << caption << "</figcaption></figure>\n";
}

void write_finding(std::ostream& stream, const Finding& finding)
{
    stream << "<p class=\"finding\">" << escaped(finding.text) << "</p>\n";
    if (finding.expected.empty())
        return;
    write_figure(stream, "expected", finding.expected);
    write_figure(stream, "drawn", finding.drawn);
    write_figure(stream, "difference", difference_of(finding.expected, finding.drawn));
}

void write_row(std::ostream& stream, const Result& result)
{
    const Verdict& verdict = result.verdict;
    stream << "<tr><td>" << name_of(result.family->level) << "</td><td>" << result.family->name << "</td><td class=\""
           << result.status() << "\">" << result.status() << "</td><td class=\"number\">" << verdict.failures() << " / "
           << verdict.checks() << "</td><td>"
           << (verdict.is_left_out() ? verdict.reason() : result.family->promise) << "</td></tr>\n";
}

void write_speeds(std::ostream& stream, const std::vector<Speed>& speeds)
{
    stream << "<h2>Speed</h2>\n<p>Nanoseconds for each of 100 x 100 pixels, and how many times faster than software.</p>"
           << "<table><tr><th>primitive</th><th>software</th><th>hardware</th><th>ratio</th></tr>\n" << std::fixed;
    for (const Speed& speed : speeds)
        stream << "<tr><td>" << speed.name << "</td><td class=\"number\">" << std::setprecision(0) << speed.software
               << "</td><td class=\"number\">" << speed.hardware << "</td><td class=\"number\">" << std::setprecision(2)
               << speed.ratio() << "</td></tr>\n";
    stream << "</table>\n";
}

} // namespace

void write_html(std::ostream& stream, const Report& report)
{
    stream << head << "<h1>The platform reaches the level: " << name_of(report.level()) << "</h1>\n<p>"
           << escaped(report.device) << "</p>\n";
    if (const Family* family = report.first_failure())
        stream << "<p>To be looked at first: <b>" << family->name << "</b>. " << family->promise << "</p>\n";
    stream << "<table><tr><th>level</th><th>family</th><th></th><th>failures</th><th></th></tr>\n";
    for (const Result& result : report.results)
        write_row(stream, result);
    stream << "</table>\n";
    write_speeds(stream, report.speeds);
    for (const Result& result : report.results) {
        if (result.verdict.findings().empty())
            continue;
        stream << "<h2>" << result.family->name << "</h2>\n<p>" << result.family->promise << "</p>\n";
        for (const Finding& finding : result.verdict.findings())
            write_finding(stream, finding);
    }
    stream << "</body></html>\n";
}

} // namespace conformance
