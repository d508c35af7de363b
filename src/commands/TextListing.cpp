#include "commands/Listing.h"

#include <memory>

namespace gfc::commands {

namespace {

class TextListing : public Listing {
public:
    TextListing(std::ostream& out, audit::Severity level) : out_(out), level_(level) {}

    void Begin(const std::string& project) override {
        if (!project.empty())
            out_ << "Project " << project << "\n";
    }
    void Put(const audit::StationReport& report) override {
        audit::Findings listed;
        for (const audit::Finding& finding : report.Findings)
            if (finding.Severity <= level_)
                listed.push_back(finding);
        out_ << "\n" << report.Station << ": ";
        out_ << (report.Configured ? audit::CountText(listed) : "not configured") << "\n";
        for (const audit::Finding& finding : listed)
            Put(finding);
    }
    void End() override {}

private:
    void Put(const audit::Finding& finding) {
        out_ << "  " << audit::WordOf(finding.Severity) << "  ";
        if (finding.Run > 0)
            out_ << "Run " << finding.Run << "  ";
        out_ << finding.Text << "  (" << finding.Row().Name << ")\n"
             << "      " << finding.Row().Advice << "\n";
    }

    std::ostream& out_;
    audit::Severity level_;
};

} // namespace

std::unique_ptr<Listing> MakeTextListing(std::ostream& out, audit::Severity level) {
    return std::make_unique<TextListing>(out, level);
}

void ListRules(std::ostream& out) {
    std::optional<audit::Area> area;
    for (const audit::Rule& rule : audit::Rules()) {
        if (rule.Area != area)
            out << (area ? "\n" : "") << audit::TitleOf(rule.Area) << "\n";
        area = rule.Area;
        out << "\n  " << rule.Name << " (" << audit::WordOf(rule.Severity) << ")\n"
            << "    Looks at: " << rule.Looks << "\n"
            << "    Says:     " << rule.Text << "\n"
            << "    To do:    " << rule.Advice << "\n"
            << "    Source:   " << rule.Source << "\n";
    }
}

} // namespace gfc::commands
