#include "naming/TagName.h"

#include "naming/Devices.h"
#include "naming/Pieces.h"

#include <algorithm>
#include <charconv>

namespace gfc::naming {

namespace {

void AddOnce(std::vector<Subject>& subjects, Subject subject) {
    if (std::ranges::find(subjects, subject) == subjects.end())
        subjects.push_back(subject);
}

bool EndsAsToolsMark(std::string_view name) {
    const auto end = name.find_last_not_of("0123456789)");
    const bool marked = end != std::string_view::npos && end + 1 < name.size();
    return marked && (name[end] == '~' || name[end] == '(');
}

// A sign between the word and its number does not part them: "Run 1", "Tramo_1", "R-1".
const Part* NumberBehind(const std::vector<Part>& parts, std::size_t word) {
    std::size_t next = word + 1;
    if (next < parts.size() && parts[next].Kind == PartKind::Sign && parts[next].Text.size() == 1)
        ++next;
    return next < parts.size() && parts[next].Kind == PartKind::Digits ? &parts[next] : nullptr;
}

bool IsRunWord(const Part& part) {
    return part.Means.size() == 1 && part.Means.front() == Subject::Run && !part.Device;
}

// "R1" and "R01" name run 1; "R101" names a loop.
int RunIn(std::string_view digits) {
    int run = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), run);
    return digits.size() <= 2 && run >= 1 && run <= 5 ? run : 0;
}

void ReadRun(TagName& name) {
    for (std::size_t i = 0; i < name.Parts.size() && name.Run == 0; ++i) {
        const Part* number = IsRunWord(name.Parts[i]) ? NumberBehind(name.Parts, i) : nullptr;
        if (number == nullptr)
            continue;
        name.Run = RunIn(number->Text);
        if (name.Run != 0)
            name.RunText = name.Parts[i].Text + number->Text;
    }
}

void ReadSubjects(TagName& name) {
    for (const Part& part : name.Parts) {
        if (part.Device)
            continue;
        for (const Subject subject : part.Means)
            AddOnce(name.Subjects, subject);
        if (part.Kind == PartKind::Letters && part.Means.empty() && part.Text.size() > 1)
            name.Unknown.push_back(part.Text);
    }
}

} // namespace

bool TagName::Says(Subject subject) const {
    return std::ranges::find(Subjects, subject) != Subjects.end();
}

TagName Parse(std::string_view text) {
    TagName name;
    name.Folded = Fold(text);
    name.ToolSuffix = EndsAsToolsMark(name.Folded);
    name.Parts = PiecesOf(name.Folded, text);
    ReadDevice(name);
    ReadMeanings(name.Parts);
    ReadSubjects(name);
    ReadRun(name);
    return name;
}

} // namespace gfc::naming
