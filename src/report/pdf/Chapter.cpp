#include "report/pdf/Chapter.h"

#include <algorithm>
#include <numeric>

namespace gfc::report {

namespace {

constexpr double dotsPerMillimetre = 300 / 25.4;
constexpr double beside = 1.2 * dotsPerMillimetre; // room at each side of a cell's text
constexpr double above = 0.5 * dotsPerMillimetre;  // and above and below it
constexpr double thin = 1;
constexpr double thick = 4;
constexpr double signature = 14 * dotsPerMillimetre;

QString ToQt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// The columns that want less than their share have what they want; the others share what is left. Where all
// have what they want, the rest makes each wider in its measure.
std::vector<double> Shared(const std::vector<double>& wanted, double width) {
    std::vector<std::size_t> order(wanted.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::sort(order, {}, [&](std::size_t column) { return wanted[column]; });
    std::vector<double> widths(wanted.size());
    for (std::size_t at = 0; at < order.size(); ++at) {
        const double share = width / static_cast<double>(order.size() - at);
        widths[order[at]] = std::min(wanted[order[at]], share);
        width -= widths[order[at]];
    }
    const double asked = std::accumulate(widths.begin(), widths.end(), 0.0);
    for (double& column : widths)
        column += width * column / asked;
    return widths;
}

} // namespace

Hands::Hands(QPaintDevice& paper)
    : Text(QStringLiteral("DejaVu Sans"), QFont::SansSerif, 8, false, paper),
      Bold(QStringLiteral("DejaVu Sans"), QFont::SansSerif, 8, true, paper),
      Code(QStringLiteral("DejaVu Sans Mono"), QFont::Monospace, 7, false, paper),
      Title(QStringLiteral("DejaVu Sans"), QFont::SansSerif, 18, true, paper),
      Heading(QStringLiteral("DejaVu Sans"), QFont::SansSerif, 14, true, paper),
      Subheading(QStringLiteral("DejaVu Sans"), QFont::SansSerif, 10, true, paper),
      Foot(QStringLiteral("DejaVu Sans"), QFont::SansSerif, 7, false, paper) {}

Chapter::Chapter(const Parts& parts, Hands& hands, double width) : hands_(hands), width_(width) {
    constexpr double rows = 12 * dotsPerMillimetre; // of what a heading must not be parted from
    for (const Part& part : parts)
        switch (part.TheKind) {
        case Part::Kind::Title:
            AddText(hands.Title, ToQt(part.Text), 0, rows);
            break;
        case Part::Kind::Heading:
            AddText(hands.Heading, ToQt(part.Text), 5 * dotsPerMillimetre, rows);
            break;
        case Part::Kind::Subheading:
            AddText(hands.Subheading, ToQt(part.Text), 4 * dotsPerMillimetre, rows);
            break;
        case Part::Kind::Line:
            AddText(IsHash(part.Text) ? hands.Code : hands.Text, ToQt(part.Text), above, 0);
            break;
        default:
            AddTable(part);
        }
}

void Chapter::AddText(Hand& hand, const QString& text, double before, double follows) {
    const QStringList lines = hand.Lines(text, width_);
    Block block;
    block.Before = before;
    block.Follows = follows;
    block.Rows.push_back({{{&hand, lines}}, static_cast<double>(lines.size()) * hand.LineHeight()});
    blocks_.push_back(std::move(block));
}

std::vector<double> Chapter::WidthsOf(const Part& part, std::size_t columns) const {
    std::vector<double> wanted(columns, 0);
    const auto measure = [&](const std::vector<std::string>& cells, Hand& hand) {
        for (std::size_t column = 0; column < std::min(columns, cells.size()); ++column) {
            Hand& with = IsHash(cells[column]) ? hands_.Code : hand;
            wanted[column] = std::max(wanted[column], with.WidthOf(ToQt(cells[column])) + 2 * beside);
        }
    };
    measure(part.Table.Columns, hands_.Bold);
    for (const auto& row : part.Table.Rows)
        measure(row, part.Table.Columns.empty() ? hands_.Bold : hands_.Text);
    if (part.TheKind == Part::Kind::Signatures)
        std::ranges::fill(wanted, width_ / static_cast<double>(columns));
    return Shared(wanted, width_);
}

void Chapter::AddTable(const Part& part) {
    constexpr std::size_t nameAndValue = 2;
    const bool facts = part.Table.Columns.empty();
    const std::size_t columns = facts ? nameAndValue : part.Table.Columns.size();
    Block block;
    block.Before = 1.5 * dotsPerMillimetre;
    block.Widths = WidthsOf(part, columns);
    if (!facts)
        block.Head = LaidOut(part.Table.Columns, block.Widths, &hands_.Bold, &hands_.Bold, 0);
    for (const auto& row : part.Table.Rows)
        block.Rows.push_back(LaidOut(row, block.Widths, facts ? &hands_.Bold : &hands_.Text, &hands_.Text,
                                     part.TheKind == Part::Kind::Signatures ? signature : 0));
    blocks_.push_back(std::move(block));
}

Chapter::Row Chapter::LaidOut(const std::vector<std::string>& cells, const std::vector<double>& widths,
                              Hand* first, Hand* others, double least) const {
    Row row;
    row.Height = least;
    for (std::size_t column = 0; column < widths.size(); ++column) {
        const std::string text = column < cells.size() ? cells[column] : std::string();
        Hand* with = IsHash(text) ? &hands_.Code : column == 0 ? first : others;
        Cell cell{with, with->Lines(ToQt(text), widths[column] - 2 * beside)};
        row.Height =
            std::max(row.Height, static_cast<double>(cell.Lines.size()) * with->LineHeight() + 2 * above);
        row.Cells.push_back(std::move(cell));
    }
    return row;
}

// A row's frame is its own, so that it closes wherever a page ends.
void Chapter::WriteRow(PageWriter& page, const Block& block, const Row& row, bool heavy) const {
    const bool table = !block.Widths.empty();
    const double top = page.At();
    const double bottom = top + row.Height;
    double x = 0;
    for (std::size_t column = 0; column < row.Cells.size(); ++column) {
        const Cell& cell = row.Cells[column];
        double y = top + (table ? above : 0);
        for (const QString& line : cell.Lines) {
            page.Write(*cell.With, x + (table ? beside : 0), y, line);
            y += cell.With->LineHeight();
        }
        if (table) {
            page.Line(x, top, x, bottom, thin);
            x += block.Widths[column];
        }
    }
    if (table) {
        page.Line(x, top, x, bottom, thin);
        page.Line(0, top, x, top, thin);
        page.Line(0, bottom, x, bottom, heavy ? thick : thin);
    }
    page.Skip(row.Height);
}

void Chapter::WriteTo(PageWriter& page) {
    for (const Block& block : blocks_) {
        const double head = block.Head.Height;
        const double first = block.Rows.empty() ? 0 : block.Rows.front().Height;
        page.Need(block.Before + head + first + block.Follows);
        if (page.At() > 0)
            page.Skip(block.Before);
        if (!block.Head.Cells.empty())
            WriteRow(page, block, block.Head, true);
        for (const Row& row : block.Rows) {
            if (page.Need(row.Height) && !block.Head.Cells.empty())
                WriteRow(page, block, block.Head, true);
            WriteRow(page, block, row, false);
        }
    }
}

} // namespace gfc::report
