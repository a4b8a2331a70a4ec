#include "command.h"
#include "platform.h"

namespace board {

void submit(const Command& command)
{
    draw(command);
}

void wait_until_drawn()
{
}

void prepare_directfb()
{
}

void finish_directfb()
{
}

} // namespace board
