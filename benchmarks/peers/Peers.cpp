#include "Peers.h"

namespace gfc::bench {

std::span<const Peer> Peers() {
    static const Peer peers[] = {SimpleIni, Inih, QtSettings, GLibKeyFile, BoostPropertyTree};
    return peers;
}

} // namespace gfc::bench
