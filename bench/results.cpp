#include "results.h"

#include <algorithm>

namespace bench {

namespace {

double median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

double median_time(const std::vector<Repetition>& repetitions, std::size_t column)
{
    std::vector<double> times;
    for (const Repetition& repetition : repetitions)
        times.push_back(repetition[column]);
    return median(times);
}

/// Within each repetition both columns meet the same disturbances, so that the ratios vary less than the times.
double median_ratio(const std::vector<Repetition>& repetitions, std::size_t column, std::ptrdiff_t reference)
{
    if (reference < 0)
        return 0;
    std::vector<double> ratios;
    for (const Repetition& repetition : repetitions)
        ratios.push_back(repetition[column] / repetition[static_cast<std::size_t>(reference)]);
    return median(ratios);
}

std::ptrdiff_t place(const std::vector<Candidate>& candidates, const std::string& name)
{
    const auto found = std::find_if(candidates.begin(), candidates.end(),
                                    [&](const Candidate& candidate) { return candidate.name == name; });
    return found == candidates.end() ? -1 : found - candidates.begin();
}

std::ptrdiff_t fastest_peer(const std::vector<bool>& is_peer, const std::vector<Repetition>& repetitions,
                            std::ptrdiff_t floor)
{
    std::ptrdiff_t best = -1;
    double best_ratio = 0;
    for (std::size_t i = 0; i < is_peer.size(); ++i) {
        const double ratio = median_ratio(repetitions, i, floor);
        if (!is_peer[i] || (best >= 0 && ratio >= best_ratio))
            continue;
        best = static_cast<std::ptrdiff_t>(i);
        best_ratio = ratio;
    }
    return best;
}

} // namespace

const Cell* Row::find(const std::string& column) const
{
    const auto found =
        std::find_if(cells.begin(), cells.end(), [&](const Cell& cell) { return cell.column == column; });
    return found == cells.end() ? nullptr : &*found;
}

Row summarise(const Item& item, long pixels, const std::vector<Candidate>& candidates, const std::vector<bool>& is_peer,
              const std::vector<Repetition>& repetitions)
{
    const std::ptrdiff_t floor = place(candidates, floor_name);
    const std::ptrdiff_t prescribed = place(candidates, prescribed_name);
    const std::ptrdiff_t best = fastest_peer(is_peer, repetitions, floor);

    Row row = {item, pixels, {}, best < 0 ? "" : candidates[static_cast<std::size_t>(best)].name};
    for (std::size_t i = 0; i < candidates.size(); ++i) {
        const double time = median_time(repetitions, i);
        row.cells.push_back({candidates[i].name, is_peer[i], time, median_ratio(repetitions, i, floor),
                             median_ratio(repetitions, i, best), median_ratio(repetitions, i, prescribed),
                             static_cast<double>(pixels) * 1e9 / time});
    }
    return row;
}

} // namespace bench
