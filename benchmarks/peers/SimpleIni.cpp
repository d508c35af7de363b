#include "Floors.h"
#include "peers/Peers.h"

// The files are bytes, for it as for us.
#define SI_NO_CONVERSION
#include <SimpleIni.h>

namespace gfc::bench {

namespace {

std::string Read(const std::string& path, const std::string& section, const std::string& key) {
    CSimpleIniA file;
    file.LoadFile(path.c_str());
    return file.GetValue(section.c_str(), key.c_str(), "");
}

void Write(const std::string& path, const std::string& section, const std::string& key,
           const std::string& value) {
    CSimpleIniA file;
    file.LoadFile(path.c_str());
    file.SetValue(section.c_str(), key.c_str(), value.c_str());
    std::string bytes;
    file.Save(bytes);
    PlainReplace(path, bytes);
}

} // namespace

const Peer SimpleIni{"SimpleIni", Read, Write};

} // namespace gfc::bench
