#include "plan/Template.h"

#include "config/ConfigReader.h"
#include "config/Vocabulary.h"
#include "plan/Rebind.h"
#include "services/Text.h"
#include "suggest/Known.h"

#include <algorithm>
#include <array>

namespace gfc::plan {

namespace {

constexpr std::array<std::string_view, 6> Always = {"Station",          "Runs",        "FlowAlgorithm",
                                                    "GasDensitySource", "SystemUnits", "Tags"};

// One station's file, as far as its runs have it in common.
class StationCells {
public:
    StationCells(const config::FileIni& ini, const TemplateStation& of, std::string_view tags)
        : ini_(ini), of_(of), tags_(tags) {
        config::LoadStationConfig(ini, station_, of.File);
        station_.FlagAGA7 = station_.FlowAlgorithm == config::algorithm::AGA7;
        isExternal_ = services::EqualNoCase(station_.ExtAtmPress, config::Yes);
    }

    [[nodiscard]] std::vector<std::string> RowOf(int run) const {
        const auto mechanical = config::LoadRunMechanical(ini_, of_.File, run);
        std::vector<std::string> row;
        for (const Column& column : Columns())
            row.push_back(CellOf(column, run, mechanical));
        return row;
    }

private:
    [[nodiscard]] std::string CellOf(const Column& column, int run,
                                     const config::RunMechanical& mechanical) const {
        switch (column.Kind) {
        case ColumnKind::Station:
            return of_.Station;
        case ColumnKind::Runs:
            return std::to_string(run);
        case ColumnKind::Tags:
            return std::string(tags_);
        case ColumnKind::Common:
            return CommonCell(column, run);
        case ColumnKind::CommonTag:
            return isExternal_ && tags_.empty() ? TagText(station_.CommonPa) : std::string();
        case ColumnKind::Run:
        case ColumnKind::RunTag:
            break;
        }
        if (!config::GroupPresent(column.OfRun->Group, station_, mechanical))
            return {};
        return column.Kind == ColumnKind::Run ? Read(config::RunSection(run), column.Key)
                                              : TagCell(column, run);
    }

    [[nodiscard]] std::string CommonCell(const Column& column, int run) const {
        // The common section calls every gas compressible; the runs say what was chosen.
        if (column.OfStation == nullptr)
            return Read(config::RunSection(run), column.Key);
        const bool isGas = column.OfStation->Section == config::CommonSection::Gas;
        if (isGas && !config::IsGasModel(station_.GasDensitySource))
            return {};
        if (column.Key == "AtmPress" && isExternal_)
            return {};
        return Read(config::SectionToWrite(column.OfStation->Section, station_), column.Key);
    }

    [[nodiscard]] std::string TagCell(const Column& column, int run) const {
        if (!tags_.empty())
            return {};
        config::TagBinding binding;
        config::ForEachPart(*column.OfRun, [&](config::BindingPart part) {
            config::PartOf(binding, part) =
                Read(config::RunSection(run), config::KeyOf(*column.OfRun, part, config::KeyUse::FullWrite));
        });
        return TagText(binding);
    }

    [[nodiscard]] std::string TagText(const config::TagBinding& binding) const {
        if (of_.Tags == nullptr)
            return binding.Tag;
        const auto alike = std::ranges::count_if(*of_.Tags, [&](const project::Tag& tag) {
            return services::EqualNoCase(tag.TagName, binding.Tag);
        });
        return alike > 1 ? Line::TextOf(binding) : binding.Tag;
    }

    [[nodiscard]] std::string Read(std::string_view section, std::string_view key) const {
        return ini_.ReadKey(section, key, of_.File);
    }

    const config::FileIni& ini_;
    const TemplateStation& of_;
    std::string_view tags_;
    config::StationConfig station_;
    bool isExternal_ = false;
};

std::vector<std::vector<std::string>> WithoutEmptyColumns(const std::vector<std::vector<std::string>>& rows) {
    std::vector<std::vector<std::string>> kept(rows.size());
    for (std::size_t i = 0; i < Columns().size(); ++i) {
        const bool said = std::ranges::any_of(rows.begin() + 1, rows.end(),
                                              [&](const auto& row) { return !row[i].empty(); });
        if (said || std::ranges::find(Always, Columns()[i].Key) != Always.end())
            for (std::size_t row = 0; row < rows.size(); ++row)
                kept[row].push_back(rows[row][i]);
    }
    return kept;
}

} // namespace

std::vector<std::vector<std::string>>
TemplateOf(const config::FileIni& ini, const std::vector<TemplateStation>& stations, std::string_view tags) {
    std::vector<std::vector<std::string>> rows(1);
    for (const Column& column : Columns())
        rows.front().push_back(column.Title);
    for (const TemplateStation& station : stations) {
        const config::FileBatch oneRead(ini, station.File);
        const StationCells cells(ini, station, tags);
        for (const int run : suggest::RunsInFile(ini, station.File))
            rows.push_back(cells.RowOf(run));
    }
    return WithoutEmptyColumns(rows);
}

} // namespace gfc::plan
