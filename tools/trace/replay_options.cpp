#include "replay_options.h"

namespace trace {

void add_options(tools::Program& program, ReplayOptions& options)
{
    program.add_path("file", options.file, "the trace, in its binary or its text form")->required();
    program.add_back_end(options.back_end);
    program.add_option("--frame", options.frame, "end with this frame; the first one is 1")
        ->type_name("N")
        ->check(tools::number_from(1));
    program.add_path("--png", options.png, "write the last frame, or what --compare found, to this file");
    CLI::Option* window = program.add_flag("--window", options.window, "show the frames in a window, or on the console");
    CLI::Option* repeat = program.add_option("--repeat", options.repetitions, "play it so often, for steadier times");
    repeat->type_name("N")->check(tools::number_from(1));
    program.add_path("--csv", options.csv, "write the times of the frames to this file");
    program.add_flag("--compare", options.compare, "play it with both back ends and compare what each call draws")
        ->excludes(window)
        ->excludes(repeat);
    program.add_path("--text", options.text, "write it as text to this file, - for standard output, and play nothing");
    program.add_path("--binary", options.binary, "write it in its binary form, and play nothing");
}

} // namespace trace
