#include "peers.h"

#include <algorithm>

namespace bench {

namespace {

struct Peer {
    const char* name;
    MakePainter make;
};

std::vector<Peer>& peers()
{
    static std::vector<Peer> list;
    return list;
}

} // namespace

bool add_peer(const char* name, MakePainter make)
{
    peers().push_back({name, make});
    return true;
}

std::vector<Column> make_peers(const Memory& memory)
{
    std::vector<Column> columns;
    for (const Peer& peer : peers())
        columns.push_back({peer.name, true, peer.make(memory)});
    std::sort(columns.begin(), columns.end(), [](const Column& a, const Column& b) { return a.name < b.name; });
    return columns;
}

} // namespace bench
