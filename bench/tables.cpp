#include "report.h"

#include <cstdio>
#include <set>

namespace bench {

namespace {

const char absent[] = "-";

std::string number(double value, int decimals)
{
    char text[32];
    std::snprintf(text, sizeof(text), "%.*f", decimals, value);
    return text;
}

std::string ratio(double value, double goal = 0)
{
    if (value <= 0)
        return absent;
    return number(value, value < 10 ? 2 : 1) + (goal > 0 && value > goal ? "*" : " ");
}

void print_toolkit_row(const Row& row)
{
    const Cell* floor = row.find(floor_name);
    const Cell* prescribed = row.find(prescribed_name);
    const Cell* software = row.find(software_name);
    const Cell* engine = row.find(engine_name);
    const Cell* best = row.find(row.best_peer);
    const auto time = [](const Cell* cell) { return cell ? number(cell->nanoseconds, 0) : absent; };
    const auto to_floor = [](const Cell* cell) { return ratio(cell ? cell->to_floor : 0); };
    const auto speed = [](const Cell* cell) { return cell ? number(cell->pixels_per_second * 1e-6, 0) : absent; };
    std::printf("%-27s %8s %8s %10s %8s %7s %5.2f %9s %8s %5.2f %7s %7s %7s %8s %s\n", row.item.name.c_str(),
                time(floor).c_str(), to_floor(prescribed).c_str(), time(software).c_str(), to_floor(software).c_str(),
                ratio(software ? software->to_prescribed : 0, row.item.software_goal).c_str(), row.item.software_goal,
                time(engine).c_str(), ratio(engine ? engine->to_floor : 0, row.item.engine_goal).c_str(),
                row.item.engine_goal, ratio(engine ? engine->to_best_peer : 0, 1).c_str(), speed(software).c_str(),
                speed(engine).c_str(), to_floor(best).c_str(), row.best_peer.c_str());
}

std::set<std::string> peer_names(const std::vector<Row>& rows)
{
    std::set<std::string> names;
    for (const Row& row : rows) {
        for (const Cell& cell : row.cells) {
            if (cell.is_peer)
                names.insert(cell.column);
        }
    }
    return names;
}

void print_peers(const std::vector<Row>& rows)
{
    const auto names = peer_names(rows);
    std::printf("\nPeers, as multiples of the floor\n%-27s", "item");
    for (const std::string& name : names)
        std::printf(" %12s", name.c_str());
    std::printf("\n");
    for (const Row& row : rows) {
        std::printf("%-27s", row.item.name.c_str());
        for (const std::string& name : names) {
            const Cell* cell = row.find(name);
            std::printf(" %12s", ratio(cell ? cell->to_floor : 0).c_str());
        }
        std::printf("\n");
    }
}

} // namespace

void print_tables(const std::vector<Row>& rows)
{
    std::printf("%-27s %8s %8s %10s %8s %7s %5s %9s %8s %5s %7s %7s %7s %8s %s\n", "item", "floor", "prescr.",
                "software", "", "/pre-", "goal", "engine", "", "goal", "/best", "Mpx/s", "Mpx/s", "best", "");
    std::printf("%-27s %8s %8s %10s %8s %7s %5s %9s %8s %5s %7s %7s %7s %8s %s\n", "", "ns", "/floor", "ns", "/floor",
                "scribed", "", "ns", "/floor", "", "peer", "softw.", "engine", "/floor", "peer");
    for (const Row& row : rows)
        print_toolkit_row(row);
    print_peers(rows);
}

} // namespace bench
