#include "plan/Wish.h"

#include "config/FileIni.h"
#include "config/VarINIFile.h"
#include "plan/FileInMemory.h"
#include "services/CodePage.h"
#include "services/Text.h"

#include <algorithm>
#include <map>
#include <optional>

namespace gfc::plan {

namespace {

// What is read of a text once it is stored.
std::string AsRead(const std::string& text) {
    FileInMemory file("cell.ini", {});
    config::FileIni ini(file);
    ini.WriteKey("Cell", "Text", text, file.Path());
    return ini.ReadKey("Cell", "Text", file.Path());
}

// Nearly every cell is, so that it need not be tried.
bool IsShortWord(std::string_view text) {
    constexpr std::size_t isShort = 64;
    return text.size() < isShort && std::ranges::all_of(text, [](char c) {
               return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') ||
                      std::string_view(".-_").find(c) != std::string_view::npos;
           });
}

class Gatherer {
public:
    Gatherer(const Sheet& sheet, Faults& faults) : sheet_(sheet), faults_(faults) {}

    std::vector<StationWish> Gather() {
        if (!ReadTitles())
            return {};
        for (const Sheet::Row& row : sheet_.Rows)
            Take(row);
        for (StationWish& wish : wishes_)
            std::ranges::sort(wish.Runs, {}, &RunWish::Run);
        return std::move(wishes_);
    }

private:
    bool ReadTitles() {
        const std::size_t before = faults_.size();
        for (const std::string& title : sheet_.Titles) {
            const Column* column = title.empty() ? nullptr : ColumnOf(title);
            if (column == nullptr)
                Blame(0, title, {}, "There is no such column. A template shows those that there are.");
            else if (std::ranges::find(columns_, column) != columns_.end())
                Blame(0, title, {}, "The column stands twice.");
            columns_.push_back(column);
        }
        for (const char* needed : {"Station", "Runs", "Standard", "Source", "Units"})
            if (std::ranges::find(columns_, ColumnOf(needed)) == columns_.end())
                Blame(0, needed, {}, "The column is missing.");
        if (sheet_.Rows.empty())
            Blame(0, {}, {}, "The table has no station.");
        return faults_.size() == before;
    }

    void Blame(int row, const std::string& column, const std::string& value, const std::string& text) {
        faults_.push_back({row, column, value, text});
    }

    [[nodiscard]] std::string CellOf(const Sheet::Row& row, ColumnKind kind) const {
        for (std::size_t i = 0; i < columns_.size(); ++i)
            if (columns_[i]->Kind == kind)
                return row.Cells[i];
        return {};
    }

    // Nothing, with a fault, where the cell says no runs.
    std::optional<std::vector<int>> RunsOf(const Sheet::Row& row) {
        const std::string text = CellOf(row, ColumnKind::Runs);
        std::vector<int> runs;
        for (const char c : text) {
            if (c == ' ' || c == ',' || c == ';' || c == '+')
                continue;
            const int run = c - '0';
            if (run < 1 || run > config::MaxRuns || std::ranges::find(runs, run) != runs.end()) {
                runs.clear();
                break;
            }
            runs.push_back(run);
        }
        if (!runs.empty())
            return runs;
        Blame(row.Number, "Runs", text, "Say the runs of the row, each once, as 1 or 1 3 5.");
        return std::nullopt;
    }

    void Take(const Sheet::Row& row) {
        const std::string station = CellOf(row, ColumnKind::Station);
        if (station.empty())
            return Blame(row.Number, "Station", {}, "Say which station the row is for.");
        const auto runs = RunsOf(row);
        if (!runs)
            return;
        StationWish& wish = WishOf(station, row.Number);
        for (const int run : *runs)
            if (std::ranges::find(wish.Runs, run, &RunWish::Run) != wish.Runs.end())
                Blame(row.Number, "Runs", std::to_string(run), "Another row says what this run is to be.");
            else
                wish.Runs.push_back({run, row.Number, {}});
        for (std::size_t i = 0; i < columns_.size(); ++i)
            if (!row.Cells[i].empty())
                TakeCell(wish, row, *columns_[i], row.Cells[i]);
    }

    StationWish& WishOf(const std::string& station, int row) {
        const auto [place, added] = places_.try_emplace(services::FoldCase(station), wishes_.size());
        if (added)
            wishes_.push_back({station, row, {}, {}});
        return wishes_[place->second];
    }

    void TakeCell(StationWish& wish, const Sheet::Row& row, const Column& column, const std::string& text) {
        if (!services::CodePageHolds(text))
            return Blame(row.Number, column.Title, text, "The configuration cannot hold these characters.");
        if (const std::string read = IsShortWord(text) ? text : AsRead(text); read != text)
            return Blame(row.Number, column.Title, text,
                         "The configuration would say \"" + read +
                             "\" instead: quotes around a text, line ends, and more than 254 characters are "
                             "lost in it.");
        const bool ofRun = column.Kind == ColumnKind::Run || column.Kind == ColumnKind::RunTag;
        if (ofRun) {
            for (RunWish& run : wish.Runs)
                if (run.Row == row.Number)
                    run.Own[&column] = {row.Number, text};
            return;
        }
        if (column.Kind == ColumnKind::Station || column.Kind == ColumnKind::Runs)
            return;
        const auto [said, added] = wish.Common.try_emplace(&column, Said{row.Number, text});
        if (!added && said->second.Text != text)
            Blame(row.Number, column.Title, text,
                  "Row " + std::to_string(said->second.Row) + " says \"" + said->second.Text +
                      "\" for the same station; all its runs share one.");
    }

    const Sheet& sheet_;
    Faults& faults_;
    std::vector<const Column*> columns_;
    std::vector<StationWish> wishes_;
    std::map<std::string, std::size_t> places_; // by station, its case folded
};

} // namespace

std::string StationWish::TextOf(std::string_view key) const {
    const auto found = Common.find(ColumnOf(key));
    return found == Common.end() ? std::string() : found->second.Text;
}

std::vector<StationWish> WishesIn(const Sheet& sheet, Faults& faults) {
    if (sheet.Titles.empty()) // which is a fault already
        return {};
    return Gatherer(sheet, faults).Gather();
}

} // namespace gfc::plan
