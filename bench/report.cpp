#include "report.h"

#include <cstdlib>
#include <fstream>
#include <cmath>
#include <stdexcept>

namespace bench {

namespace {

std::ofstream open(const std::string& file)
{
    std::ofstream stream(file);
    if (!stream)
        throw std::runtime_error("cannot write " + file);
    return stream;
}

/// Nothing can be printed of a runner-up where there is none.
std::string value(double number)
{
    return number > 0 ? std::to_string(number) : "";
}

} // namespace

void write_csv(const std::string& file, const std::vector<Row>& rows)
{
    std::ofstream stream = open(file);
    stream << "row,item,column,peer,ns,pixels,pixels_per_second,to_floor,to_best_peer,to_prescribed,software_goal,"
              "engine_goal,best_peer\n";
    int number = 0;
    for (const Row& row : rows) {
        ++number;
        for (const Cell& cell : row.cells)
            stream << number << ',' << row.item.name << ',' << cell.column << ',' << cell.is_peer << ','
                   << value(cell.nanoseconds) << ',' << row.pixels << ',' << std::llround(cell.pixels_per_second) << ','
                   << value(cell.to_floor) << ',' << value(cell.to_best_peer) << ',' << value(cell.to_prescribed) << ','
                   << value(row.item.software_goal) << ',' << value(row.item.engine_goal) << ',' << row.best_peer
                   << '\n';
    }
}

void write_json(const std::string& file, const std::vector<benchmark::BenchmarkReporter::Run>& runs)
{
    std::ofstream stream = open(file);
    benchmark::JSONReporter reporter;
    reporter.SetOutputStream(&stream);
    reporter.SetErrorStream(&stream);
    reporter.ReportContext(benchmark::BenchmarkReporter::Context());
    reporter.ReportRuns(runs);
    reporter.Finalize();
}

void draw_chart(const std::string& script, const std::string& csv, const std::string& chart)
{
    const std::string command = "gnuplot -e \"csv='" + csv + "'; svg='" + chart + "'\" '" + script + "'";
    if (std::system(command.c_str()) != 0)
        throw std::runtime_error("gnuplot cannot draw " + chart);
}

} // namespace bench
