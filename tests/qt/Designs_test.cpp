#include "qt/Designs.h"
#include "qt/FormWindow.h"
#include "qt/Icons.h"
#include "qt/Renderer.h"
#include "qt/Texts.h"
#include "qt/support/AllForms.h"
#include "qt/support/Reading.h"
#include "qt/support/WindowDriver.h"
#include "support/World.h"
#include "ui/Buttons.h"
#include "ui/Furniture.h"
#include "ui/Label.h"
#include "ui/Menu.h"
#include "ui/TabbedPane.h"
#include "ui/Tree.h"

#include <QApplication>
#include <QLayout>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QTabBar>
#include <QTabWidget>
#include <QWidget>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <ostream>
#include <set>

namespace gfc::test {

using ::testing::IsEmpty;

namespace {

bool HasWidget(const ui::Control& control) {
    return control.TheKind() != ui::Kind::MenuEntry && control.TheKind() != ui::Kind::Timer &&
           control.TheKind() != ui::Kind::ImageList;
}

// The control whose widget is the nearest one around this widget; empty for none.
std::string Around(const QWidget& widget, const std::set<std::string>& controls) {
    for (const QWidget* at = widget.parentWidget(); at != nullptr; at = at->parentWidget())
        if (const auto name = qt::FromQt(at->objectName()); controls.contains(name))
            return name;
    return {};
}

} // namespace

void PrintTo(const FormEntry& form, std::ostream* out) {
    *out << form.Name;
}

class EveryForm : public ::testing::TestWithParam<FormEntry> {
protected:
    World TheWorld;
    std::shared_ptr<ui::Form> Form = GetParam().Make(TheWorld.Program);

    [[nodiscard]] const qt::Design* Design() const {
        const auto designs = qt::Designs();
        const auto found = std::find_if(designs.begin(), designs.end(), [this](const qt::Design& design) {
            return design.Form == Form->Name();
        });
        return found == designs.end() ? nullptr : &*found;
    }
    [[nodiscard]] std::set<std::string> Names() const {
        std::set<std::string> names;
        for (const ui::Control* control : Form->Controls())
            names.insert(control->Name());
        return names;
    }
};

TEST_P(EveryForm, has_a_design_of_its_name) {
    EXPECT_EQ(Form->Name(), GetParam().Name);
    EXPECT_NE(Design(), nullptr);
}

TEST_P(EveryForm, names_each_control_once) {
    EXPECT_EQ(Names().size(), Form->Controls().size());
}

TEST_P(EveryForm, has_a_fitting_widget_for_each_control) {
    const qt::FormWindow window(*Form);
    for (const ui::Control* control : Form->Controls()) {
        if (HasWidget(*control)) {
            EXPECT_NE(window.WidgetNamed(control->Name()), nullptr) << control->Name() << " has no widget";
        }
        EXPECT_NE(window.RendererOf(control), nullptr) << control->Name() << " has no widget of its kind";
    }
}

TEST_P(EveryForm, has_no_widget_without_a_control) {
    if (Design() == nullptr)
        return;
    QWidget content;
    Design()->SetUp(content);
    const auto names = Names();
    for (const QWidget* widget : content.findChildren<QWidget*>()) {
        const QString name = widget->objectName();
        const bool ofTabBar = qobject_cast<QTabBar*>(widget->parentWidget()) != nullptr;
        const bool named =
            !ofTabBar && !name.isEmpty() && !name.startsWith("qt_") && !name.startsWith("layout");
        EXPECT_TRUE(!named || names.contains(qt::FromQt(name)))
            << qPrintable(name) << " belongs to no control";
    }
}

TEST_P(EveryForm, nests_its_widgets_as_its_controls) {
    const qt::FormWindow window(*Form);
    const auto names = Names();
    for (const ui::Control* control : Form->Controls()) {
        const QWidget* widget = HasWidget(*control) ? window.WidgetNamed(control->Name()) : nullptr;
        if (widget == nullptr)
            continue;
        const std::string container = control->Container() == nullptr ? "" : control->Container()->Name();
        EXPECT_EQ(Around(*widget, names), container) << control->Name();
        if (control->Page() < 0)
            continue;
        const auto* pane = dynamic_cast<QTabWidget*>(window.WidgetNamed(container));
        ASSERT_NE(pane, nullptr) << container;
        ASSERT_LT(control->Page(), pane->count()) << container;
        EXPECT_TRUE(pane->widget(control->Page())->isAncestorOf(widget))
            << control->Name() << " is not on page " << control->Page();
    }
}

TEST_P(EveryForm, has_a_page_for_each_tab) {
    const qt::FormWindow window(*Form);
    for (const ui::Control* control : Form->Controls())
        if (const auto* pane = dynamic_cast<const ui::TabbedPane*>(control)) {
            const auto* tabs = dynamic_cast<QTabWidget*>(window.WidgetNamed(pane->Name()));
            ASSERT_NE(tabs, nullptr) << pane->Name();
            EXPECT_EQ(tabs->count(), pane->Tabs()) << pane->Name();
        }
}

TEST_P(EveryForm, tells_readers_what_each_widget_is) {
    const qt::FormWindow window(*Form);
    for (const ui::Control* control : Form->Controls()) {
        const QWidget* widget = control->TakesFocus() ? window.WidgetNamed(control->Name()) : nullptr;
        if (widget != nullptr) {
            EXPECT_FALSE(widget->accessibleName().isEmpty()) << control->Name() << " has no accessible name";
        }
    }
}

TEST_P(EveryForm, names_pictures_that_there_are) {
    for (const ui::Control* control : Form->Controls()) {
        std::vector<std::string> names;
        if (const auto* label = dynamic_cast<const ui::Label*>(control))
            names = {label->Image()};
        else if (const auto* button = dynamic_cast<const ui::CommandButton*>(control))
            names = {button->Image()};
        else if (const auto* images = dynamic_cast<const ui::ImageList*>(control))
            names = images->Images();
        for (const auto& name : names)
            EXPECT_TRUE(name.empty() || qt::HasIcon(name)) << control->Name() << " wants picture " << name;
    }
}

TEST_P(EveryForm, fits_on_a_small_screen) {
    qt::FormWindow window(*Form);
    window.ShowAs(Qt::NonModal, nullptr);
    EXPECT_LE(window.width(), 1366);
    EXPECT_LE(window.height(), 700);
}

TEST_P(EveryForm, opens_in_its_size_without_scroll_bars) {
    qt::FormWindow window(*Form);
    window.ShowAs(Qt::NonModal, nullptr);
    const QSize opened = window.size();
    QCoreApplication::processEvents();
    EXPECT_EQ(window.width(), opened.width());
    EXPECT_EQ(window.height(), opened.height());
    const auto* area = window.findChild<QScrollArea*>("layoutArea");
    ASSERT_NE(area, nullptr);
    EXPECT_FALSE(area->horizontalScrollBar()->isVisible());
    EXPECT_FALSE(area->verticalScrollBar()->isVisible());
}

TEST_P(EveryForm, cuts_no_text_however_large_the_letters_are) {
    const QFont usual = QApplication::font();
    for (const double scale : {1.0, 1.5, 2.0}) {
        QFont font = usual;
        font.setPointSizeF(usual.pointSizeF() * scale);
        QApplication::setFont(font);
        qt::FormWindow window(*Form);
        window.ShowAs(Qt::NonModal, nullptr);
        Settle();
        EXPECT_THAT(CutTexts(window), IsEmpty()) << "letters of " << scale;
    }
    QApplication::setFont(usual);
}

TEST_P(EveryForm, tells_readers_the_name_and_the_role_of_all_that_is_seen) {
    qt::FormWindow window(*Form);
    window.ShowAs(Qt::NonModal, nullptr);
    EXPECT_THAT(Unnamed(window), IsEmpty());
}

TEST_P(EveryForm, is_gone_through_by_tab_as_it_is_read) {
    qt::FormWindow window(*Form);
    window.ShowAs(Qt::NonModal, nullptr);
    Settle();
    EXPECT_THAT(StepsAgainstReading(window), IsEmpty());
}

TEST_P(EveryForm, gives_each_button_a_letter_of_its_own) {
    const qt::FormWindow window(*Form);
    std::map<std::string, std::vector<const QWidget*>> owners;
    for (const QShortcut* key : window.findChildren<QShortcut*>())
        if (const auto* owner = qobject_cast<QWidget*>(key->parent()); owner != &window)
            owners[qt::FromQt(key->key().toString())].push_back(owner);
    for (const auto& [key, widgets] : owners)
        EXPECT_LE(std::count_if(widgets.begin(), widgets.end(),
                                [&window](const QWidget* each) { return each->isVisibleTo(&window); }),
                  1)
            << key;
    for (const ui::Control* control : Form->Controls())
        if (const auto* button = dynamic_cast<QPushButton*>(window.WidgetNamed(control->Name()))) {
            EXPECT_TRUE(button->text().contains(u'&') || button->findChild<QShortcut*>() != nullptr)
                << control->Name();
        }
}

TEST_P(EveryForm, has_even_margins) {
    if (Design() == nullptr)
        return;
    QWidget content;
    Design()->SetUp(content);
    ASSERT_NE(content.layout(), nullptr);
    const QMargins margins = content.layout()->contentsMargins();
    const bool frameless = content.property("frameless").toBool();
    EXPECT_TRUE(frameless || margins == QMargins(9, 9, 9, 9))
        << margins.left() << " " << margins.top() << " " << margins.right() << " " << margins.bottom();
}

INSTANTIATE_TEST_SUITE_P(Forms, EveryForm, ::testing::ValuesIn(AllForms()),
                         [](const auto& form) { return form.param.Name; });

TEST(Designs, belong_to_forms) {
    const auto forms = AllForms();
    for (const qt::Design& design : qt::Designs())
        EXPECT_TRUE(std::any_of(forms.begin(), forms.end(), [&design](const FormEntry& form) {
            return form.Name == design.Form;
        })) << design.Form;
}

TEST(IconSet, has_every_picture_of_the_trees) {
    for (const char* name :
         {"Carpeta", "CarpetaOpen", "StationConfig", "StationNoConfig", "Run", "NoRun", "Config", "NoConfig",
          "AGA_3", "AGA_8", "Commom_Inputs", "Principal", "Tag", "Tag2", "App"}) {
        EXPECT_TRUE(qt::HasIcon(name)) << name;
        EXPECT_FALSE(qt::IconNamed(name).pixmap(24, 24).isNull()) << name;
    }
}

} // namespace gfc::test
