#include "options.h"

#include <stdexcept>

#include <getopt.h>

#include "platform.h"

namespace bench {

const char help_text[] =
    "Usage: bench_contest [OPTION...] [--dfb:WORD,...] [--zuvo:WORD,...]\n"
    "Measures the toolkit's drawing operations against plain loops and other libraries.\n"
    "\n"
    "  --items REGEX        measure the items whose name contains REGEX\n"
    "  --columns REGEX      measure the columns whose name contains REGEX\n"
    "  --repetitions N      run every column of an item N times, in turn (15)\n"
    "  --time SECONDS       how long a column runs each time, at least (0.004)\n"
    "  --growth             measure every primitive at sizes from 10 to 1800 pixels, and polygons of many points, instead\n"
    "  --csv FILE           write the table to FILE\n"
    "  --json FILE          write every single run to FILE, in Google Benchmark's format\n"
    "  --chart FILE.svg     draw the file of --csv with gnuplot\n"
    "  --help               show this help\n"
    "\n"
    "--zuvo:accel=off leaves the platform's graphics driver out.\n";

namespace {

const option long_options[] = {
    {"items", required_argument, nullptr, 'i'},
    {"columns", required_argument, nullptr, 'o'},
    {"repetitions", required_argument, nullptr, 'r'},
    {"time", required_argument, nullptr, 't'},
    {"growth", no_argument, nullptr, 'g'},
    {"csv", required_argument, nullptr, 'c'},
    {"json", required_argument, nullptr, 'j'},
    {"chart", required_argument, nullptr, 's'},
    {"help", no_argument, nullptr, 'h'},
    {},
};

template <typename Number>
Number positive(Number number)
{
    if (!(number > 0))
        throw std::invalid_argument("repetitions and time are greater than 0");
    return number;
}

void apply(int letter, Options& options)
{
    switch (letter) {
    case 'i': options.items = optarg; break;
    case 'o': options.columns = optarg; break;
    case 'r': options.repetitions = positive(std::stoi(optarg)); break;
    case 't': options.seconds = positive(std::stod(optarg)); break;
    case 'g': options.growth = true; break;
    case 'c': options.csv = optarg; break;
    case 'j': options.json = optarg; break;
    case 's': options.chart = optarg; break;
    case 'h': options.help = true; break;
    default: throw std::invalid_argument("unknown option; --help lists them");
    }
}

} // namespace

Options parse_options(int argc, char** argv)
{
    Options options;
    std::vector<char*> own;
    for (int i = 0; i < argc; ++i) {
        if (tools::is_platform_word(argv[i]))
            options.words.emplace_back(argv[i]);
        else
            own.push_back(argv[i]);
    }
    const auto count = static_cast<int>(own.size());
    own.push_back(nullptr);
    for (int letter; (letter = getopt_long(count, own.data(), "", long_options, nullptr)) != -1;)
        apply(letter, options);
    if (!options.chart.empty() && options.csv.empty())
        throw std::invalid_argument("--chart draws the file of --csv, so both are needed");
    if (optind < count)
        throw std::invalid_argument(std::string("what is '") + own[static_cast<std::size_t>(optind)] + "'?");
    return options;
}

} // namespace bench
