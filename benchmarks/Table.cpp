#include "Table.h"

#include "Contest.h"

#include <array>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <sstream>
#include <thread>

namespace gfc::bench {

namespace {

struct Row {
    const char* Id;
    const char* Work;
    const char* ComparedWith;
    double Reach; // how many times the other's figure is allowed; 0 for a ratio that is stated only
    const char* Other = Floor;
    int ReachAt = 1; // the scale for which that is promised
};

// clang-format off
constexpr std::array<Row, 20> Rows = {{
    {"read_key",  "one `ReadKey`, complete access, 32 KB file",
                  "open, read, scan, close of the same bytes", 1.2},
    {"write_key", "one `WriteKey`, complete, atomic, flushed",
                  "write beside, flush, rename, flush of the folder", 1.15},
    {"load",      "load of a station and one run, 230 keys", "open, read, close of the file", 2},
    {"save",      "the configurator's save, 100 keys, 32 KB file",
                  "one atomic replace of the same bytes", 1.3},
    {"record",    "the same with the history kept, as long as a person waits for it", "the save alone", 2},
    {"report",    "a station's report as PDF, without its tags", "the same as a page for a browser", 0},
    {"tree",      "tree and table of 1,000 configured stations, rebuilt, below the window",
                  "open, read, close of the 1,000 files", 1.5},
    {"tags",      "100,000 tags: copy from the library, inventory, candidates, derived lists",
                  "`memcpy` of the records into fresh memory", 4},
    {"tags",      "the same", "`memcpy` into memory that is there", 0, "kept memory"},
    {"check",     "check of a full file, five runs with chromatograph, against 100,000 tags",
                  "one pass over the records", 2},
    {"audit",     "look over 10 stations of 2,000 tags and five runs each",
                  "asking the stand-in's library for the tags, and reading the files", 1.3, Floor, 100},
    {"audit_at_hand", "the same, from a library that has its records at hand",
                  "copying the records, and reading the files", 0},
    {"import",    "preview of a foreign table of 6,000 rows", "its rows read alone", 3, Floor, 100},
    {"apply",     "a plan of 3 stations carried out: written, in the history", "their atomic replaces", 2, Floor, 100},
    {"plan",      "the same with what comes before: the plan's table read, its tags asked for, bound, checked",
                  "their atomic replaces", 0},
    {"open_tags", "`TagRuns` opened on 50,000 free tags",
                  "a bare table view over Qt's own model of the same rows", 1.5},
    {"start",     "process start to main window, less the splash's wait",
                  "start of plain Qt windows from the same `.ui` files", 1.2},
    {"start",     "the same", "of the last of them alone", 0, "main window"},
    {"start",     "the same", "of an empty Qt window", 0, "empty window"},
    {"rested_start", "the same, the splash waited for", "the plain windows after two seconds of rest", 0},
}};

constexpr std::array<Row, 2> Memory = {{
    {"memory",       "peak memory at 100,000 tags", "the library's records alone", 3},
    {"audit_memory", "peak memory of `gfc-audit check` over 10 stations", "over one of them", 1.1},
}};

struct Click {
    const char* Id;
    const char* Work;
    double Reach; // milliseconds; 0 for a figure that is stated only
};
constexpr std::array<Click, 7> Clicks = {{
    {"assign",      "`TagRuns` on 50,000 free tags: Assign", 16},
    {"undo",        "the same: Undo Tag", 16},
    {"auto_assign", "the same: Auto-Assign of 22", 16},
    {"filter",      "the same: the slowest key in the filter", 16},
    {"scroll_page", "the same: one page down", 16},
    {"scroll_drag", "the same: the slowest frame of a drag to the end", 16},
    {"tree_window", "tree and table of 1,000 stations, rebuilt in the window", 0},
}};

constexpr std::array<const char*, 2> Accesses = {"read_key", "write_key"};
// clang-format on

std::string Format(const char* format, double value) {
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), format, value);
    return text.data();
}

std::string Rounded(double value) {
    return Format(value < 10 ? "%.1f" : "%.0f", value);
}

std::string TimeText(double nanoseconds) {
    constexpr std::array<const char*, 4> units = {" ns", " µs", " ms", " s"};
    std::size_t unit = 0;
    for (; unit + 1 < units.size() && nanoseconds >= 1000; ++unit)
        nanoseconds /= 1000;
    return Rounded(nanoseconds) + units[unit];
}

std::string SecondsText(double seconds) {
    return Format("%.0f s", seconds);
}

std::string BytesText(double bytes) {
    return Rounded(bytes / 1e6) + " MB";
}

template <class Text>
std::string OrNone(std::optional<double> figure, const Text& text) {
    return figure ? text(*figure) : "–";
}

std::string RatioText(double ratio) {
    return Format("%.2f", ratio);
}

// Past the reach in bold, so that it is seen.
std::string AgainstReach(double figure, double reach, std::string (*text)(double)) {
    return reach > 0 && figure > reach ? "**" + text(figure) + "**" : text(figure);
}

std::string ReachOf(const Row& row) {
    if (row.Reach == 0)
        return "stated";
    return Format("%g", row.Reach) + (row.ReachAt == 1 ? "" : Format(" at %gx", row.ReachAt));
}

void AddRow(std::ostream& out, const Figures& figures, const Row& row, std::string (*text)(double)) {
    const auto ratioAt = [&](int scale) {
        const double reach = row.ReachAt == scale ? row.Reach : 0;
        return OrNone(figures.Ratio(row.Id, row.Other, scale),
                      [&](double ratio) { return AgainstReach(ratio, reach, RatioText); });
    };
    out << "| " << row.Work << " | " << OrNone(figures.Median(row.Id, Ours), text) << " | "
        << row.ComparedWith << " | " << OrNone(figures.Median(row.Id, row.Other), text) << " | " << ratioAt(1)
        << " | " << ReachOf(row);
    for (const int scale : {10, 100})
        out << " | " << ratioAt(scale);
    out << " | " << OrNone(figures.Exponent(row.Id, Ours), RatioText) << " | "
        << OrNone(figures.Exponent(row.Id, row.Other), RatioText) << " |\n";
}

void AddRows(std::ostream& out, const Figures& figures) {
    out << "| Work | Ours | Compared with | That | Ratio | Reach | at 10x | at 100x | Growth | of that |\n"
           "|---|---|---|---|---|---|---|---|---|---|\n";
    for (const Row& row : Rows)
        AddRow(out, figures, row, TimeText);
    for (const Row& row : Memory)
        AddRow(out, figures, row, BytesText);
}

void AddClicks(std::ostream& out, const Figures& figures) {
    out << "\n| In the window | Ours | Reach | at 10x | at 100x | Growth |\n|---|---|---|---|---|---|\n";
    for (const Click& click : Clicks) {
        out << "| " << click.Work << " | "
            << OrNone(figures.Median(click.Id, Ours),
                      [&](double time) { return AgainstReach(time, click.Reach * 1e6, TimeText); })
            << " | " << (click.Reach > 0 ? Format("%g ms", click.Reach) : "stated");
        for (const int scale : {10, 100})
            out << " | " << OrNone(figures.Median(click.Id, Ours, scale), TimeText);
        out << " | " << OrNone(figures.Exponent(click.Id, Ours), RatioText) << " |\n";
    }
}

void AddPeers(std::ostream& out, const Figures& figures) {
    out << "\n| Access | By | 32 KB | times ours | 10x | times ours | 100x | times ours | Growth |\n"
           "|---|---|---|---|---|---|---|---|---|\n";
    for (const char* access : Accesses)
        for (const std::string& contender : figures.Contenders(access)) {
            out << "| `" << (access == Accesses[0] ? "ReadKey" : "WriteKey") << "` | " << contender;
            for (const int scale : Scales)
                out << " | " << OrNone(figures.Median(access, contender, scale), TimeText) << " | "
                    << OrNone(figures.Ratio(access, contender, scale),
                              [](double r) { return Rounded(1 / r); });
            out << " | " << OrNone(figures.Exponent(access, contender), RatioText) << " |\n";
        }
}

void AddBuild(std::ostream& out, const BuildTimes& times) {
    if (!times.CleanBuild || !times.Suite)
        return;
    out << "\n| House | Time | Reach |\n|---|---|---|\n"
        << "| clean build of everything | " << AgainstReach(*times.CleanBuild, 240, SecondsText)
        << " | 240 s |\n"
        << "| all tests | " << AgainstReach(*times.Suite, 300, SecondsText) << " | 300 s |\n";
}

std::string Processor() {
    std::ifstream info("/proc/cpuinfo");
    for (std::string line; std::getline(info, line);)
        if (line.starts_with("model name"))
            return line.substr(line.find(':') + 2);
    return "a processor that does not tell its name";
}

} // namespace

std::string TablesOf(const Figures& figures, const BuildTimes& times) {
    std::ostringstream out;
    out << "Medians of one run on " << std::thread::hardware_concurrency() << " cores of " << Processor()
        << ".\n\n";
    AddRows(out, figures);
    AddClicks(out, figures);
    AddPeers(out, figures);
    AddBuild(out, times);
    return out.str();
}

bool PutBetweenMarks(const std::string& path, const std::string& text) {
    constexpr std::string_view begin = "<!-- figures -->\n";
    constexpr std::string_view end = "<!-- end of figures -->";
    std::ifstream file(path, std::ios::binary);
    std::string bytes{std::istreambuf_iterator<char>(file), {}};
    const auto from = bytes.find(begin);
    const auto to = bytes.find(end);
    if (from == std::string::npos || to == std::string::npos || to < from)
        return false;
    const auto at = from + begin.size();
    bytes.replace(at, to - at, "\n" + text + "\n");
    return static_cast<bool>(std::ofstream(path, std::ios::binary) << bytes);
}

} // namespace gfc::bench
