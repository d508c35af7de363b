#pragma once

#include "platform/ProfileLines.h"

#include <string>
#include <string_view>
#include <vector>

namespace gfc::audit {

// A section as it stands in the file; all texts are bytes of the code page and parts of the file's.
struct FileSection {
    std::string_view Name;
    std::vector<platform::profile::Entry> Entries;
    std::vector<std::string_view> Strays; // lines that are neither an entry, empty nor a comment
};

// The bytes of a configuration file, cut into sections once. Lines before the first section are of a section
// without a name, which is there only if there are such lines.
class FileText {
public:
    // The bytes must outlive it.
    explicit FileText(std::string_view bytes);

    [[nodiscard]] const std::vector<FileSection>& Sections() const { return sections_; }
    // The first one of the name, whatever its case: it is the one that is read. Null if there is none.
    [[nodiscard]] const FileSection* Find(std::string_view name) const;

private:
    void TakeLine(std::string_view line);

    std::vector<FileSection> sections_;
};

} // namespace gfc::audit
