#include "audit/FileText.h"

#include <algorithm>

namespace gfc::audit {

namespace profile = platform::profile;

namespace {

// Most sections are those of runs, which have about so many lines.
constexpr std::size_t UsualEntries = 200;

} // namespace

FileText::FileText(std::string_view bytes) {
    for (std::size_t begin = 0; begin < bytes.size();) {
        const std::size_t end = profile::LineEnd(bytes, begin);
        const auto line = profile::WithoutBreak(bytes.substr(begin, end - begin));
        TakeLine(profile::Trimmed<profile::IsWhite>(line));
        begin = end;
    }
}

void FileText::TakeLine(std::string_view line) {
    if (line.starts_with('[')) {
        const auto name = line.substr(1, line.find(']') - 1);
        sections_.push_back({profile::Trimmed<profile::IsWhite>(name), {}, {}});
        sections_.back().Entries.reserve(UsualEntries);
        return;
    }
    if (line.empty() || line.starts_with(';'))
        return;
    if (sections_.empty())
        sections_.emplace_back();
    const auto equals = line.find('=');
    if (equals == std::string_view::npos)
        return sections_.back().Strays.push_back(line);
    sections_.back().Entries.push_back({profile::Trimmed<profile::IsWhite>(line.substr(0, equals)),
                                        profile::CleanValue(line.substr(equals + 1))});
}

const FileSection* FileText::Find(std::string_view name) const {
    const auto found = std::ranges::find_if(sections_, [&](const FileSection& section) {
        return services::EqualBytesNoCase(section.Name, name);
    });
    return found == sections_.end() ? nullptr : &*found;
}

} // namespace gfc::audit
