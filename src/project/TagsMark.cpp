#include "project/TagsMark.h"

#include <functional>
#include <string_view>

namespace gfc::project {

std::size_t MarkOf(const TagList& tags) {
    std::size_t mark = tags.size();
    const auto add = [&mark](std::size_t more) { mark = mark * 31 + more; };
    for (const Tag& tag : tags) {
        add(std::hash<std::string_view>{}(tag.TagName));
        // A class has two letters at most: too few to be hashed for each of many tags.
        for (const char letter : tag.RegType.View())
            add(static_cast<unsigned char>(letter));
        add(static_cast<std::size_t>(tag.RegAddr));
    }
    return mark;
}

} // namespace gfc::project
