#include "Floors.h"
#include "peers/Peers.h"

#include <boost/property_tree/ini_parser.hpp>
#include <fstream>
#include <sstream>

namespace gfc::bench {

namespace {

using boost::property_tree::ptree;

ptree Load(const std::string& path) {
    std::ifstream file(path);
    ptree tree;
    boost::property_tree::read_ini(file, tree);
    return tree;
}

std::string Read(const std::string& path, const std::string& section, const std::string& key) {
    return Load(path).get<std::string>(section + "." + key, {});
}

void Write(const std::string& path, const std::string& section, const std::string& key,
           const std::string& value) {
    ptree tree = Load(path);
    tree.put(section + "." + key, value);
    std::ostringstream bytes;
    boost::property_tree::write_ini(bytes, tree);
    PlainReplace(path, bytes.str());
}

} // namespace

const Peer BoostPropertyTree{"Boost property_tree", Read, Write};

} // namespace gfc::bench
