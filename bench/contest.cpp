#include "contest.h"

#include <algorithm>
#include <cstdio>
#include <stdexcept>

namespace bench {

namespace {

Picture draw_task(Painter& painter, const Task& task)
{
    return draw_once(painter, painter.prepare(task));
}

} // namespace

const Column& Contest::column(const std::string& name) const
{
    const auto found = std::find_if(columns_.begin(), columns_.end(),
                                    [&](const Column& column) { return column.name == name; });
    if (found == columns_.end())
        throw std::logic_error("there is no column " + name);
    return *found;
}

/// The software back end defines which pixels belong to a shape.
Task Contest::task_for(const Shape& shape)
{
    const Picture picture = draw_task(*column(software_name).painter, {shape, {}, {}, 0});
    const auto runs = painted_runs(picture);
    return {shape, runs, bounds(runs), count_pixels(runs)};
}

Expectation Contest::expectation_for(const Task& task)
{
    const Picture floor = draw_task(*column(floor_name).painter, task);
    Picture software = draw_task(*column(software_name).painter, task);
    const Impression software_impression = impression(software);
    return {impression(floor), software_impression, std::move(software)};
}

std::string Contest::judge(const Column& column, const Picture& picture, const Task& task,
                           const Expectation& expectation) const
{
    if (column.is_peer)
        return compare(picture, task, expectation.floor);
    if (column.name == prescribed_name && picture != expectation.software_picture)
        return "not the picture of the software back end";
    return compare_either(picture, task, expectation);
}

bool Contest::is_right(const Item& item, const Column& column, const Draw& draw, const Task& task,
                       const Expectation& expectation)
{
    const std::string complaint = judge(column, draw_once(*column.painter, draw), task, expectation);
    if (complaint.empty())
        return true;
    std::fprintf(stderr, "%s, %s: left out, it drew %s\n", item.name.c_str(), column.name.c_str(), complaint.c_str());
    failures_ += !column.is_peer;
    return false;
}

Row Contest::run(const Item& item, Measurement& measurement, int repetitions)
{
    const Task task = task_for(item.shape);
    const Expectation expectation = expectation_for(task);
    std::vector<Candidate> candidates;
    std::vector<bool> is_peer;
    for (const Column& column : columns_) {
        if (!std::regex_search(column.name, wanted_))
            continue;
        Draw draw = column.painter->prepare(task);
        if (!draw || !is_right(item, column, draw, task, expectation))
            continue;
        candidates.push_back({column.name, column.painter.get(), std::move(draw)});
        is_peer.push_back(column.is_peer);
    }
    return summarise(item, task.pixels, candidates, is_peer, measurement.run(item.name, candidates, repetitions));
}

} // namespace bench
