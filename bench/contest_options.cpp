#include "contest_options.h"

namespace bench {

void add_options(tools::Program& program, Options& options)
{
    program.add_option("--items", options.items, "measure the items whose name contains this")->type_name("REGEX");
    program.add_option("--columns", options.columns, "measure the columns whose name contains this")->type_name("REGEX");
    program.add_option("--repetitions", options.repetitions, "run every column of an item so many times, in turn (15)")
        ->type_name("N")
        ->check(tools::number_from(1));
    program.add_option("--time", options.seconds, "how many seconds a column runs each time, at least (0.004)")
        ->type_name("SECONDS")
        ->check(tools::number_from(0.0001));
    program.add_flag("--growth", options.growth,
                     "measure every primitive at sizes from 10 to 1800 pixels, and polygons of many points, instead");
    CLI::Option* csv = program.add_path("--csv", options.csv, "write the table to this file");
    program.add_path("--json", options.json, "write every single run to this file, in Google Benchmark's format");
    program.add_path("--chart", options.chart, "draw the file of --csv with gnuplot, as SVG")->needs(csv);
}

} // namespace bench
