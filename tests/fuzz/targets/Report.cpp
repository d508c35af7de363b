#include "report/Report.h"

#include "audit/Comparison.h"
#include "fuzz/Input.h"
#include "fuzz/Target.h"
#include "report/Html.h"
#include "services/CodePage.h"

#include <algorithm>
#include <array>
#include <zlib.h>

// Any bytes as a report that is read back: it is none, or what was read is written in each form and read the
// same. Any texts as those of a project: they end neither the report nor the page that shows them.
namespace gfc::fuzz {

namespace {

using report::StationPages;

constexpr std::size_t LongestText = 24;
constexpr std::array<std::string_view, 6> Words = {"</script>",
                                                   "</style>",
                                                   "<script type=\"application/json\" id=\"gfc-report\">",
                                                   "\xC3\xA9\xE2\x82\xAC",
                                                   "\"; } body { display: none",
                                                   "\xFF\xC3"};

std::size_t Count(std::string_view text, std::string_view what) {
    std::size_t count = 0;
    for (std::size_t at = text.find(what); at != std::string_view::npos; at = text.find(what, at + 1))
        ++count;
    return count;
}

// Whatever the texts are, the page has the parts that this program gives it.
void CheckPage(const report::Report& report, const std::string& page) {
    Require(page.starts_with("<!DOCTYPE html>\n") && page.ends_with("</body>\n</html>\n"), "a page is whole");
    for (const std::string_view once : {"<style", "</style", "<script", "</script", "</head>", "<body"})
        Require(Count(page, once) == 1, "no text of a report is taken for the page's own");
    Require(Count(page, "<section") == report.Stations.size() + 1, "each station has its pages");
}

void CheckForms(const report::Report& report) {
    const std::string json = ToJson(report);
    const std::string page = ToHtml(report);
    Require(std::ranges::all_of(json, [](char c) { return c >= 0x20 && c < 0x7F; }), "JSON is ASCII alone");
    Require(report::ReadReport(json) == report, "the form for programs is read as it was");
    Require(report::ReadReport(page) == report, "a page carries the report");
    CheckPage(report, page);
    auto later = report;
    later.Time += "x";
    Require(ContentHash(later) == ContentHash(report), "the time is no part of the content");
    later.User += "x";
    Require(ContentHash(later) != ContentHash(report), "all else is");
}

// As a report is held against the files of its project.
void CheckStation(const StationPages& station) {
    Require(station.Entry >= 0, "an entry has a number");
    const auto bytes = services::ToCodePage(station.File);
    if (!bytes)
        return;
    Require(services::FromCodePage(*bytes) == station.File, "the bytes of a file come back");
    const auto rows = audit::Compare({*bytes, 0}, {*bytes, 0});
    Require(std::ranges::all_of(rows, &audit::ComparedRow::IsEqual), "a file differs from itself in nothing");
}

void CheckRead(const std::optional<report::Report>& report) {
    if (!report)
        return;
    Require(report->Entries >= 0, "a history has no fewer entries than none");
    std::ranges::for_each(report->Stations, CheckStation);
    CheckForms(*report);
}

std::string AnyText(Input& input) {
    const std::size_t which = input.Below(2 * Words.size());
    return which < Words.size() ? std::string(Words.at(which)) : std::string(input.Text(LongestText));
}

std::vector<std::string> AnyTexts(Input& input) {
    std::vector<std::string> texts(input.Below(4));
    for (std::string& text : texts)
        text = AnyText(input);
    return texts;
}

StationPages AnyStation(Input& input) {
    StationPages station;
    for (std::string* text :
         {&station.Name, &station.FileName, &station.FileHash, &station.File, &station.Unread})
        *text = AnyText(input);
    station.Entry = input.Number() & 0x7FFFFFFF;
    for (std::size_t count = input.Below(3); count > 0; --count) {
        audit::SummaryTable table{AnyText(input), AnyTexts(input), {}, AnyText(input)};
        for (std::size_t rows = input.Below(3); rows > 0; --rows)
            table.Rows.push_back(AnyTexts(input));
        station.Tables.push_back(std::move(table));
    }
    return station;
}

report::Report AnyReport(Input& input) {
    report::Report report;
    for (std::string* text : {&report.Time, &report.Project, &report.ProjectFile, &report.User,
                              &report.MachineUser, &report.Version, &report.HistoryHash, &report.Since})
        *text = AnyText(input);
    report.Entries = input.Number() & 0x7FFFFFFF;
    for (std::size_t count = input.Below(3); count > 0; --count)
        report.Stations.push_back(AnyStation(input));
    return report;
}

// What was no UTF-8 is read as it was written.
void CheckMade(const report::Report& made) {
    const auto read = report::ReadReport(ToJson(made));
    Require(read.has_value(), "every report is read again");
    Require(ToJson(*read) == ToJson(made) && ContentHash(*read) == ContentHash(made),
            "what was read is written the same");
    const std::string page = ToHtml(made);
    Require(report::ReadReport(page) == read, "a page carries the report");
    CheckPage(made, page);
    CheckForms(*read);
}

// As a PDF bears its attachment.
std::string PdfAround(std::string_view attachment) {
    auto size = compressBound(static_cast<uLong>(attachment.size()));
    std::string packed(size, '\0');
    compress(reinterpret_cast<Bytef*>(packed.data()), &size,
             reinterpret_cast<const Bytef*>(attachment.data()), static_cast<uLong>(attachment.size()));
    packed.resize(size);
    return "%PDF-1.6\n7 0 obj\n<<\n/Type /Catalog\n>>\nendobj\n12 0 obj\n<<\n/Filter "
           "/FlateDecode\n>>\nstream\n" +
           packed + "\nendstream\nendobj\n13 0 obj\n<</F (gfc-report.json)\n/EF <</F 12 0 R>>\n>>\nendobj\n";
}

} // namespace

void Report(std::string_view bytes) {
    Input input(bytes);
    switch (input.Below(4)) {
    case 0:
        return CheckRead(report::ReadReport(input.Rest()));
    case 1: {
        const std::string page = std::string(input.Text(LongestText)) + std::string(report::EmbeddedBegin) +
                                 std::string(input.Rest());
        return CheckRead(report::ReadReport(page));
    }
    case 2: {
        const std::string_view json = input.Rest();
        const auto read = report::ReadReport(PdfAround(json));
        Require(read == report::FromJson(json), "a PDF gives what it bears");
        return CheckRead(read);
    }
    default:
        return CheckMade(AnyReport(input));
    }
}

} // namespace gfc::fuzz
