#include "workshop/WorkshopFixture.h"
#include "workshop/load/Audit.h"
#include "workshop/store/OpenProject.h"
#include "workshop/window/FilesDialog.h"
#include "workshop/window/FilteredTable.h"
#include "workshop/window/FolderQuestion.h"
#include "workshop/window/ImportDialog.h"
#include "workshop/window/ProjectWindow.h"
#include "workshop/window/Told.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDropEvent>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTableView>
#include <QTableWidget>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>
#include <gmock/gmock.h>

#include <functional>

namespace gfc::workshop {

using testing::ElementsAre;
using testing::HasSubstr;

class ProjectWindowTest : public WorkshopFixture {
protected:
    void OpenSample() {
        ASSERT_TRUE(window_.MakeSampleIn(Folder / "plant"));
        window_.show();
    }
    template <typename Widget>
    Widget* Find(const char* name, QWidget* in = nullptr) {
        auto* found = (in != nullptr ? in : &window_)->findChild<Widget*>(QLatin1String(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }
    FilteredTable* Table(const char* things) {
        return qobject_cast<FilteredTable*>(Find<QTableView>(things)->parentWidget());
    }
    void Type(const char* name, const QString& text, QWidget* in = nullptr) {
        auto* edit = Find<QLineEdit>(name, in);
        edit->setFocus();
        edit->selectAll();
        QTest::keyClicks(edit, text);
    }
    /// Starts the action and answers the window that it opens; fails where none comes.
    void Do(const char* action, const std::function<void(QDialog&)>& answer) {
        Answer(answer, [&] { Find<QAction>(action)->trigger(); });
    }
    void Answer(const std::function<void(QDialog&)>& answer, const std::function<void()>& work) {
        bool answered = false;
        QTimer look;
        QObject::connect(&look, &QTimer::timeout, &window_, [&] {
            if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
                dialog != nullptr && !answered) {
                answered = true;
                answer(*dialog);
            }
        });
        look.start(0);
        work();
        EXPECT_TRUE(QTest::qWaitFor([&] { return answered; }));
    }
    static void Say(QDialog& dialog, const QString& text) {
        dynamic_cast<QInputDialog&>(dialog).setTextValue(text);
        dialog.accept();
    }
    static void Press(QDialog& dialog, QMessageBox::StandardButton button) {
        QTest::mouseClick(dynamic_cast<QMessageBox&>(dialog).button(button), Qt::LeftButton);
    }
    void Drop(const std::string& file) {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(QString::fromStdString(file))});
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&window_, &enter);
        EXPECT_TRUE(enter.isAccepted());
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&window_, &drop);
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << "whoever dropped it waits";
    }
    std::string Status() { return Run("tags Northgate_Custody").Output; }
    std::string WriteTable(const std::string& bytes) {
        WriteBytes(Folder / "points.csv", bytes);
        return (Folder / "points.csv").string();
    }

    ProjectWindow window_;
};

TEST_F(ProjectWindowTest, shows_a_new_sample_and_makes_it_the_open_project) {
    EXPECT_FALSE(Find<QAction>("ImportTags")->isEnabled());
    OpenSample();
    EXPECT_EQ(RecordedProject(), Folder / "plant" / "plant.KPJ");
    EXPECT_EQ(Table("stations")->Current().value(0), QStringLiteral("Northgate_Custody"));
    EXPECT_EQ(Find<QTableView>("stations")->model()->rowCount(), 8);
    EXPECT_TRUE(Find<QAction>("ImportTags")->isEnabled());
    Table("stations")->SelectFirst(QStringLiteral("Skid_Añelo"));
    Type("tagsFilter", QStringLiteral("caudal n"));
    EXPECT_EQ(Table("tags")->Current().value(0), QStringLiteral("Caudal_Ñ"));
}

// Who has just installed the program has no folder for it yet.
TEST_F(ProjectWindowTest, makes_the_sample_in_a_folder_that_was_not_there_by_enter_alone) {
    window_.show();
    const QString folder = Shown(Folder / "not" / "yet");
    Do("Sample", [&](QDialog& dialog) {
        auto& question = dynamic_cast<FolderQuestion&>(dialog);
        EXPECT_TRUE(Find<QPushButton>("Accept", &dialog)->isEnabled()) << "a folder is proposed";
        question.Propose(QString());
        EXPECT_FALSE(Find<QPushButton>("Accept", &dialog)->isEnabled());
        question.Propose(folder);
        QTest::keyClick(Find<QLineEdit>("Folder", &dialog), Qt::Key_Return);
        EXPECT_EQ(dialog.result(), QDialog::Accepted);
    });
    EXPECT_EQ(RecordedProject(), Folder / "not" / "yet" / "plant.KPJ");
}

TEST_F(ProjectWindowTest, opens_a_sample_that_is_there_already_where_that_is_wanted) {
    OpenSample();
    ASSERT_TRUE(window_.MakeSampleIn(Folder / "another"));
    Answer([](QDialog& dialog) { Press(dialog, QMessageBox::No); },
           [&] { EXPECT_FALSE(window_.MakeSampleIn(Folder / "plant")); });
    EXPECT_EQ(RecordedProject(), Folder / "another" / "plant.KPJ");
    Answer([](QDialog& dialog) { Press(dialog, QMessageBox::Yes); },
           [&] { EXPECT_TRUE(window_.MakeSampleIn(Folder / "plant")); });
    EXPECT_EQ(RecordedProject(), Folder / "plant" / "plant.KPJ");
}

TEST_F(ProjectWindowTest, renames_moves_and_removes_the_tag_that_is_highlighted) {
    OpenSample();
    ASSERT_TRUE(Table("tags")->SelectFirst(QStringLiteral("PT-302")));
    Do("RenameTag", [](QDialog& dialog) { Say(dialog, QStringLiteral("PT-302A")); });
    EXPECT_EQ(Table("tags")->Current().value(0), QStringLiteral("PT-302A"));
    Do("MoveTag", [](QDialog& dialog) { Say(dialog, QStringLiteral("900")); });
    EXPECT_THAT(Status(), HasSubstr("PT-302A"));
    EXPECT_EQ(Table("tags")->Current().value(2), QStringLiteral("900"));
    Do("RemoveTag", [](QDialog& dialog) { Press(dialog, QMessageBox::No); });
    EXPECT_THAT(Status(), HasSubstr("PT-302A"));
    Do("RemoveTag", [](QDialog& dialog) { Press(dialog, QMessageBox::Yes); });
    EXPECT_THAT(Status(), testing::Not(HasSubstr("PT-302A")));
}

TEST_F(ProjectWindowTest, tells_why_a_name_is_refused_and_keeps_the_tag) {
    OpenSample();
    ASSERT_TRUE(Table("tags")->SelectFirst(QStringLiteral("PT-302")));
    QStringList told;
    bool first = true;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &window_, [&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (auto* box = qobject_cast<QMessageBox*>(dialog)) {
            told += box->text();
            box->accept();
        } else if (dialog != nullptr && first) {
            first = false;
            Say(*dialog, QStringLiteral("PT-301"));
        }
    });
    look.start(0);
    Find<QAction>("RenameTag")->trigger();
    ASSERT_EQ(told.size(), 1);
    EXPECT_THAT(told.first().toStdString(), HasSubstr("has a tag PT-301 at AX 1 already"));
    EXPECT_EQ(Table("tags")->Current().value(0), QStringLiteral("PT-302"));
}

TEST_F(ProjectWindowTest, tells_where_a_bound_tag_is_used_before_it_goes) {
    OpenSample();
    const auto stations = Run("stations").Output;
    ASSERT_TRUE(Table("stations")->SelectFirst(QStringLiteral("Eastfield_Meter")) || true);
    // The sample configures one station; one of its bound tags is asked for by the command, too.
    bool used = false;
    for (int row = 0; row < Find<QTableView>("stations")->model()->rowCount() && !used; ++row) {
        Find<QTableView>("stations")->selectRow(row);
        const std::string station = Table("stations")->Current().value(0).toStdString();
        for (int tag = 0; tag < Find<QTableView>("tags")->model()->rowCount() && !used; ++tag) {
            const std::string name =
                Find<QTableView>("tags")->model()->index(tag, 0).data().toString().toStdString();
            if (name.find("PIT") != std::string::npos || name.find("PT") == 0) {
                used = Run("where-used " + name + " " + station).Output.find("Run1") != std::string::npos;
                Find<QTableView>("tags")->selectRow(tag);
            }
        }
    }
    ASSERT_TRUE(used);
    QString asked;
    Do("RemoveTag", [&](QDialog& dialog) {
        asked = dynamic_cast<QMessageBox&>(dialog).text();
        Press(dialog, QMessageBox::No);
    });
    EXPECT_THAT(asked.toStdString(), HasSubstr("The station's configuration names this tag at:\nRun1, "));
}

TEST_F(ProjectWindowTest, takes_a_dropped_table_in_once_its_columns_are_named) {
    OpenSample();
    const std::string table =
        WriteTable("PT_NAME;KIND;ADR_X;COLOUR\nQ-1;FLOAT;40011;red\nQ-2;FLOAT;40013;blue\n");
    Answer(
        [&](QDialog& dialog) {
            auto* preview = Find<QTreeWidget>("Preview", &dialog);
            auto* import = Find<QPushButton>("Import", &dialog);
            ASSERT_TRUE(QTest::qWaitFor([&] { return preview->topLevelItemCount() > 0; }));
            EXPECT_FALSE(import->isEnabled());
            const auto choose = [&](int row, const char* ours) {
                auto* choice =
                    qobject_cast<QComboBox*>(Find<QTableWidget>("Titles", &dialog)->cellWidget(row, 1));
                choice->setCurrentText(QLatin1String(ours));
                Q_EMIT choice->activated(choice->currentIndex());
            };
            auto* first = Find<QTableWidget>("Titles", &dialog)->cellWidget(0, 1);
            first->setFocus();
            choose(0, "Tag");
            choose(1, "Class");
            choose(2, "Register");
            choose(3, "left out");
            Type("Station", QStringLiteral("Newfield"), &dialog);
            QTest::keyClick(Find<QLineEdit>("Station", &dialog), Qt::Key_Return);
            ASSERT_TRUE(dialog.isVisible()) << "Enter in a field throws nothing away";
            Type("Module", QStringLiteral("V1"), &dialog);
            auto* direction = Find<QComboBox>("Direction", &dialog);
            direction->setCurrentIndex(1);
            Q_EMIT direction->activated(1);
            ASSERT_TRUE(QTest::qWaitFor([&] { return import->isEnabled(); }));
            EXPECT_EQ(Find<QTableWidget>("Titles", &dialog)->cellWidget(0, 1), first)
                << "keys stay where they are";
            dialog.grab().save(QString::fromStdString(::testing::TempDir() + "import-dialog.png"));
            QTest::mouseClick(import, Qt::LeftButton);
        },
        [&] { Drop(table); });
    EXPECT_EQ(Table("stations")->Current().value(0), QStringLiteral("Newfield"));
    EXPECT_THAT(Run("tags Newfield").Output, HasSubstr("Q-2  FX     13        V1      Virtual Module"));
}

TEST_F(ProjectWindowTest, asks_before_what_was_said_of_a_table_is_lost) {
    OpenSample();
    const std::string file = WriteTable("Tag,Class,Register,Module\nQ-1,FX,1,V\n");
    int asked = 0;
    Answer(
        [&](QDialog& dialog) {
            Type("Station", QStringLiteral("Newfield"), &dialog);
            for (const auto answer : {QMessageBox::No, QMessageBox::Yes}) {
                EXPECT_TRUE(dialog.isVisible());
                QTimer::singleShot(0, &dialog, [&asked, answer] {
                    ++asked;
                    Press(dynamic_cast<QDialog&>(*QApplication::activeModalWidget()), answer);
                });
                QTest::keyClick(&dialog, Qt::Key_Escape);
            }
            EXPECT_FALSE(dialog.isVisible());
        },
        [&] { window_.ImportTable(file); });
    EXPECT_EQ(asked, 2);
    EXPECT_THAT(Run("stations").Output, testing::Not(HasSubstr("Newfield")));
}

TEST_F(ProjectWindowTest, reads_a_table_anew_that_was_mended_in_the_spreadsheet) {
    OpenSample();
    const std::string file = WriteTable("Station,Tag,Class,Register,Module\nNewfield,Q-1,FX,one,V\n");
    Answer(
        [&](QDialog& dialog) {
            auto* import = Find<QPushButton>("Import", &dialog);
            auto* preview = Find<QTreeWidget>("Preview", &dialog);
            ASSERT_TRUE(QTest::qWaitFor([&] { return preview->topLevelItemCount() > 0; }));
            EXPECT_FALSE(import->isEnabled());
            WriteTable("Station,Tag,Class,Register,Module\nNewfield,Q-1,FX,1,V\n");
            std::filesystem::last_write_time(file, std::filesystem::last_write_time(file) +
                                                       std::chrono::seconds(2));
            ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
            QEvent back(QEvent::ActivationChange);
            QApplication::sendEvent(&dialog, &back);
            ASSERT_TRUE(QTest::qWaitFor([&] { return import->isEnabled(); }));
            QTest::mouseClick(import, Qt::LeftButton);
        },
        [&] { window_.ImportTable(file); });
    EXPECT_THAT(Run("tags Newfield").Output, HasSubstr("Q-1"));
}

// Whoever sits at a window has no switches.
TEST_F(ProjectWindowTest, speaks_of_nothing_that_only_the_command_has) {
    const std::string help = Run("import-tags --help").Output;
    std::size_t switches = 0;
    for (std::size_t at = help.find("--"); at != std::string::npos; at = help.find("--", at + 2)) {
        const std::string name =
            help.substr(at, help.find_first_not_of("abcdefghijklmnopqrstuvwxyz-", at) - at);
        if (name != "--help" && name != "--project" && name != "--preview" && name != "--dry-run" &&
            name != "--replace" && name != "--mapping" && name != "--template") {
            EXPECT_THAT(InWindow("say so with " + name).toStdString(), testing::Not(HasSubstr("--"))) << name;
            ++switches;
        }
    }
    EXPECT_GT(switches, 8U);
    EXPECT_EQ(InWindow("row 1: name it with --map or leave it out with --ignore-unknown").toStdString(),
              "row 1: name it with \"Read as\" or leave it out with \"Leave out columns that nobody knows\"");
}

TEST_F(ProjectWindowTest, shows_what_a_table_of_another_tool_would_break_and_takes_nothing_on_cancel) {
    OpenSample();
    ASSERT_EQ(Run("export-tags " + Quoted("all.csv")).Status, 0);
    std::string table = ReadBytes(Folder / "all.csv");
    for (std::size_t at = table.find(",FX,"); at != std::string::npos; at = table.find(",FX,", at + 5)) {
        table.insert(at + 4, "7");
    }
    const std::string file = WriteTable(table);
    const std::string before = Run("tags").Output;
    Answer(
        [&](QDialog& dialog) {
            auto* preview = Find<QTreeWidget>("Preview", &dialog);
            const auto broken = [&] {
                return !preview
                            ->findItems(QStringLiteral("stored bindings that would break"), Qt::MatchContains)
                            .isEmpty();
            };
            EXPECT_TRUE(QTest::qWaitFor(broken));
            dialog.reject();
        },
        [&] { window_.ImportTable(file); });
    EXPECT_EQ(Run("tags").Output, before);
}

TEST_F(ProjectWindowTest, downloads_what_the_stations_are_to_load) {
    OpenSample();
    FilesDialog dialog(Folder / "plant" / "plant.KPJ");
    auto* table =
        qobject_cast<FilteredTable*>(dialog.findChild<QTableView*>(QStringLiteral("files"))->parentWidget());
    ASSERT_FALSE(table->Current().isEmpty());
    dialog.DownloadTo(Folder / "stations");
    EXPECT_EQ(dialog.findChild<QLabel*>(QStringLiteral("Outcome"))->text(),
              QStringLiteral("Files downloaded: 1."));
    const std::filesystem::path target =
        Folder / "stations" / table->Current().value(0).toStdString() / "etc" / "stacfg" / "kdormaga.ini";
    EXPECT_TRUE(std::filesystem::exists(target));
}

TEST_F(ProjectWindowTest, leaves_stations_with_errors_out_of_a_download_unless_told_otherwise) {
    if (AuditProgram().empty()) {
        GTEST_SKIP() << "nothing that checks stands beside this program";
    }
    OpenSample();
    ASSERT_EQ(Run("rename-tag Lakeside_Delivery TIT-601_PV TT-1").Status, 0);
    FilesDialog dialog(Folder / "plant" / "plant.KPJ");
    const auto download = [&](const std::function<void(QMessageBox&)>& answer) {
        Answer([&](QDialog& asked) { answer(dynamic_cast<QMessageBox&>(asked)); },
               [&] { dialog.DownloadTo(Folder / "stations"); });
        return dialog.findChild<QLabel*>(QStringLiteral("Outcome"))->text().toStdString();
    };
    EXPECT_EQ(download([](QMessageBox& box) {
                  EXPECT_THAT(box.text().toStdString(),
                              HasSubstr("errors in the configuration of Lakeside_Delivery."));
                  EXPECT_THAT(box.detailedText().toStdString(), HasSubstr("TIT-601_PV"));
                  box.reject();
              }),
              "Nothing was downloaded.");
    EXPECT_FALSE(std::filesystem::exists(Folder / "stations"));
    EXPECT_THAT(download([](QMessageBox& box) { box.findChild<QPushButton*>("Without")->click(); }),
                testing::StartsWith("Files downloaded: 0.\n"));
    EXPECT_EQ(download([](QMessageBox& box) { box.findChild<QPushButton*>("All")->click(); }),
              "Files downloaded: 1.");
}

TEST_F(ProjectWindowTest, asks_for_a_project_where_a_table_is_dropped_and_none_is_open) {
    window_.show();
    const std::string table = WriteTable("Station,Tag\nA,B\n");
    QString asked;
    Answer(
        [&](QDialog& dialog) {
            asked = dynamic_cast<QMessageBox&>(dialog).text();
            Press(dialog, QMessageBox::No);
        },
        [&] { Drop(table); });
    EXPECT_EQ(asked,
              QStringLiteral("No project is open that could take points.csv in. Make a new one for it?"));
    OpenSample();
    Drop((Folder / "plant" / "plant.KPJ").string());
    EXPECT_TRUE(QTest::qWaitFor([&] { return window_.statusBar()->currentMessage().startsWith("Opened "); }));
}

TEST_F(ProjectWindowTest, shows_what_was_changed_beside_it_as_soon_as_somebody_comes_back) {
    OpenSample();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window_));
    ASSERT_EQ(Run("rename-tag Northgate_Custody PT-302 PT-999").Status, 0);
    EXPECT_FALSE(Table("tags")->SelectFirst(QStringLiteral("PT-999")));
    QEvent back(QEvent::ActivationChange);
    QApplication::sendEvent(&window_, &back);
    EXPECT_TRUE(Table("tags")->SelectFirst(QStringLiteral("PT-999")));
}

// As when a disk is pulled; the box that tells of it gives the window its focus back, and must not come again
// for that.
TEST_F(ProjectWindowTest, tells_once_that_the_project_has_gone) {
    OpenSample();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window_));
    std::filesystem::remove(Folder / "plant" / "plant.KPJ");
    QEvent back(QEvent::ActivationChange);
    Answer([](QDialog& dialog) { dialog.reject(); }, [&] { QApplication::sendEvent(&window_, &back); });
    EXPECT_TRUE(Find<QWidget>("StartPage")->isVisible());
    EXPECT_FALSE(Find<QAction>("ImportTags")->isEnabled());
    int boxes = 0;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &window_, [&] {
        if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
            ++boxes;
            dialog->reject();
        }
    });
    look.start(0);
    QApplication::sendEvent(&window_, &back);
    QCoreApplication::processEvents();
    EXPECT_EQ(boxes, 0);
}

TEST_F(ProjectWindowTest, says_that_no_project_is_open_and_what_to_do) {
    window_.show();
    ASSERT_TRUE(Find<QWidget>("StartPage")->isVisible());
    for (const char* name : {"StartSample", "StartNew", "StartOpen"}) {
        EXPECT_TRUE(Find<QAbstractButton>(name)->isEnabled());
    }
    EXPECT_FALSE(Find<QAction>("Configurator")->isEnabled());
    Answer([](QDialog& dialog) { Press(dialog, QMessageBox::No); },
           [&] { window_.ImportTable(Folder / "none.csv"); });
    EXPECT_EQ(window_.windowTitle(), QStringLiteral("I/O Workshop"));
    EXPECT_FALSE(Find<QAction>("RemoveTag")->isEnabled());
}

TEST_F(ProjectWindowTest, the_start_page_offers_what_was_open_before_and_is_still_there) {
    OpenSample();
    ASSERT_TRUE(window_.MakeSampleIn(Folder / "another"));
    std::filesystem::remove(Folder / "another" / "plant.KPJ");
    Find<QAction>("Close")->trigger();
    const auto buttons = window_.findChildren<QAbstractButton*>(QStringLiteral("StartRecent"));
    ASSERT_FALSE(buttons.isEmpty());
    EXPECT_TRUE(buttons.front()->isVisible());
    QTest::mouseClick(buttons.front(), Qt::LeftButton);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !Find<QWidget>("StartPage")->isVisible(); }));
    EXPECT_EQ(RecordedProject(), Folder / "plant" / "plant.KPJ");
    EXPECT_TRUE(window_.findChildren<QAbstractButton*>(QStringLiteral("StartRecent")).isEmpty());
}

TEST_F(ProjectWindowTest, the_start_page_is_used_by_keys_alone_and_gives_way_to_the_project) {
    window_.show();
    int asked = 0;
    auto* sample = Find<QAction>("Sample");
    sample->disconnect();
    QObject::connect(sample, &QAction::triggered, &window_, [&] {
        ++asked;
        window_.MakeSampleIn(Folder / "sample");
    });
    auto* page = Find<QWidget>("StartPage");
    QTest::keyClick(page, Qt::Key_Return);
    EXPECT_EQ(asked, 1);
    EXPECT_FALSE(page->isVisible());
    EXPECT_TRUE(Find<QAction>("Configurator")->isEnabled());
}

} // namespace gfc::workshop
