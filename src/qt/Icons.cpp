#include "qt/Icons.h"

#include "qt/Texts.h"

#include <QFile>

// Outside every namespace, as the resource compiler's own name is.
static void LoadIconSet() {
    Q_INIT_RESOURCE(icons);
}

namespace gfc::qt {

namespace {
QString PathOf(std::string_view name) {
    return QStringLiteral(":/icons/") + ToQt(name) + QStringLiteral(".svg");
}
} // namespace

bool HasIcon(std::string_view name) {
    LoadIconSet();
    return !name.empty() && QFile::exists(PathOf(name));
}

QIcon IconNamed(std::string_view name) {
    return HasIcon(name) ? QIcon(PathOf(name)) : QIcon();
}

} // namespace gfc::qt
