#include "workshop/import/Heading.h"

#include "workshop/import/TableValues.h"
#include "workshop/text/Letters.h"

#include <algorithm>

namespace gfc::workshop {

namespace {

// Lists of points bear a name, a date and the like above their titles, never a page of it.
constexpr std::size_t RowsLookedAt = 40;

const ColumnWish* WishFor(std::string_view title, const TableWishes& wishes) {
    const auto wish = std::find_if(wishes.Columns.begin(), wishes.Columns.end(),
                                   [&](const ColumnWish& each) { return SameName(each.Theirs, title); });
    return wish == wishes.Columns.end() ? nullptr : &*wish;
}

bool IsTitle(const std::string& field, const TableWishes& wishes) {
    return !field.empty() && (WishFor(OnOneLine(field), wishes) != nullptr ||
                              ColumnKnownAs(field) != nullptr || NamesSomeAddress(field));
}

// Where nobody knows a title: what stands above them, a name or a date, fills fewer fields than they do, and
// no row below them fills more.
std::size_t FullestRow(const std::vector<CsvRow>& rows) {
    const auto filled = [](const CsvRow& row) {
        return std::count_if(row.Fields.begin(), row.Fields.end(),
                             [](const std::string& field) { return !field.empty(); });
    };
    const auto end = rows.begin() + static_cast<std::ptrdiff_t>(std::min(rows.size(), RowsLookedAt));
    const auto fewer = [&](const CsvRow& a, const CsvRow& b) { return filled(a) < filled(b); };
    return static_cast<std::size_t>(std::max_element(rows.begin(), end, fewer) - rows.begin());
}

std::size_t TitlesAt(const std::vector<CsvRow>& rows, const TableWishes& wishes) {
    std::size_t best = 0;
    std::size_t most = 0;
    for (std::size_t at = 0; at < std::min(rows.size(), RowsLookedAt); ++at) {
        if (const std::size_t count = CountTitles(rows[at].Fields, wishes); count > most) {
            best = at;
            most = count;
        }
    }
    return most > 0 ? best : FullestRow(rows);
}

bool IsDotted(std::string_view text) {
    return std::count(text.begin(), text.end(), '.') == 3 &&
           text.find_first_not_of("0123456789.") == std::string_view::npos;
}

// Finds the columns of one row of titles.
class HeadingReader {
public:
    HeadingReader(const std::vector<CsvRow>& rows, const TableWishes& wishes,
                  std::vector<Complaint>& complaints)
        : rows_(rows), wishes_(wishes), complaints_(complaints) {
        heading_.At = TitlesAt(rows, wishes);
        for (const std::string& title : rows[heading_.At].Fields) {
            heading_.Titles.push_back(OnOneLine(title));
        }
        heading_.Columns.resize(heading_.Titles.size());
    }

    [[nodiscard]] Heading Read() {
        TakeWishes();
        TakeTitles();
        LookForMissing();
        return std::move(heading_);
    }

private:
    void TakeWishes() {
        for (const ColumnWish& wish : wishes_.Columns) {
            const auto title =
                std::find_if(heading_.Titles.begin(), heading_.Titles.end(),
                             [&](const std::string& each) { return SameName(each, wish.Theirs); });
            const Column* column = ColumnNamed(wish.Ours);
            if (title == heading_.Titles.end()) {
                Complain(wish.Theirs, "the table has no such column, which --map names");
            } else if (wish.Ours == LeftOut) {
                heading_.Ignored.push_back(*title);
                heading_.Foreign = true;
            } else if (column == nullptr) {
                Complain(wish.Theirs, "--map names \"" + wish.Ours + "\", which is no column of ours");
            } else {
                Give(static_cast<std::size_t>(title - heading_.Titles.begin()), *column);
            }
        }
    }

    void TakeTitles() {
        for (std::size_t at = 0; at < heading_.Titles.size(); ++at) {
            if (heading_.Columns[at] == nullptr && WishFor(heading_.Titles[at], wishes_) == nullptr) {
                TakeTitle(at);
            }
        }
    }

    void TakeTitle(std::size_t at) {
        const std::string& title = heading_.Titles[at];
        const Column* column = NamesSomeAddress(title) ? KindOfAddress(at) : ColumnKnownAs(title);
        if (column != nullptr && !IsWished(*column)) {
            Give(at, *column);
        } else if (HoldsAnything(at) || !title.empty()) {
            LeaveOut(at);
        }
    }

    // What a person has named stands for a column, whatever other titles are like it.
    [[nodiscard]] bool IsWished(const Column& column) const {
        return std::any_of(wishes_.Columns.begin(), wishes_.Columns.end(),
                           [&](const ColumnWish& wish) { return ColumnNamed(wish.Ours) == &column; });
    }

    void LeaveOut(std::size_t at) {
        const std::string& title = heading_.Titles[at];
        heading_.Foreign = true;
        if (wishes_.IgnoreUnknown) {
            heading_.Ignored.push_back(title);
        } else if (NamesSomeAddress(title)) {
            Complain(title,
                     "may be the register or the IP address, and its values are neither throughout; say "
                     "which with --map \"" +
                         title + "=Register\" or leave it out with --ignore-unknown");
        } else if (title.empty()) {
            Complain("", "column " + std::to_string(at + 1) +
                             " has values and no title; leave it out with --ignore-unknown");
        } else {
            Complain(title,
                     "no such column is known; name it with --map or leave it out with --ignore-unknown");
        }
    }

    void Give(std::size_t at, const Column& column) {
        const auto other = std::find(heading_.Columns.begin(), heading_.Columns.end(), &column);
        const std::string& title = heading_.Titles[at];
        if (other == heading_.Columns.end()) {
            heading_.Columns[at] = &column;
            heading_.Foreign = heading_.Foreign || !SameName(title, column.Title);
            return;
        }
        const std::string& first =
            heading_.Titles[static_cast<std::size_t>(other - heading_.Columns.begin())];
        Complain(title, SameName(title, first) ? "stands twice in the titles"
                                               : "is " + std::string(column.Title) + " as \"" + first +
                                                     "\" is; say with --map which of them it is");
    }

    void LookForMissing() {
        for (const Column& column : AllColumns()) {
            const bool stands = std::find(heading_.Columns.begin(), heading_.Columns.end(), &column) !=
                                heading_.Columns.end();
            if (!stands && column.Needed != Need::Never && !IsTold(column)) {
                Complain(std::string(column.Title), "is missing in the titles" + HelpFor(column));
            }
        }
    }

    [[nodiscard]] bool IsTold(const Column& column) const {
        return (column.Title == "Station" && !wishes_.Station.empty()) ||
               (column.Title == "Module" && !wishes_.Module.empty());
    }
    [[nodiscard]] static std::string HelpFor(const Column& column) {
        if (column.Title == "Station") {
            return "; name one for all rows with --station";
        }
        return column.Title == "Module" ? "; name one for all rows with --module" : "";
    }

    [[nodiscard]] bool HoldsAnything(std::size_t at) const {
        return std::any_of(
            rows_.begin() + static_cast<std::ptrdiff_t>(heading_.At) + 1, rows_.end(),
            [at](const CsvRow& row) { return at < row.Fields.size() && !row.Fields[at].empty(); });
    }

    template <typename Test>
    [[nodiscard]] bool AllUnder(std::size_t at, Test test) const {
        return HoldsAnything(at) && std::all_of(rows_.begin() + static_cast<std::ptrdiff_t>(heading_.At) + 1,
                                                rows_.end(), [&](const CsvRow& row) {
                                                    return at >= row.Fields.size() ||
                                                           row.Fields[at].empty() || test(row.Fields[at]);
                                                });
    }

    // A plain "Address" is told by what stands under it.
    [[nodiscard]] const Column* KindOfAddress(std::size_t at) const {
        if (AllUnder(at, IsDotted)) {
            return ColumnNamed("IP Address");
        }
        const auto isRegister = [](const std::string& text) { return ReadRegister(text).has_value(); };
        return AllUnder(at, isRegister) ? ColumnNamed("Register") : nullptr;
    }

    void Complain(std::string title, std::string text) {
        complaints_.push_back({rows_[heading_.At].Row, std::move(title), std::move(text)});
    }

    const std::vector<CsvRow>& rows_;
    const TableWishes& wishes_;
    std::vector<Complaint>& complaints_;
    Heading heading_;
};

} // namespace

std::string TextOf(const Complaint& complaint) {
    std::string place = complaint.Row == 0 ? "" : "row " + std::to_string(complaint.Row);
    if (!complaint.Column.empty()) {
        place += (place.empty() ? "column " : ", column ") + complaint.Column;
    }
    return place.empty() ? complaint.Text : place + ": " + complaint.Text;
}

std::string Heading::NameOf(const Column& column) const {
    const auto at = std::find(Columns.begin(), Columns.end(), &column);
    const std::string ours(column.Title);
    if (at == Columns.end()) {
        return ours;
    }
    const std::string& theirs = Titles[static_cast<std::size_t>(at - Columns.begin())];
    return SameName(theirs, ours) ? ours : theirs + " (" + ours + ")";
}

std::size_t CountTitles(const std::vector<std::string>& fields, const TableWishes& wishes) {
    return static_cast<std::size_t>(std::count_if(
        fields.begin(), fields.end(), [&](const std::string& each) { return IsTitle(each, wishes); }));
}

Heading FindHeading(const std::vector<CsvRow>& rows, const TableWishes& wishes,
                    std::vector<Complaint>& complaints) {
    return HeadingReader(rows, wishes, complaints).Read();
}

} // namespace gfc::workshop
