#ifndef BENCH_PEERS_H
#define BENCH_PEERS_H

#include <vector>

#include "painter.h"

namespace bench {

using MakePainter = std::unique_ptr<Painter> (*)(const Memory& memory);

/// Adds a peer to the table; each of them does so in a file of its own, which is compiled where its library is found.
///
/// @return true, to initialise a constant with.
bool add_peer(const char* name, MakePainter make);

/// All peers, drawing into @p memory where their library can do so.
std::vector<Column> make_peers(const Memory& memory);

} // namespace bench

#endif
