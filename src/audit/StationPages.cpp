#include "audit/StationPages.h"

#include "audit/OneFile.h"
#include "binding/SummaryCommon.h"
#include "binding/SummaryRun.h"
#include "config/ConfigReader.h"
#include "config/RunLayout.h"
#include "config/Vocabulary.h"
#include "services/Text.h"
#include "services/modLocalTimeAndGMT.h"

#include <algorithm>

namespace gfc::audit {

namespace {

using binding::SummaryPage;

bool SaysYes(const std::string& text) {
    return services::EqualNoCase(text, config::Yes);
}

class Reader {
public:
    Reader(const StationFile& file, const project::TagList& tags, platform::Machine& machine)
        : file_(file), tags_(tags), machine_(machine), files_(file.Path, file.Bytes) {
        station_.ProjectName = file.ProjectName;
        station_.CurrentStation = file.Station;
        config::LoadStationConfig(ini_, station_, file.Path);
    }

    [[nodiscard]] std::vector<SummaryTable> All() {
        Add("Common Parameters", binding::CommonParametersPage(station_, EnabledRuns()));
        Add("Working Modules", binding::WorkingModulesPage(station_));
        Add("Gas Density", binding::GasDensityPage(station_));
        for (int run = 1; run <= config::MaxRuns; ++run)
            if (IsOn(run) || SaysYes(Read("FlowRuns", config::RunSection(run) + std::to_string(run))))
                AddRun(run);
        return std::move(tables_);
    }

private:
    [[nodiscard]] std::string Read(const std::string& section, const std::string& key) const {
        return ini_.ReadKey(section, key, file_.Path);
    }
    [[nodiscard]] bool IsOn(int run) const {
        return SaysYes(station_.Run.at(static_cast<std::size_t>(run - 1)));
    }

    [[nodiscard]] std::vector<binding::EnabledRun> EnabledRuns() const {
        std::vector<binding::EnabledRun> runs;
        for (int run = 1; run <= config::MaxRuns; ++run)
            if (IsOn(run))
                runs.push_back(EnabledRun(run));
        return runs;
    }

    [[nodiscard]] binding::EnabledRun EnabledRun(int run) const {
        const std::string section = config::RunSection(run);
        const services::ContractTime stored{Read(section, "ContractHour"), Read(section, "ContractMin")};
        const bool none = stored.ContractHour.empty() && stored.ContractMin.empty();
        return {run, Read(section, "CalibrationFactor"),
                none ? std::string() : services::ContractTimeText(machine_.Clock, machine_.TimeZone, stored),
                Read(section, "meterKFactor"), Read(section, "GasDensityStandard")};
    }

    void AddRun(int run) {
        config::LoadRun(ini_, station_, file_.Path, run);
        const std::string title = "Run " + std::to_string(run) + (IsOn(run) ? ": " : " (disabled): ");
        const auto captions = binding::RunTabCaptions(station_);
        Add(title + "Parameters", binding::RunParametersPage(station_));
        Add(title + captions[0], binding::RunInputsPage(station_));
        Add(title + captions[1], binding::RunOutputsPage(station_));
        Add(title + captions[2], binding::GasInputsPage(station_));
        Add(title + captions[3], binding::GasOutputsPage(station_));
    }

    void Add(std::string title, SummaryPage page) {
        if (page.List == binding::SummaryList::Tags && !tags_.empty())
            AddModules(page);
        tables_.push_back(
            {std::move(title), std::move(page.Columns), std::move(page.Rows), std::move(page.Line)});
    }

    void AddModules(SummaryPage& page) const {
        constexpr std::size_t name = 2;
        page.Columns.emplace_back("Module");
        for (auto& row : page.Rows) {
            const auto found =
                row.size() <= name ? tags_.end() : std::ranges::find_if(tags_, [&](const project::Tag& tag) {
                    return services::EqualNoCase(std::string_view(tag.TagName), row[name]);
                });
            row.resize(page.Columns.size());
            row.back() = found == tags_.end() ? std::string() : std::string(found->ModuleName);
        }
    }

    const StationFile& file_;
    const project::TagList& tags_;
    platform::Machine& machine_;
    OneFile files_;
    config::FileIni ini_{files_};
    config::StationConfig station_;
    std::vector<SummaryTable> tables_;
};

} // namespace

std::vector<SummaryTable> PagesOf(const StationFile& file, const project::TagList& tags,
                                  platform::Machine& machine) {
    return Reader(file, tags, machine).All();
}

} // namespace gfc::audit
