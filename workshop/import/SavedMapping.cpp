#include "workshop/import/SavedMapping.h"

#include "workshop/import/Columns.h"
#include "workshop/store/Failure.h"
#include "workshop/store/OpenProject.h"
#include "workshop/store/WholeFile.h"
#include "workshop/text/Paths.h"

#include <algorithm>
#include <filesystem>
#include <sstream>
#include <system_error>

namespace gfc::workshop {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view Ending = ".mapping";

// Beside the mark of the open project: what this user's workshop remembers.
fs::path MappingFolder() {
    return OpenProjectMark().parent_path() / "mappings";
}

fs::path FileOf(const std::string& name) {
    if (!IsFileName(name)) {
        throw Failure("\"" + name + "\" cannot be the name of a mapping: it cannot be part of a file name.");
    }
    return MappingFolder() / PathOf(name + std::string(Ending));
}

// How one wish stands in a line, behind its name and "=".
struct Line {
    std::string_view Name;
    std::vector<std::string> (*Texts)(const TableWishes&); // none where nothing is wished
    bool (*Take)(TableWishes&, const std::string&);        // false for a text that it cannot be
};

std::vector<std::string> Unless(const std::string& text, bool nothing) {
    return nothing ? std::vector<std::string>{} : std::vector{text};
}

// clang-format off
const Line Lines[] = {
    {"map",
     [](const TableWishes& w) {
         std::vector<std::string> texts;
         for (const ColumnWish& each : w.Columns) { texts.push_back(JoinPair({each.Theirs, each.Ours})); }
         return texts;
     },
     [](TableWishes& w, const std::string& text) {
         const TextPair pair = SplitPair(text, "map");
         w.Columns.push_back({pair.Left, pair.Right});
         return pair.Right == LeftOut || ColumnNamed(pair.Right) != nullptr;
     }},
    {"module-type",
     [](const TableWishes& w) {
         std::vector<std::string> texts;
         for (const ModuleWish& each : w.ModuleTypes) { texts.push_back(JoinPair({each.Module, each.Type})); }
         return texts;
     },
     [](TableWishes& w, const std::string& text) {
         const TextPair pair = SplitPair(text, "module-type");
         w.ModuleTypes.push_back({pair.Left, pair.Right});
         return true;
     }},
    {"station",   [](const TableWishes& w) { return Unless(w.Station, w.Station.empty()); },
                  [](TableWishes& w, const std::string& text) { w.Station = text; return true; }},
    {"module",    [](const TableWishes& w) { return Unless(w.Module, w.Module.empty()); },
                  [](TableWishes& w, const std::string& text) { w.Module = text; return true; }},
    {"direction", [](const TableWishes& w) { return Unless(w.Direction, w.Direction.empty()); },
                  [](TableWishes& w, const std::string& text) {
                      w.Direction = text;
                      return text == "in" || text == "out";
                  }},
    {"encoding",  [](const TableWishes& w) { return Unless(w.Encoding, w.Encoding.empty()); },
                  [](TableWishes& w, const std::string& text) { w.Encoding = text; return true; }},
    {"register-base",
     [](const TableWishes& w) { return Unless(std::to_string(w.RegisterBase.value_or(0)), !w.RegisterBase); },
     [](TableWishes& w, const std::string& text) {
         w.RegisterBase = ParseNumber(text);
         return w.RegisterBase.has_value();
     }},
    {"ignore-unknown", [](const TableWishes& w) { return Unless("yes", !w.IgnoreUnknown); },
                       [](TableWishes& w, const std::string& text) {
                           w.IgnoreUnknown = text == "yes";
                           return w.IgnoreUnknown;
                       }},
};
// clang-format on

bool TakeLine(TableWishes& wishes, const std::string& text) {
    const std::size_t mark = text.find('=');
    const auto line = std::find_if(std::begin(Lines), std::end(Lines),
                                   [&](const Line& each) { return text.substr(0, mark) == each.Name; });
    return mark != std::string::npos && line != std::end(Lines) && line->Take(wishes, text.substr(mark + 1));
}

// A title may have line ends of its own; it then goes on in the next line, as a quoted field of CSV does.
bool IsOpen(const std::string& line) {
    return (line.starts_with("map=\"") || line.starts_with("module-type=\"")) &&
           std::count(line.begin(), line.end(), '"') % 2 != 0;
}

} // namespace

std::vector<std::string> SavedMappings() {
    std::vector<std::string> names;
    std::error_code none;
    for (const auto& entry : fs::directory_iterator(MappingFolder(), none)) {
        if (entry.path().extension() == Ending) {
            names.push_back(PathText(entry.path().stem()));
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

TableWishes LoadMapping(const std::string& name) {
    const fs::path file = FileOf(name);
    std::error_code none;
    if (!fs::exists(file, none)) {
        throw Failure("There is no mapping \"" + name +
                      "\"; \"io-workshop mappings\" lists those that there are.");
    }
    return WishesFrom(ReadWhole(file), PathText(file));
}

void SaveMapping(const std::string& name, const TableWishes& wishes) {
    const fs::path file = FileOf(name);
    MakeFolder(file.parent_path());
    ReplaceWhole(file, LinesOf(wishes));
}

std::string LinesOf(const TableWishes& wishes) {
    std::string lines;
    for (const Line& line : Lines) {
        for (const std::string& text : line.Texts(wishes)) {
            lines += std::string(line.Name) + '=' + text + '\n';
        }
    }
    return lines;
}

TableWishes WishesFrom(const std::string& lines, const std::string& source) {
    TableWishes wishes;
    std::istringstream in(lines);
    std::string line;
    for (int number = 1, next = 2; std::getline(in, line); number = next++) {
        for (std::string more; IsOpen(line) && std::getline(in, more); ++next) {
            line += '\n' + more;
        }
        if (!TakeLine(wishes, line)) {
            throw Failure(source + ": line " + std::to_string(number) + ", \"" + line +
                          "\", is none that a mapping has; make the mapping anew with --save-mapping.");
        }
    }
    return wishes;
}

} // namespace gfc::workshop
