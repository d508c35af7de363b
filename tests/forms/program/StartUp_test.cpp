#include "forms/main_window/GFCPrincipal.h"
#include "forms/program/StartUp.h"
#include "forms/program/UserIDForm.h"
#include "forms/program/formInicio.h"
#include "support/InJobs.h"
#include "support/World.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace gfc::test {

namespace {

using Names = std::vector<std::string>;

class PaintingScreen : public HeadlessScreen {
public:
    std::function<void()> OnPaint;
    void DoEvents() override {
        if (OnPaint)
            OnPaint();
    }
};

// The window of the stand-in, beside the program.
#ifdef _WIN32
const std::string workshopWindow = "/opt/gfc\\io-workshop-window.exe";
#else
const std::string workshopWindow = "/opt/gfc/io-workshop-window";
#endif

struct StartUp : testing::Test, World {
    StartUp() { AddStation("North", {}); }

    // The splash, its tick, and the user's identity.
    void Start() {
        TheStory.Tick("formInicio", "timerInicio");
        TheStory.Keys("UserIDForm", "Text1", "4711");
        TheStory.Click("UserIDForm", "Command1");
    }
    void Play() {
        forms::StartProgram(Program);
        Screen.RunToEnd();
    }
    [[nodiscard]] int CallsOf(const std::string& call) const {
        return static_cast<int>(std::count(Library.Calls.begin(), Library.Calls.end(), call));
    }
};

TEST_F(StartUp, shows_splash_identity_and_main_window_in_that_order) {
    Start();
    Play();
    EXPECT_EQ(Screen.FormsShown, (Names{"formInicio", "UserIDForm", "GFCPrincipal"}));
    EXPECT_EQ(Screen.FormNamed("formInicio"), nullptr);
    EXPECT_EQ(Screen.FormNamed("UserIDForm"), nullptr);
    EXPECT_FALSE(Screen.Ended());
}

TEST_F(StartUp, splash_waits_two_seconds_and_says_that_it_loads) {
    forms::StartProgram(Program);
    const auto& splash = Program.Forms.Get<forms::formInicio>();
    EXPECT_EQ(splash.timerInicio.Interval(), 2000);
    EXPECT_TRUE(splash.timerInicio.Enabled());
    EXPECT_TRUE(splash.labProgBar.Visible());
    EXPECT_EQ(splash.labProgBar.Caption(), "Loading ...");
    EXPECT_FALSE(splash.HasCloseCommand());
    EXPECT_EQ(splash.picInicio.Image(), "picInicio");
}

TEST(Splash, lets_each_of_its_texts_be_painted) {
    PaintingScreen screen;
    FakeProgram fake(screen);
    fake.AddStation("North", {});
    Names seen;
    screen.OnPaint = [&] {
        seen.push_back(fake.Program.Forms.Get<forms::formInicio>().labProgBar.Caption());
    };
    screen.TheStory.Tick("formInicio", "timerInicio").Click("UserIDForm", "Command2");
    forms::StartProgram(fake.Program);
    screen.RunToEnd();
    EXPECT_EQ(seen, (Names{"Loading ...", "Loading ."}));
}

TEST_F(StartUp, splash_ticks_once) {
    forms::StartProgram(Program);
    auto& splash = Program.Forms.Get<forms::formInicio>();
    const auto alive = splash.KeepAlive();
    Start();
    Screen.RunToEnd();
    EXPECT_FALSE(splash.timerInicio.Enabled());
    EXPECT_FALSE(splash.labProgBar.Visible());
    EXPECT_TRUE(splash.IsUnloaded());
}

TEST_F(StartUp, takes_over_the_user_id) {
    Start();
    TheStory.SeeText("GFCPrincipal", "Label2", "User ID : 4711");
    Station.UserId.clear();
    Play();
    EXPECT_EQ(Station.UserId, "4711");
    EXPECT_FALSE(Session.UserIdCancelled);
}

TEST_F(StartUp, cancel_at_the_user_id_ends_with_no_station_touched) {
    TheStory.Tick("formInicio", "timerInicio").Click("UserIDForm", "Command2");
    Play();
    EXPECT_TRUE(Screen.Ended());
    EXPECT_EQ(Screen.ExitCode, 0);
    EXPECT_EQ(Screen.FormsShown, (Names{"formInicio", "UserIDForm"}));
    EXPECT_EQ(Library.Calls, Names{"GetProjectFile"});
}

TEST_F(StartUp, accept_with_an_empty_field_keeps_the_prompt) {
    Session.UserIdCancelled = true;
    TheStory.Tick("formInicio", "timerInicio")
        .Click("UserIDForm", "Command1")
        .Box("Orm Gas Flow Computer", "Please enter your User ID", ui::Icon::Exclamation)
        .SeeShown("UserIDForm")
        .Check([this](Driver&) { EXPECT_FALSE(Session.UserIdCancelled); })
        .Click("UserIDForm", "Command2");
    Play();
    EXPECT_TRUE(Session.UserIdCancelled);
}

TEST_F(StartUp, user_id_takes_digits_point_and_backspace_only) {
    TheStory.Tick("formInicio", "timerInicio")
        .Keys("UserIDForm", "Text1", "a1-2 .3\xC3\xB1x4\b")
        .SeeText("UserIDForm", "Text1", "12.3")
        .Click("UserIDForm", "Command1");
    Play();
    EXPECT_EQ(Station.UserId, "12.3");
}

// A comma is not taken for a point: an id is no number.
TEST_F(StartUp, user_id_says_why_a_key_or_a_paste_is_refused) {
    TheStory.Tick("formInicio", "timerInicio")
        .Do("type and paste what no id has",
            [this](Driver&) {
                ui::TextBox& field = Program.Forms.Get<forms::UserIDForm>().Text1;
                const std::string why = "A user ID has digits and points only.";
                for (const char32_t key : {U'a', U',', U' '}) {
                    EXPECT_FALSE(field.PersonPresses(key));
                    EXPECT_EQ(field.Refusal(), why);
                    EXPECT_TRUE(field.PersonPresses(U'7'));
                    EXPECT_EQ(field.Refusal(), "");
                }
                EXPECT_EQ(field.PersonPastes("47,11"), "");
                EXPECT_EQ(field.Refusal(), why);
                EXPECT_EQ(field.PersonPastes(" 47.11\r\n"), "47.11");
                EXPECT_EQ(field.Refusal(), "");
            })
        .Keys("UserIDForm", "Text1", "\r")
        .Box("Orm Gas Flow Computer", "Please enter your User ID", ui::Icon::Exclamation)
        .Click("UserIDForm", "Command2");
    Play();
}

TEST_F(StartUp, enter_in_the_field_accepts) {
    TheStory.Tick("formInicio", "timerInicio")
        .Keys("UserIDForm", "Text1", "\r")
        .Box("Orm Gas Flow Computer", "Please enter your User ID", ui::Icon::Exclamation)
        .Keys("UserIDForm", "Text1", "7\r")
        .SeeShown("GFCPrincipal");
    Play();
    EXPECT_EQ(Station.UserId, "7");
}

TEST_F(StartUp, user_id_window_is_left_by_its_own_buttons) {
    TheStory.Tick("formInicio", "timerInicio")
        .Do("use the close command", [](Driver& d) { d.CloseWindow("UserIDForm"); })
        .PressKey("UserIDForm", "Escape")
        .SeeShown("UserIDForm")
        .SeeCaption("UserIDForm", "Gas Flow Computer, V1.6.1")
        .SeeText("UserIDForm", "Frame1", "      Enter User ID:")
        .Check([](Driver& d) { EXPECT_EQ(d.Focused("UserIDForm"), "Text1"); })
        .Click("UserIDForm", "Command2");
    Play();
}

TEST_F(StartUp, looks_the_project_up_before_anything_else) {
    Library.ProjectFile = "/jobs/area 5/Plant.kpj";
    Start();
    Play();
    const auto& project = Session.Project;
    EXPECT_EQ(project.ProjectFile, "/jobs/area 5/Plant.kpj");
    EXPECT_EQ(project.ProjectName, "Plant");
    EXPECT_EQ(project.Paths.ProjectFolder, InJobs("area 5"));
    EXPECT_EQ(project.Paths.ConfigFilePrefix, InJobs("area 5/KDOrmAGA_"));
    EXPECT_EQ(Station.ProjectFile, "/jobs/area 5/Plant.kpj");
    EXPECT_EQ(Station.ProjectName, "Plant");
    EXPECT_EQ(Library.Calls, (Names{"GetProjectFile", "GetProjectFile", "GetStations", "CoInitialize"}));
}

TEST_F(StartUp, install_folder_comes_from_morlin_ini) {
    Files.Content["/etc/profiles/morlin.ini"] = "[installation directory]\r\npath32=d:\\orm\r\n";
    Start();
    Play();
    EXPECT_EQ(Session.Project.Paths.InstallFolder, "d:\\orm");
}

TEST_F(StartUp, install_folder_without_morlin_ini_or_key_is_the_default) {
    Files.Content["/etc/profiles/morlin.ini"] = "[Other]\r\nPath32=d:\\orm\r\n";
    Start();
    Play();
    EXPECT_EQ(Session.Project.Paths.InstallFolder, "c:\\");
}

TEST_F(StartUp, a_second_instance_says_so_after_looking_the_project_up) {
    SingleInstance.Free = false;
    Start();
    TheStory.Box("Loading... Gas Flow Computer",
                 "ERROR: The Orm Gas Flow Computer configuration program is running already.",
                 ui::Icon::Exclamation);
    Play();
    EXPECT_TRUE(Screen.Ended());
    EXPECT_NE(Screen.ExitCode, 0);
    EXPECT_EQ(Library.Calls, Names{"GetProjectFile"});
    EXPECT_EQ(Session.Project.Paths.ProjectFolder, platform::WithOwnSeparators("/jobs"));
    EXPECT_EQ(Screen.FormsShown.back(), "UserIDForm");
}

TEST_F(StartUp, a_second_instance_is_told_even_to_who_cancelled_the_user_id) {
    SingleInstance.Free = false;
    TheStory.Tick("formInicio", "timerInicio")
        .Click("UserIDForm", "Command2")
        .Box("Loading... Gas Flow Computer",
             "ERROR: The Orm Gas Flow Computer configuration program is running already.",
             ui::Icon::Exclamation);
    Play();
    EXPECT_TRUE(Screen.Ended());
}

TEST_F(StartUp, without_an_open_project_it_ends_with_a_message) {
    Library.ProjectFile.clear();
    Start();
    TheStory.Box("Gas Flow Computer", "Error: please open the I/O Workshop", ui::Icon::Exclamation);
    Play();
    EXPECT_TRUE(Screen.Ended());
    EXPECT_NE(Screen.ExitCode, 0);
    EXPECT_EQ(CallsOf("GetStations"), 0);
    EXPECT_EQ(CallsOf("CoInitialize"), 0);
    EXPECT_EQ(Screen.FormsShown.back(), "UserIDForm");
}

TEST_F(StartUp, without_an_open_project_the_window_of_the_stand_in_is_offered_where_it_lies_beside) {
    Files.Content[workshopWindow] = "";
    Launcher.Works = false;
    Library.ProjectFile.clear();
    Start();
    TheStory.Box("Gas Flow Computer", "Error: please open the I/O Workshop", ui::Icon::Exclamation)
        .Box("Gas Flow Computer", "", ui::Icon::Question, ui::Answer::Yes)
        .Box("Gas Flow Computer", workshopWindow + " could not be started. Start it from the desktop's menu.",
             ui::Icon::Exclamation);
    Play();
    EXPECT_TRUE(Screen.Ended());
    EXPECT_EQ(Launcher.Started, std::vector{workshopWindow});
}

TEST_F(StartUp, the_window_of_the_stand_in_stays_away_from_who_does_not_want_it) {
    Files.Content[workshopWindow] = "";
    Library.ProjectFile.clear();
    Start();
    TheStory.Box("Gas Flow Computer", "Error: please open the I/O Workshop", ui::Icon::Exclamation)
        .Box("Gas Flow Computer", "", ui::Icon::Question, ui::Answer::No);
    Play();
    EXPECT_TRUE(Screen.Ended());
    EXPECT_TRUE(Launcher.Started.empty());
}

TEST_F(StartUp, without_stations_it_ends_with_a_message) {
    Library.Stations.clear();
    Start();
    TheStory.Box("Gas Flow Computer", "Error: no stations in project", ui::Icon::Exclamation);
    Play();
    EXPECT_TRUE(Screen.Ended());
    EXPECT_NE(Screen.ExitCode, 0);
    EXPECT_EQ(CallsOf("CoInitialize"), 0);
}

TEST_F(StartUp, a_failed_station_list_gives_an_empty_tree_without_a_word) {
    Library.StationListWorks = false;
    Start();
    TheStory.SeeCaption("GFCPrincipal", "Gas Flow Computer, V1.6.1");
    Play();
    EXPECT_FALSE(Screen.Ended());
    EXPECT_EQ(Program.Forms.Get<forms::GFCPrincipal>().TreeGFC.Count(), 1);
    EXPECT_EQ(Program.Forms.Get<forms::GFCPrincipal>().ListView1.Count(), 0);
}

TEST_F(StartUp, a_path_without_folder_or_extension_starts_all_the_same) {
    for (const char* path :
         {"plant", "plant.KPJ", "/", "/jobs/", "/jobs/.kpj", "C:\\jobs\\", "\\", ".", "/x.Kpj"}) {
        World other;
        other.AddStation("North", {});
        other.Library.ProjectFile = path;
        other.TheStory.Tick("formInicio", "timerInicio").Keys("UserIDForm", "Text1", "1\r");
        other.TheStory.SeeShown("GFCPrincipal").Menu("GFCPrincipal", "exit");
        forms::StartProgram(other.Program);
        other.Screen.RunToEnd();
        EXPECT_TRUE(other.Screen.Ended()) << path;
        EXPECT_EQ(other.Screen.ExitCode, 0) << path;
    }
}

TEST_F(StartUp, main_window_starts_with_the_stations_and_nothing_else) {
    Start();
    Session.TreeRefreshNeeded = true;
    Session.EditMode = forms::EditMode::Configurator;
    forms::StartProgram(Program);
    auto& window = Program.Forms.Get<forms::GFCPrincipal>();
    EXPECT_EQ(window.Caption(), "Gas Flow Computer Configurator");
    for (auto* combo : {&window.Combo1, &window.Combo2, &window.Combo3})
        combo->AddEntry("left over");
    Screen.RunToEnd();

    EXPECT_EQ(window.Caption(), "Gas Flow Computer, V1.6.1");
    EXPECT_EQ(window.StatusBar1.PanelText(1), "Gas Flow Computer");
    EXPECT_EQ(window.StatusBar1.WidthOfPanel1(), &window.TreeGFC);
    EXPECT_TRUE(window.ListView1.Shown());
    for (const ui::Control* pane :
         std::initializer_list<ui::Control*>{&window.ListView2, &window.ListView3, &window.SSTab1,
                                             &window.SSTab2, &window.Combo1, &window.Combo2, &window.Combo3})
        EXPECT_FALSE(pane->Visible()) << pane->Name();
    for (auto* combo : {&window.Combo1, &window.Combo2, &window.Combo3})
        EXPECT_TRUE(combo->Entries().empty()) << combo->Name();
    EXPECT_FALSE(Session.TreeRefreshNeeded);
    EXPECT_EQ(Session.EditMode, forms::EditMode::None);
}

} // namespace

} // namespace gfc::test
