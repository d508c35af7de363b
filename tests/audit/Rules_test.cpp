#include "audit/Finding.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace gfc::audit {
namespace {

TEST(Rules, have_a_name_of_their_own_of_small_letters_and_hyphens) {
    std::set<std::string_view> names;
    for (const Rule& rule : Rules()) {
        EXPECT_TRUE(names.insert(rule.Name).second) << rule.Name;
        EXPECT_EQ(rule.Name.find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789-"),
                  std::string_view::npos)
            << rule.Name;
    }
    EXPECT_EQ(names.size(), static_cast<std::size_t>(RuleId::Count));
}

TEST(Rules, say_what_they_look_at_what_to_do_and_where_they_are_from) {
    for (const Rule& rule : Rules()) {
        for (const auto text : {rule.Looks, rule.Text, rule.Advice, rule.Source})
            EXPECT_FALSE(text.empty()) << rule.Name;
        EXPECT_TRUE(rule.Text.ends_with('.')) << rule.Name;
        EXPECT_TRUE(rule.Advice.ends_with('.')) << rule.Name;
        EXPECT_EQ(std::ranges::count(rule.Text, '{'), std::ranges::count(rule.Text, '}')) << rule.Name;
    }
}

TEST(Rules, stand_area_by_area) {
    EXPECT_TRUE(std::ranges::is_sorted(Rules(), {}, &Rule::Area));
}

TEST(Severities, are_known_by_their_words) {
    for (const Severity severity : {Severity::Error, Severity::Warning, Severity::Note})
        EXPECT_EQ(SeverityOf(WordOf(severity)), severity);
    EXPECT_EQ(SeverityOf("Error"), std::nullopt);
}

TEST(Texts, are_filled_in_order) {
    EXPECT_EQ(TextOf(RuleOf(RuleId::StationOther), {"North", "South"}),
              "The file names the station North and is that of the station South.");
}

TEST(Findings, are_sorted_by_severity_and_counted) {
    Findings findings;
    Sink sink(findings);
    sink.About(2, true, "Run2");
    sink.Add(RuleId::GasNearest, {"GC_C1"}, {"Ekofisk", "0"});
    sink.Add(RuleId::NumberZero, {"OrificeDia", "0"}, {"OrificeDia"});
    sink.Add(RuleId::KeyMissing, {"OrificeDia"}, {"OrificeDia"});
    SortBySeverity(findings);
    EXPECT_EQ(findings[0].Rule, RuleId::NumberZero);
    EXPECT_EQ(findings[0].Variable, "Orifice Plate Internal Dia.");
    EXPECT_EQ(findings[0].Section, "Run2");
    EXPECT_EQ(findings[2].Rule, RuleId::GasNearest);
    EXPECT_EQ(findings[2].Variable, "Methane");
    EXPECT_EQ(CountText(findings), "2 errors, 1 note");
    EXPECT_EQ(CountText({}), "nothing to report");
}

TEST(Findings, about_a_run_that_is_off_are_notes) {
    Findings findings;
    Sink sink(findings);
    sink.About(3, false, "Run3");
    EXPECT_EQ(sink.Add(RuleId::NumberZero, {"OrificeDia", "0"}, {"OrificeDia"}).Severity, Severity::Note);
}

} // namespace
} // namespace gfc::audit
