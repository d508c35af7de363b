#include "peers/Peers.h"

#include <INIReader.h>

namespace gfc::bench {

namespace {

std::string Read(const std::string& path, const std::string& section, const std::string& key) {
    return INIReader(path).Get(section, key, {});
}

} // namespace

const Peer Inih{"inih", Read, nullptr};

} // namespace gfc::bench
