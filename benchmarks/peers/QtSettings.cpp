#include "peers/Peers.h"

#include <QSettings>

namespace gfc::bench {

namespace {

QString PathOf(const std::string& section, const std::string& key) {
    return QString::fromStdString(section + "/" + key);
}

std::string Read(const std::string& path, const std::string& section, const std::string& key) {
    const QSettings settings(QString::fromStdString(path), QSettings::IniFormat);
    return settings.value(PathOf(section, key)).toString().toStdString();
}

void Write(const std::string& path, const std::string& section, const std::string& key,
           const std::string& value) {
    QSettings settings(QString::fromStdString(path), QSettings::IniFormat);
    settings.setValue(PathOf(section, key), QString::fromStdString(value));
    settings.sync();
}

} // namespace

const Peer QtSettings{"QSettings", Read, Write};

} // namespace gfc::bench
