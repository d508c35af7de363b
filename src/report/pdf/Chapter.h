#pragma once

#include "report/Content.h"
#include "report/pdf/PageWriter.h"

#include <vector>

namespace gfc::report {

// The hands of a report, made once.
struct Hands {
    explicit Hands(QPaintDevice& paper);
    Hand Text, Bold, Code, Title, Heading, Subheading, Foot;
};

// What begins on a page of its own, laid out on pages of that width. All lengths are dots of the paper.
class Chapter {
public:
    Chapter(const Parts& parts, Hands& hands, double width);

    // The same with each call.
    void WriteTo(PageWriter& page);

private:
    struct Cell {
        Hand* With;
        QStringList Lines;
    };
    struct Row {
        std::vector<Cell> Cells;
        double Height = 0;
    };
    // A text, where Widths is empty: one row with one cell. Else a table.
    struct Block {
        double Before = 0; // the room above it
        std::vector<double> Widths;
        Row Head; // again on each page; no cells for none
        std::vector<Row> Rows;
        double Follows = 0; // what must stand on the same page below a heading
    };

    void AddText(Hand& hand, const QString& text, double before, double follows);
    void AddTable(const Part& part);
    [[nodiscard]] std::vector<double> WidthsOf(const Part& part, std::size_t columns) const;
    [[nodiscard]] Row LaidOut(const std::vector<std::string>& cells, const std::vector<double>& widths,
                              Hand* first, Hand* others, double least) const;
    void WriteRow(PageWriter& page, const Block& block, const Row& row, bool heavy) const;

    Hands& hands_;
    double width_;
    std::vector<Block> blocks_;
};

} // namespace gfc::report
