#pragma once

#include "qt/HelpView.h"
#include "qt/HelpWindow.h"
#include "qt/WindowFixture.h"
#include "support/TempFolder.h"

#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QTreeWidget>
#include <QWindow>

#include <functional>

namespace gfc::test {

// Goes the way of a real click: a window that is blocked by a modal one does not get it.
inline void ClickOn(QWidget* widget, QPoint at) {
    QWidget* window = widget->window();
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, widget->mapTo(window, at));
    Settle();
}

inline void ClickOn(QWidget* widget) {
    ClickOn(widget, widget->rect().center());
}

inline void Press(QWidget* window, int key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(window->windowHandle(), static_cast<Qt::Key>(key), modifiers);
    Settle();
}

inline void InModal(std::function<void()> act) {
    QTimer::singleShot(1, qApp, std::move(act));
}

class HelpWindows : public ProbeInWindow {
protected:
    HelpWindows() {
        Folder.Put("contents.txt", "index.html 0\n  plate.html 5100\n  meter.html 7400\n");
        Put("index", "Welcome", "<a href=\"plate.html\">Go to the plate</a>");
        Put("plate", "Plate", "An orifice plate. A sharp orifice.");
        Put("meter", "Meter", "No moving part, no orifice");
    }
    void Put(const std::string& name, const std::string& title, const std::string& text) {
        Folder.Put(name + ".html",
                   "<html><head><title>" + title + "</title></head><body><p>" + text + "</p></body></html>");
    }
    void Open(int context) {
        qt::ShowHelpWindow(QString::fromStdString(Folder.Path()), context, &Window());
        Settle();
    }
    [[nodiscard]] static QWidget* Help() { return FindWindow("HelpWindow"); }
    template <class W>
    [[nodiscard]] static W& Part(const char* name) {
        return *FindIn<W>(Help(), name);
    }
    [[nodiscard]] static QString Shown() { return Part<qt::HelpView>("HelpPage").source().fileName(); }
    // All that a person does with the help works, by mouse and by key.
    static void ExpectUsable() {
        ClickOn(&Part<QToolButton>("HelpHome"));
        EXPECT_EQ(Shown(), "index.html");
        auto& contents = Part<QTreeWidget>("HelpContents");
        ClickOn(contents.viewport(), contents.visualItemRect(contents.topLevelItem(0)->child(1)).center());
        EXPECT_EQ(Shown(), "meter.html");
        ClickOn(&Part<QLineEdit>("HelpWords"));
        Press(Help(), Qt::Key_S);
        EXPECT_EQ(Part<QLineEdit>("HelpWords").text(), "s");
        Part<QLineEdit>("HelpWords").clear();
    }

    TempFolder Folder;
};

} // namespace gfc::test
