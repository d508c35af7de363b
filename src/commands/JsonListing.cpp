#include "commands/Listing.h"

#include <nlohmann/json.hpp>

#include <memory>

namespace gfc::commands {

namespace {

using Json = nlohmann::ordered_json;

constexpr int Version = 1; // of the form; another one only for what a reader of this one could not take

std::string Written(const Json& json, int indent) {
    return json.dump(indent, ' ', false, Json::error_handler_t::replace);
}

Json JsonOf(const audit::Finding& finding) {
    const audit::Rule& rule = finding.Row();
    return {{"rule", rule.Name},      {"severity", audit::WordOf(finding.Severity)},
            {"run", finding.Run},     {"section", finding.Section},
            {"key", finding.Key},     {"variable", finding.Variable},
            {"value", finding.Value}, {"tag", finding.Tag},
            {"text", finding.Text},   {"advice", rule.Advice},
            {"source", rule.Source}};
}

class JsonListing : public Listing {
public:
    JsonListing(std::ostream& out, std::optional<audit::Severity> level) : out_(out), level_(level) {}

    void Begin(const std::string& project) override {
        out_ << "{\n\"version\": " << Version << ",\n\"project\": " << Written(project, 0)
             << ",\n\"stations\": [";
    }
    void Put(const audit::StationReport& report) override {
        Json findings = Json::array();
        for (const audit::Finding& finding : report.Findings)
            if (!level_ || finding.Severity <= *level_)
                findings.push_back(JsonOf(finding));
        const Json station = {{"name", report.Station},
                              {"file", report.Configured ? report.FileName() : std::string()},
                              {"configured", report.Configured},
                              {"findings", std::move(findings)}};
        out_ << (first_ ? "\n" : ",\n") << Written(station, 2);
        first_ = false;
    }
    void End() override { out_ << "\n]\n}\n"; }

private:
    std::ostream& out_;
    std::optional<audit::Severity> level_;
    bool first_ = true;
};

} // namespace

std::unique_ptr<Listing> MakeJsonListing(std::ostream& out, std::optional<audit::Severity> level) {
    return std::make_unique<JsonListing>(out, level);
}

void ListRulesAsJson(std::ostream& out) {
    Json rules = Json::array();
    for (const audit::Rule& rule : audit::Rules())
        rules.push_back({{"rule", rule.Name},
                         {"severity", audit::WordOf(rule.Severity)},
                         {"area", audit::TitleOf(rule.Area)},
                         {"looks", rule.Looks},
                         {"text", rule.Text},
                         {"advice", rule.Advice},
                         {"source", rule.Source}});
    out << Written({{"version", Version}, {"rules", std::move(rules)}}, 2) << "\n";
}

} // namespace gfc::commands
