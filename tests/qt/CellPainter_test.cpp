#include "qt/Icons.h"
#include "qt/render/CellPainter.h"

#include <QApplication>
#include <QHeaderView>
#include <QTableWidget>
#include <QTreeWidget>
#include <gtest/gtest.h>

// The cells look as the style paints them, to the point.
namespace gfc::test {

namespace {

const QStringList Texts = {QStringLiteral("Station"),
                           QStringLiteral(""),
                           QStringLiteral("  Configured & ready  "),
                           QStringLiteral("Gas composition, Presión, größer"),
                           QStringLiteral("GasTrain_Skid4_0000001_PV"),
                           QStringLiteral("i"),
                           QStringLiteral("two\nlines"),
                           QString(300, u'W')};

// The same view twice, painted by the style and by us.
template <class MakeView>
void ExpectAlike(const MakeView& make, const char* what) {
    const std::unique_ptr<QAbstractItemView> styled = make();
    const std::unique_ptr<QAbstractItemView> ours = make();
    ours->setItemDelegate(new qt::CellPainter(ours.get()));
    const QImage picture = ours->grab().toImage();
    EXPECT_EQ(picture, styled->grab().toImage()) << what;
    QImage blank = picture;
    blank.fill(picture.pixel(0, 0));
    EXPECT_NE(picture, blank) << what;
}

struct Looks {
    int Width = 90; // of a column, points
    int Height = 20;
    bool Enabled = true;
    bool Pictures = false;
    Qt::LayoutDirection Direction = Qt::LeftToRight;
};

std::unique_ptr<QAbstractItemView> TableLike(const Looks& looks, const QStringList& texts = Texts) {
    auto table = std::make_unique<QTableWidget>(static_cast<int>(texts.size()), 2);
    for (int row = 0; row < texts.size(); ++row)
        for (int column = 0; column < 2; ++column) {
            auto* cell = new QTableWidgetItem(texts[row]);
            if (looks.Pictures)
                cell->setIcon(qt::IconNamed("Tag"));
            table->setItem(row, column, cell);
        }
    table->setWordWrap(false);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->horizontalHeader()->setDefaultSectionSize(looks.Width);
    table->verticalHeader()->setDefaultSectionSize(looks.Height);
    table->setLayoutDirection(looks.Direction);
    table->setEnabled(looks.Enabled);
    table->resize(300, 300);
    table->selectRow(2);
    return table;
}

TEST(CellPainter, paints_a_table_as_the_style_does) {
    ExpectAlike([] { return TableLike({}); }, "as usual");
    ExpectAlike([] { return TableLike({.Enabled = false}); }, "off");
    ExpectAlike([] { return TableLike({.Pictures = true}); }, "with pictures");
    ExpectAlike([] { return TableLike({.Pictures = true, .Direction = Qt::RightToLeft}); }, "to the left");
    for (const int width : {15, 20, 40, 60, 61, 62, 63, 64, 65, 200})
        ExpectAlike([width] { return TableLike({.Width = width}); }, "in a width");
    for (const int height : {10, 17, 18, 19, 31})
        ExpectAlike([height] { return TableLike({.Height = height}); }, "in a height");
}

// A text with letters that the font lacks is higher than others, and stays so when it is cut before them.
TEST(CellPainter, paints_letters_of_another_font_as_the_style_does) {
    const QStringList texts = {QStringLiteral("Gas composition, 中文"), QStringLiteral("中"),
                               QStringLiteral("Station")};
    for (const int width : {15, 40, 90, 200})
        ExpectAlike([&] { return TableLike({.Width = width}, texts); }, "in a width");
}

TEST(CellPainter, paints_a_tree_as_the_style_does) {
    for (const bool enabled : {true, false})
        ExpectAlike(
            [enabled] {
                auto tree = std::make_unique<QTreeWidget>();
                auto* root = new QTreeWidgetItem(tree.get(), {QStringLiteral("Stations")});
                for (const QString& text : Texts) {
                    auto* node = new QTreeWidgetItem(root, {text});
                    node->setIcon(0, qt::IconNamed("Carpeta"));
                }
                QFont bold = tree->font();
                bold.setBold(true);
                root->child(0)->setFont(0, bold);
                root->child(0)->setForeground(0, Qt::red);
                root->child(3)->setForeground(0, Qt::blue);
                tree->expandAll();
                tree->setCurrentItem(root->child(3));
                tree->setEnabled(enabled);
                tree->resize(160, 240);
                return tree;
            },
            enabled ? "on" : "off");
}

} // namespace

} // namespace gfc::test
