#pragma once

#include <span>
#include <string>

// Other libraries that read and write the same files.
namespace gfc::bench {

// Each call is a complete access: the file is opened, read, taken apart and closed, and what is made of it is
// thrown away. A write ends with the same replace as the floor's where the library gives the bytes; QSettings
// writes the file itself, atomically and without a flush of its folder.
struct Peer {
    const char* Name;
    std::string (*Read)(const std::string& path, const std::string& section, const std::string& key);
    // Null for a library that only reads.
    void (*Write)(const std::string& path, const std::string& section, const std::string& key,
                  const std::string& value);
};

[[nodiscard]] std::span<const Peer> Peers();

extern const Peer BoostPropertyTree;
extern const Peer GLibKeyFile;
extern const Peer Inih;
extern const Peer QtSettings;
extern const Peer SimpleIni;

} // namespace gfc::bench
