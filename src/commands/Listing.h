#pragma once

#include "audit/Check.h"

#include <optional>
#include <ostream>
#include <string>

// What gfc-audit check gives out, for people and for programs. A station is written as soon as it is checked.
namespace gfc::commands {

class Listing {
public:
    virtual ~Listing() = default;
    virtual void Begin(const std::string& project) = 0;
    virtual void Put(const audit::StationReport& report) = 0;
    virtual void End() = 0;
};

// Findings below the level are left out. Stations without one that is listed are one line.
[[nodiscard]] std::unique_ptr<Listing> MakeTextListing(std::ostream& out, audit::Severity level);
// All findings where no level is given.
[[nodiscard]] std::unique_ptr<Listing> MakeJsonListing(std::ostream& out,
                                                       std::optional<audit::Severity> level);

void ListRules(std::ostream& out);
void ListRulesAsJson(std::ostream& out);

} // namespace gfc::commands
