#pragma once

#include "support/MemoryFiles.h"

namespace gfc::test {

// What stands in the project: the draft of a pass stands elsewhere.
[[nodiscard]] inline auto ProjectFiles(const MemoryFiles& files) {
    auto content = files.Content;
    std::erase_if(content, [](const auto& file) { return file.first.ends_with(".drafts"); });
    return content;
}

} // namespace gfc::test
