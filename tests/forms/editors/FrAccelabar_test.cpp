#include "forms/editors/FrAccelabar.h"
#include "forms/station/Step.h"
#include "support/Named.h"
#include "support/World.h"

#include <gtest/gtest.h>

namespace gfc::forms {

namespace {

const std::string form = "FrAccelabar";
const std::string discard = "Are you sure want to discard the changes made to the current configuration ?";

struct FrAccelabarForm : testing::Test {
    FrAccelabarForm() {
        World.Station.SystemUnits = "Metric";
        World.Station.FlowAlgorithm = "Accelabar-AGA-3-1992";
        World.Session.EditRun = 1;
        World.Session.EditMode = EditMode::ModifyTags;
        World.Station.Runs.PrepareWholeStation(5);
    }

    void Show() { World.Program.Forms.Get<FrAccelabar>().ShowModal(); }
    void ShowAndAccept() {
        Story.Click(form, "Command1");
        Show();
    }
    void ExpectRecord(const std::string& size, const std::string& y, const std::string& k,
                      const std::string& diameter) {
        EXPECT_EQ(Record.AccelabarSize, size);
        EXPECT_EQ(Record.AccelabarY, y);
        EXPECT_EQ(Record.AccelabarK, k);
        EXPECT_EQ(Record.AccelabarThroatDia, diameter);
    }
    void SeeFields(bool shown) {
        for (const auto* field : {"Text1", "Text2", "Text3"})
            Story.SeeVisible(form, field, shown);
    }

    test::World World;
    test::Story& Story = World.TheStory;
    config::RunMechanical& Record = World.Session.EditedMechanical;
};

} // namespace

TEST_F(FrAccelabarForm, names_its_controls) {
    const std::vector<std::pair<std::string, std::string>> captions{
        {"Frame1", "Accelabar Parameters"},
        {"lbSize", "Accelabar Size"},
        {"Label5", "in"},
        {"Label2", "Gas expansion factor coeff. Y"},
        {"Label6", "a-coeff."},
        {"Label3", "Flow coefficient ( K )"},
        {"Label4", "Throat Diameter"},
        {"Label1", "in"},
        {"Command1", "Accept"},
        {"Command2", "Cancel"},
        {"Command3", "Default Value"},
        {"Command4", "Help"},
        {"Check1", "Enable Copy"},
        {"Frame2", "Copy accelabar parameters from"},
        {"Option1_0", "Run 1"},
        {"Option1_4", "Run 5"},
    };
    for (const auto& [control, caption] : captions)
        Story.SeeText(form, control, caption);
    Story.CloseWindow(form).SeeShown(form);
    ShowAndAccept();
}

TEST_F(FrAccelabarForm, starts_at_the_first_size_for_an_empty_record) {
    Story.SeeText(form, "Combo1", "3").SeeEnabled(form, "Option1_0", false);
    SeeFields(false);
    ShowAndAccept();
    ExpectRecord("3", "0.7432", "0.6566", "1.289");
    EXPECT_FALSE(World.Session.Cancelled);
}

struct SizeRow {
    int Position;
    std::string Size, Y, K, Diameter;

    friend void PrintTo(const SizeRow& the, std::ostream* out) { *out << the.Size; }
};

struct FrAccelabarSizes : FrAccelabarForm, testing::WithParamInterface<SizeRow> {};

TEST_P(FrAccelabarSizes, show_and_store_their_constants_whatever_the_hidden_fields_hold) {
    const auto& row = GetParam();
    Story.Select(form, "Combo1", 6);
    for (const auto* field : {"Text1", "Text2", "Text3"})
        Story.Type(form, field, "9.9");
    Story.Select(form, "Combo1", row.Position)
        .SeeText(form, "Combo1", row.Size)
        .SeeText(form, "lbAccelabarY", row.Y)
        .SeeText(form, "lbAccelabarK", row.K)
        .SeeText(form, "lbDiameter", row.Diameter);
    SeeFields(false);
    ShowAndAccept();
    ExpectRecord(row.Size, row.Y, row.K, row.Diameter);
}

TEST_P(FrAccelabarSizes, come_back_from_a_stored_record) {
    Record.AccelabarSize = GetParam().Size;
    Story.SeeText(form, "Combo1", GetParam().Size).SeeText(form, "lbAccelabarY", GetParam().Y);
    ShowAndAccept();
    ExpectRecord(GetParam().Size, GetParam().Y, GetParam().K, GetParam().Diameter);
}

INSTANTIATE_TEST_SUITE_P(Sizes, FrAccelabarSizes,
                         testing::Values(SizeRow{0, "3", "0.7432", "0.6566", "1.289"},
                                         SizeRow{1, "4", "0.6986", "0.7106", "1.700"},
                                         SizeRow{2, "6", "0.6865", "0.6779", "2.560"},
                                         SizeRow{3, "8", "0.6407", "0.7123", "3.389"},
                                         SizeRow{4, "10", "0.6095", "0.7329", "4.251"},
                                         SizeRow{5, "12", "0.5891", "0.7455", "5.056"}),
                         test::By(&SizeRow::Size));

TEST_F(FrAccelabarForm, takes_own_coefficients_for_other_and_keeps_the_labels_behind) {
    Story.Select(form, "Combo1", 3).Select(form, "Combo1", 6);
    SeeFields(true);
    Story.SeeText(form, "lbAccelabarY", "0.6407")
        .Type(form, "Text1", "0.1")
        .Type(form, "Text2", "0.2")
        .Type(form, "Text3", "0.3");
    ShowAndAccept();
    ExpectRecord("Other", "0.1", "0.2", "0.3");
}

TEST_F(FrAccelabarForm, shows_the_stored_coefficients_of_other) {
    Record.AccelabarSize = "Other";
    Record.AccelabarY = "0.4";
    Record.AccelabarK = "0.5";
    Record.AccelabarThroatDia = "0.6";
    SeeFields(true);
    Story.SeeText(form, "Text1", "0.4").SeeText(form, "Text2", "0.5").SeeText(form, "Text3", "0.6");
    ShowAndAccept();
    ExpectRecord("Other", "0.4", "0.5", "0.6");
}

TEST_F(FrAccelabarForm, refuses_other_with_each_field_empty_but_has_changed_the_size) {
    Record.AccelabarSize = "8";
    Record.AccelabarY = "old";
    Story.Select(form, "Combo1", 6)
        .Type(form, "Text1", "1")
        .Type(form, "Text2", "2")
        .Type(form, "Text3", "3");
    for (const auto* field : {"Text1", "Text2", "Text3"}) {
        Story.Type(form, field, "").Click(form, "Command1");
        Story.Box("Accelabar Parameters", "Error : Missing Parameters", ui::Icon::Exclamation)
            .SeeShown(form)
            .Check([this](test::Driver&) {
                EXPECT_EQ(Record.AccelabarSize, "Other");
                EXPECT_EQ(Record.AccelabarY, "old");
            });
        Story.Type(form, field, "4");
    }
    ShowAndAccept();
    ExpectRecord("Other", "4", "4", "4");
}

TEST_F(FrAccelabarForm, leaves_a_size_outside_the_list_and_its_constants_alone) {
    Record.AccelabarSize = "5";
    Record.AccelabarY = "0.7";
    Record.AccelabarK = "0.8";
    Record.AccelabarThroatDia = "2.2";
    Story.SeeText(form, "Combo1", "5").SeeText(form, "lbAccelabarY", "").SeeText(form, "Text1", "");
    SeeFields(false);
    ShowAndAccept();
    ExpectRecord("5", "0.7", "0.8", "2.2");
}

TEST_F(FrAccelabarForm, takes_the_constants_once_a_listed_size_is_chosen) {
    Record.AccelabarSize = "5";
    Story.Select(form, "Combo1", 1).SeeText(form, "lbDiameter", "1.700");
    ShowAndAccept();
    ExpectRecord("4", "0.6986", "0.7106", "1.700");
}

TEST_F(FrAccelabarForm, goes_back_to_the_first_size_by_the_button) {
    World.Station.Runs.Mechanical.at(1).AccelabarSize = "8";
    Story.Select(form, "Combo1", 5)
        .Click(form, "Check1")
        .SeeEnabled(form, "Option1_1")
        .Click(form, "Command3")
        .SeeChecked(form, "Check1", false)
        .SeeEnabled(form, "Option1_1", false)
        .SeeText(form, "Combo1", "3");
    ShowAndAccept();
    ExpectRecord("3", "0.7432", "0.6566", "1.289");
}

TEST_F(FrAccelabarForm, offers_a_copy_from_other_runs_that_have_a_size) {
    for (const std::size_t run : {0U, 1U, 4U})
        World.Station.Runs.Mechanical.at(run).AccelabarSize = "8";
    World.Station.Runs.Mechanical.at(2).OrificeDia = "8";
    Story.Click(form, "Check1")
        .SeeEnabled(form, "Option1_0", false) // the run itself
        .SeeEnabled(form, "Option1_1")
        .SeeEnabled(form, "Option1_2", false)
        .SeeEnabled(form, "Option1_3", false)
        .SeeEnabled(form, "Option1_4")
        .Click(form, "Check1")
        .SeeEnabled(form, "Option1_1", false)
        .SeeEnabled(form, "Option1_4", false);
    ShowAndAccept();
}

TEST_F(FrAccelabarForm, copies_the_whole_element_and_takes_its_size) {
    World.Station.Runs.Mechanical.at(4).AccelabarSize = "12";
    World.Station.Runs.Mechanical.at(4).PipeMaterial = "SS";
    Story.Click(form, "Check1").Click(form, "Option1_4").SeeText(form, "lbAccelabarK", "0.7455");
    ShowAndAccept();
    ExpectRecord("12", "0.5891", "0.7455", "5.056");
    EXPECT_EQ(Record.PipeMaterial, "SS");
}

TEST_F(FrAccelabarForm, shows_copied_coefficients_of_other_only_after_a_new_load) {
    auto& source = World.Station.Runs.Mechanical.at(4);
    source.AccelabarSize = "Other";
    source.AccelabarY = "0.4";
    source.AccelabarK = "0.5";
    source.AccelabarThroatDia = "0.6";
    Story.Click(form, "Check1")
        .Click(form, "Option1_4")
        .SeeText(form, "Combo1", "Other")
        .SeeText(form, "Text1", "")
        .Check([this](test::Driver&) { ExpectRecord("Other", "0.4", "0.5", "0.6"); })
        .Do("throw the form away", [this](test::Driver&) { World.Program.Forms.Unload<FrAccelabar>(); });
    Show();
    Story.SeeText(form, "Text1", "0.4").SeeText(form, "Text2", "0.5").SeeText(form, "Text3", "0.6");
    ShowAndAccept();
}

TEST_F(FrAccelabarForm, copies_on_the_mouse_press_and_not_by_the_keyboard) {
    World.Station.Runs.Mechanical.at(4).AccelabarSize = "12";
    auto& shown = World.Program.Forms.Touch<FrAccelabar>();
    shown.Check1.SetValue(true);
    shown.Option1[4].SetValue(true);
    EXPECT_EQ(shown.Combo1.Text(), "3");
    EXPECT_TRUE(shown.Option1[4].PersonPresses());
    EXPECT_EQ(shown.Combo1.Text(), "12");
}

TEST_F(FrAccelabarForm, filters_keys_and_checks_the_shape_of_its_fields) {
    Story.Select(form, "Combo1", 6);
    for (const auto* field : {"Text1", "Text2", "Text3"}) {
        Story.Type(form, field, "a1.-2.3").SeeText(form, field, "1.2.3").Focus(form, "Command4");
        Story.Box("Incorrect value", "", ui::Icon::Exclamation).Check([field](test::Driver& d) {
            EXPECT_EQ(d.Focused(form), field);
        });
        Story.Type(form, field, "7");
    }
    ShowAndAccept();
    ExpectRecord("Other", "7", "7", "7");
}

TEST_F(FrAccelabarForm, stays_when_the_cancel_is_not_meant) {
    Story.Click(form, "Command2");
    Story.Box("Close mechanical parameters", discard, ui::Icon::None, ui::Answer::No).SeeShown(form);
    ShowAndAccept();
    EXPECT_FALSE(World.Session.Cancelled);
}

TEST_F(FrAccelabarForm, cancels_without_touching_the_record) {
    Record.AccelabarSize = "8";
    const auto before = Record;
    (void)World.Program.Forms.Touch<Step>();
    Story.Select(form, "Combo1", 5).Click(form, "Command2");
    Story.Box("Close mechanical parameters", discard, ui::Icon::None, ui::Answer::Yes);
    Show();
    EXPECT_TRUE(World.Session.Cancelled);
    EXPECT_EQ(Record, before);
    EXPECT_FALSE(World.Program.Forms.IsLoaded<FrAccelabar>());
    EXPECT_FALSE(World.Program.Forms.IsLoaded<Step>());
}

TEST_F(FrAccelabarForm, opens_its_help_always) {
    Story.Click(form, "Command4");
    ShowAndAccept();
    EXPECT_EQ(World.Screen.HelpOpened, (std::vector<std::pair<std::string, int>>{{"AGA.chm", 7400}}));
}

} // namespace gfc::forms
