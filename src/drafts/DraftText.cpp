#include "drafts/DraftText.h"

#include "config/RunLayout.h"
#include "config/Vocabulary.h"
#include "drafts/DraftFields.h"

#include <algorithm>
#include <charconv>

namespace gfc::drafts {

namespace {

constexpr std::string_view AnyOpening = "draft\t";
constexpr std::string_view Opening = "draft\t1\n"; // the number is that of the form
constexpr std::string_view Closing = "end\t";

// A value stands in one line, whatever was typed.
constexpr std::string_view Special("\\\n\r\t\0", 5);
constexpr std::string_view Letters = "\\nrt0";

std::string Escaped(std::string_view value) {
    std::string text;
    for (const char byte : value) {
        const std::size_t at = Special.find(byte);
        if (at == std::string_view::npos)
            text += byte;
        else
            text.append({'\\', Letters[at]});
    }
    return text;
}

std::string Plain(std::string_view text) {
    std::string value;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool escaped = text[i] == '\\' && i + 1 < text.size();
        const std::size_t at = escaped ? Letters.find(text[i + 1]) : std::string_view::npos;
        value += at == std::string_view::npos ? text[i] : Special[at];
        i += at == std::string_view::npos ? 0 : 1;
    }
    return value;
}

std::string TextOf(const PassStep& step) {
    return std::to_string(step.Run) + " " + std::string(NameOf(step.What));
}

std::optional<PassStep> StepIn(std::string_view text) {
    for (int run = 0; run <= config::MaxRuns; ++run)
        for (std::size_t dialog = 0; dialog < Dialogs; ++dialog)
            if (const PassStep step{run, static_cast<Dialog>(dialog)}; TextOf(step) == text)
                return step;
    return std::nullopt;
}

// A text that is empty takes no line.
class Writer {
public:
    void Add(std::string_view name, std::string_view value) {
        if (!value.empty())
            bytes_.append(name).append("\t").append(Escaped(value)).append("\n");
    }
    void AddOpen(const PassStep& step, const OpenDialog& dialog) {
        const std::string lead = "Open." + TextOf(step) + ".";
        Add("Open", TextOf(step));
        Add(lead + "Variables", std::to_string(dialog.Bound.size()));
        Add(lead + "Fields", std::to_string(dialog.Fields.size()));
        for (std::size_t i = 0; i < dialog.Bound.size(); ++i) {
            const std::string each = lead + std::to_string(i) + ".";
            Add(each + "Tag", dialog.Bound[i].Tag);
            Add(each + "Type", dialog.Bound[i].Type);
            Add(each + "RegAddr", dialog.Bound[i].RegAddr);
        }
        for (std::size_t i = 0; i < dialog.Fields.size(); ++i)
            Add(lead + "Field" + std::to_string(i), dialog.Fields[i]);
    }
    [[nodiscard]] std::string Closed() const { return bytes_ + std::string(Closing) + MarkOf(bytes_) + "\n"; }

private:
    std::string bytes_{Opening};
};

class Reader {
public:
    explicit Reader(std::string_view lines) {
        while (!lines.empty()) {
            const std::string_view line = lines.substr(0, lines.find('\n'));
            lines.remove_prefix(std::min(lines.size(), line.size() + 1));
            if (const std::size_t tab = line.find('\t'); tab != std::string_view::npos)
                lines_.emplace(line.substr(0, tab), Plain(line.substr(tab + 1)));
        }
    }

    [[nodiscard]] std::string Value(const std::string& name) const {
        const auto found = lines_.lower_bound(name);
        return found == lines_.end() || found->first != name ? std::string() : found->second;
    }
    // The steps that are named so, in their order.
    [[nodiscard]] std::vector<PassStep> Steps(const std::string& name) const {
        std::vector<PassStep> steps;
        const auto [first, last] = lines_.equal_range(name);
        for (auto line = first; line != last; ++line)
            if (const auto step = StepIn(line->second))
                steps.push_back(*step);
        return steps;
    }
    [[nodiscard]] OpenDialog Open(const PassStep& step) const {
        const std::string lead = "Open." + TextOf(step) + ".";
        OpenDialog dialog;
        dialog.Bound.resize(Count(lead + "Variables"));
        dialog.Fields.resize(Count(lead + "Fields"));
        for (std::size_t i = 0; i < dialog.Bound.size(); ++i) {
            const std::string each = lead + std::to_string(i) + ".";
            dialog.Bound[i] = {Value(each + "Tag"), Value(each + "Type"), Value(each + "RegAddr")};
        }
        for (std::size_t i = 0; i < dialog.Fields.size(); ++i)
            dialog.Fields[i] = Value(lead + "Field" + std::to_string(i));
        return dialog;
    }

private:
    // No dialog has as many as a hundred; a greater number is none of ours.
    [[nodiscard]] std::size_t Count(const std::string& name) const {
        constexpr std::size_t most = 100;
        const std::string text = Value(name);
        std::size_t count = 0;
        std::from_chars(text.data(), text.data() + text.size(), count);
        return count > most ? 0 : count;
    }

    std::multimap<std::string, std::string> lines_;
};

// What follows from the flags of the runs.
void CountRuns(config::StationConfig& station) {
    station.ActiveRunCount = 0;
    for (int run = 0; run < config::MaxRuns; ++run) {
        const auto at = static_cast<std::size_t>(run);
        station.RunList[at].Name = config::RunSection(run + 1);
        station.Run[at] = station.RunList[at].Flag;
        station.ActiveRunCount += config::IsRunActive(station, run) ? 1 : 0;
    }
    station.FlagAGA7 = station.FlowAlgorithm == config::algorithm::AGA7;
    station.Measured = station.GasDensitySource == config::source::Measured;
    station.Runs.PrepareWholeStation(station.ActiveRunCount);
}

Draft DraftOf(const Reader& lines) {
    Draft draft;
    const Visit read = [&lines](const std::string& name, std::string& text) { text = lines.Value(name); };
    EachOwnText(draft, read);
    EachCommonText(draft.Station, read);
    CountRuns(draft.Station);
    EachRunText(draft.Station.Runs, read);
    draft.Done = lines.Steps("Done");
    for (const PassStep& step : lines.Steps("Open"))
        draft.Open.emplace(step, lines.Open(step));
    return draft;
}

bool IsWhole(std::string_view block) {
    const std::size_t end = block.rfind(std::string("\n") + std::string(Closing));
    if (!block.starts_with(Opening) || end == std::string_view::npos)
        return false;
    const std::string_view body = block.substr(0, end + 1);
    return block.substr(body.size()) == std::string(Closing) + MarkOf(body) + "\n";
}

KeptDraft Kept(std::string_view block) {
    const Reader lines(block);
    KeptDraft kept{std::string(block), {}, lines.Value("Station")};
    if (IsWhole(block))
        kept.TheDraft = DraftOf(lines);
    return kept;
}

// Where the next block begins; no value holds a line of its own.
std::size_t NextOpening(std::string_view bytes) {
    const std::size_t at = bytes.find("\n" + std::string(AnyOpening), 0);
    return at == std::string_view::npos ? bytes.size() : at + 1;
}

} // namespace

std::string BytesOf(const Draft& draft) {
    Writer writer;
    Draft each = draft; // the fields are gone through by their places
    const Visit write = [&writer](const std::string& name, std::string& text) { writer.Add(name, text); };
    EachOwnText(each, write);
    EachCommonText(each.Station, write);
    EachRunText(each.Station.Runs, write);
    for (const PassStep& step : draft.Done)
        writer.Add("Done", TextOf(step));
    for (const auto& [step, dialog] : draft.Open)
        writer.AddOpen(step, dialog);
    return writer.Closed();
}

std::vector<KeptDraft> DraftsIn(std::string_view bytes) {
    std::vector<KeptDraft> drafts;
    while (!bytes.empty()) {
        const std::string_view block = bytes.substr(0, NextOpening(bytes));
        drafts.push_back(Kept(block));
        bytes.remove_prefix(block.size());
    }
    return drafts;
}

} // namespace gfc::drafts
