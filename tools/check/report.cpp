#include "report.h"

#include <iomanip>
#include <ostream>

#include <dtkhddvd.h>
#include <nlohmann/json.hpp>

namespace conformance {
namespace {

using nlohmann::ordered_json;

std::string summary_of(const Result& result)
{
    const Verdict& verdict = result.verdict;
    if (verdict.is_left_out())
        return verdict.reason();
    const std::string checks = std::to_string(verdict.checks()) + " checks";
    return verdict.failures() ? std::to_string(verdict.failures()) + " of " + checks + " fail" : checks;
}

ordered_json json_of(const Result& result)
{
    ordered_json findings = ordered_json::array();
    for (const Finding& finding : result.verdict.findings())
        findings.push_back(finding.text);
    return {{"name", result.family->name},
            {"level", name_of(result.family->level)},
            {"status", result.status()},
            {"checks", result.verdict.checks()},
            {"failures", result.verdict.failures()},
            {"findings", findings}};
}

ordered_json json_of(const Speed& speed)
{
    return {{"name", speed.name},
            {"software_nanoseconds", speed.software},
            {"hardware_nanoseconds", speed.hardware}};
}

template <typename Items>
ordered_json array_of(const Items& items)
{
    ordered_json array = ordered_json::array();
    for (const auto& item : items)
        array.push_back(json_of(item));
    return array;
}

void write_speed(std::ostream& stream, const Speed& speed)
{
    stream << "  " << std::left << std::setw(22) << speed.name << std::right << std::fixed << std::setprecision(0)
           << std::setw(12) << speed.software << std::setw(12) << speed.hardware << std::setprecision(2)
           << std::setw(10) << speed.ratio() << '\n';
}

} // namespace

const char* Result::status() const
{
    if (verdict.is_left_out())
        return "not offered";
    return verdict.failures() ? "failed" : "passed";
}

Level Report::level() const
{
    Level reached = Level::pixels;
    for (const Result& result : results) {
        if (result.verdict.failures() && result.family->level <= reached)
            reached = static_cast<Level>(static_cast<int>(result.family->level) - 1);
    }
    return reached;
}

const Family* Report::first_failure() const
{
    for (const Result& result : results) {
        if (result.verdict.failures())
            return result.family;
    }
    return nullptr;
}

void write_text(std::ostream& stream, const Report& report)
{
    for (const Result& result : report.results) {
        stream << std::left << std::setw(12) << name_of(result.family->level) << std::setw(18) << result.family->name
               << std::setw(13) << result.status() << summary_of(result) << '\n';
        if (!result.verdict.findings().empty())
            stream << "    " << result.verdict.findings().front().text << '\n';
    }
    stream << "\nNanoseconds for each of 100 x 100 pixels:\n  " << std::left << std::setw(22) << "" << std::right
           << std::setw(12) << "software" << std::setw(12) << "hardware" << std::setw(10) << "ratio" << '\n';
    for (const Speed& speed : report.speeds)
        write_speed(stream, speed);
    stream << "\nThe platform (" << report.device << ") reaches the level: " << name_of(report.level()) << '\n';
    if (const Family* family = report.first_failure())
        stream << "To be looked at first: " << family->name << ". " << family->promise << '\n';
}

void write_json(std::ostream& stream, const Report& report)
{
    const Family* const first = report.first_failure();
    const ordered_json json = {{"program", "zuvo_check"},
                               {"format", 1},
                               {"device", report.device},
                               {"level", name_of(report.level())},
                               {"first_failure", first ? ordered_json(first->name) : ordered_json(nullptr)},
                               {"families", array_of(report.results)},
                               {"speeds", array_of(report.speeds)}};
    stream << json.dump(2) << '\n';
}

} // namespace conformance
