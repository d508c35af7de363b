#include "qt/StateWords.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace gfc::qt {

namespace {

struct Told {
    std::string_view Image;
    const char* Words;
};

constexpr std::array<Told, 7> told{{
    {"StationConfig", QT_TRANSLATE_NOOP("State", "configured")},
    {"StationErrors", QT_TRANSLATE_NOOP("State", "configured, the last check found errors")},
    {"StationNoConfig", QT_TRANSLATE_NOOP("State", "not configured")},
    {"Run", QT_TRANSLATE_NOOP("State", "enabled")},
    {"NoRun", QT_TRANSLATE_NOOP("State", "not enabled")},
    {"Config", QT_TRANSLATE_NOOP("State", "tag assigned")},
    {"NoConfig", QT_TRANSLATE_NOOP("State", "no tag assigned")},
}};

} // namespace

QString StateTold(std::string_view image) {
    const auto* found =
        std::find_if(told.begin(), told.end(), [image](const Told& each) { return each.Image == image; });
    return found == told.end() ? QString() : QCoreApplication::translate("State", found->Words);
}

} // namespace gfc::qt
