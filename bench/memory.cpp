// dtk_memory: which library allocates how much for a toolkit, for a pen, and for each drawing.

#include <cstdio>

#include "allocations.h"
#include "engine_switch.h"
#include "items.h"
#include "options.h"
#include "toolkit_painter.h"

using namespace bench;

namespace {

void print(const std::string& what, const AllocationsByLibrary& allocations)
{
    std::printf("%s\n", what.c_str());
    for (const auto& [library, sum] : allocations)
        std::printf("    %-28s %6ld allocations %10zu bytes\n", library.c_str(), sum.count, sum.bytes);
}

template <typename Action>
AllocationsByLibrary count(Action&& action)
{
    start_counting();
    action();
    return stop_counting();
}

std::string title(tools::BackEnd back_end, const std::string& what)
{
    return (back_end == tools::BackEnd::hardware ? "engine, " : "software, ") + what;
}

void print_creations(IDirectFB* dfb, tools::BackEnd back_end)
{
    tools::show_engine(back_end == tools::BackEnd::hardware);
    const auto surface = create_surface(dfb, picture_width, picture_height, DSCAPS_NONE);
    Owned<DTKHDDVD> toolkit;
    Owned<DTKHDDVDPen> pen;
    print(title(back_end, "creating a toolkit"),
          count([&] { toolkit = create_toolkit(dfb, surface.get(), back_end); }));
    print(title(back_end, "creating a pen"), count([&] { pen = create_pen(toolkit.get(), 5); }));
}

void print_drawings(IDirectFB* dfb, tools::BackEnd back_end)
{
    const auto shared = create_surface(dfb, picture_width, picture_height, DSCAPS_NONE);
    ToolkitPainter painter(dfb, shared.get(), back_end);
    for (const Item& item : all_items()) {
        const Draw draw = painter.prepare({item.shape, {}, {}, 0});
        // What the first drawing leaves behind for the others is no cost of a drawing.
        draw();
        draw();
        print(title(back_end, item.name), count(draw));
    }
}

} // namespace

/// The toolkit's library exports a main of its own, which this one stands before.
int main(int argc, char** argv)
{
    tools::Program program("Tells which library allocates how much for a toolkit, for a pen, and for each drawing.", "dtk_memory");
    return program.run(argc, argv, [&] {
        const tools::Platform platform(picture_width, picture_height, tools::BackEnd::hardware,
                                       tools::without_window(program.words()));
        for (const auto back_end : {tools::BackEnd::software, tools::BackEnd::hardware}) {
            print_creations(platform.dfb(), back_end);
            print_drawings(platform.dfb(), back_end);
        }
        return 0;
    });
}
