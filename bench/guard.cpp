// dtk_guard: draws each item of the table once with each back end, for callgrind to count its instructions.

#include <cstdio>
#include <list>

#include <valgrind/callgrind.h>

#include "items.h"
#include "options.h"
#include "toolkit_painter.h"

using namespace bench;

namespace {

/// Returns a text that is there to the end, which is when callgrind reads it.
const char* kept(const std::string& text)
{
    static std::list<std::string> texts;
    return texts.emplace_back(text).c_str();
}

/// The first drawing takes memory that is kept. The second one becomes an output of callgrind's with the item's name.
void count(const std::string& back_end, const Item& item, Painter& painter)
{
    const char* const name = kept(back_end + "," + item.name);
    const Draw draw = painter.prepare({item.shape, {}, {}, 0});
    draw();
    CALLGRIND_START_INSTRUMENTATION;
    CALLGRIND_ZERO_STATS;
    draw();
    CALLGRIND_DUMP_STATS_AT(name);
    CALLGRIND_STOP_INSTRUMENTATION;
}

void count_all()
{
    const tools::Platform platform(picture_width, picture_height, tools::BackEnd::hardware,
                                   {"--dfb:system=dummy,no-sighandler"});
    const auto surface = create_surface(platform.dfb(), picture_width, picture_height, DSCAPS_NONE);
    ToolkitPainter software(platform.dfb(), surface.get(), tools::BackEnd::software);
    ToolkitPainter engine(platform.dfb(), surface.get(), tools::BackEnd::hardware);
    for (const Item& item : all_items()) {
        count("software", item, software);
        count("engine", item, engine);
    }
}

} // namespace

/// The toolkit's library exports a main of its own, which this one stands before.
int main(int argc, char** argv)
{
    tools::Program program("Draws each item of the table once with each back end, for callgrind.", "dtk_guard");
    return program.run(argc, argv, [] {
        count_all();
        return 0;
    });
}
