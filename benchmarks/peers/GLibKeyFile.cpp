#include "Floors.h"
#include "peers/Peers.h"

#include <glib.h>
#include <memory>

namespace gfc::bench {

namespace {

using KeyFile = std::unique_ptr<GKeyFile, decltype(&g_key_file_free)>;
using Text = std::unique_ptr<gchar, decltype(&g_free)>;

KeyFile Load(const std::string& path) {
    KeyFile file(g_key_file_new(), g_key_file_free);
    g_key_file_load_from_file(file.get(), path.c_str(), G_KEY_FILE_KEEP_COMMENTS, nullptr);
    return file;
}

std::string Read(const std::string& path, const std::string& section, const std::string& key) {
    const KeyFile file = Load(path);
    const Text value(g_key_file_get_value(file.get(), section.c_str(), key.c_str(), nullptr), g_free);
    return value == nullptr ? std::string() : std::string(value.get());
}

void Write(const std::string& path, const std::string& section, const std::string& key,
           const std::string& value) {
    const KeyFile file = Load(path);
    g_key_file_set_value(file.get(), section.c_str(), key.c_str(), value.c_str());
    gsize length = 0;
    const Text bytes(g_key_file_to_data(file.get(), &length, nullptr), g_free);
    PlainReplace(path, {bytes.get(), length});
}

} // namespace

const Peer GLibKeyFile{"GLib GKeyFile", Read, Write};

} // namespace gfc::bench
