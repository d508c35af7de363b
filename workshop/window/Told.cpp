#include "workshop/window/Told.h"

#include <QFileInfo>

namespace gfc::workshop {

namespace {

struct Wording {
    const char* Command;
    const char* Window;
};

// Longer ones first, since a shorter one may begin another.
constexpr Wording Wordings[] = {
    {"; mend them, or use --force", ""},
    {"; --force makes it anew", ""},
    {"with --map \"", "under \"Read as\", as \""},
    {"--ignore-unknown", "\"Leave out columns that nobody knows\""},
    {"--register-base", "\"Register 1 is at\""},
    {"--save-mapping", "\"Keep as\""},
    {"--module-type", "\"Module types\""},
    {"--direction", "\"Direction\""},
    {"--encoding", "\"Encoding\""},
    {"--station", "\"Station\""},
    {"--module", "\"Module\""},
    {"--map", "\"Read as\""},
};

} // namespace

// The library of the language tells it to the second on Windows.
QDateTime ChangedAt(const std::filesystem::path& file) {
    return QFileInfo(Shown(file)).lastModified();
}

QString InWindow(const std::string& text) {
    QString said = Shown(text);
    for (const Wording& wording : Wordings) {
        said.replace(QLatin1String(wording.Command), QLatin1String(wording.Window));
    }
    return said;
}

} // namespace gfc::workshop
