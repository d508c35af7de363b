#pragma once

#include "config/Vocabulary.h"
#include "forms/binding/TagRuns.h"
#include "support/World.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace gfc::test {

[[nodiscard]] inline project::TagList TagsNamed(const std::string& stem, const std::string& type, int count,
                                                int firstRegister) {
    project::TagList tags;
    for (int i = 0; i < count; ++i) {
        project::Tag tag;
        tag.TagName = stem + std::to_string(i + 1);
        tag.RegAddr = firstRegister + i;
        tag.RegType = type;
        tags.push_back(tag);
    }
    return tags;
}

// Station "North" under the given choices, runs 2 and 4 active, free tags F1 ..., L1 ..., A1 ..., D1 ... at
// registers from 1001, 2001, 3001 and 4001; composition from tags. The story happens on TagRuns.
struct TagRunsWorld : World {
    static constexpr const char* Form = "TagRuns";

    explicit TagRunsWorld(std::string_view algorithm = config::algorithm::AGA3,
                          std::string_view source = config::source::AGA8) {
        AddStation("North", {});
        OpenProject();
        Station.CurrentStation = "North";
        Choose(algorithm, source);
        Station.AGA8CalInput = config::CompositionMeasured;
        Station.SystemUnits = config::units::Metric;
        ActivateRuns({2, 4});
        Session.EditMode = forms::EditMode::Wizard;
        Offer(40, 5, 6, 12);
    }

    void Choose(std::string_view algorithm, std::string_view source) {
        Station.FlowAlgorithm = algorithm;
        Station.FlagAGA7 = algorithm == config::algorithm::AGA7;
        Station.GasDensitySource = source;
        Station.Measured = source == config::source::Measured;
    }
    void Offer(int floats, int longs, int analogs, int digitals) {
        Session.Inventory.AvailFloat = TagsNamed("F", "FX", floats, 1001);
        Session.Inventory.AvailLong = TagsNamed("L", "LX", longs, 2001);
        Session.Inventory.AvailAnalog = TagsNamed("A", "AX", analogs, 3001);
        Session.Inventory.AvailDigital = TagsNamed("D", "X", digitals, 4001);
    }

    // Shows the form and plays what the story holds; a story that leaves it open ends with Cancel.
    void Show(binding::BindingStage stage, int element = 0, int run = 1) {
        Session.BindingStage = stage;
        Session.RunPosition = element;
        Session.RunNumber = run;
        Session.Cancelled = false;
        Program.Forms.Get<forms::TagRuns>().ShowModal();
    }
    void LeaveByCancel() {
        TheStory.Click(Form, "Command2")
            .Box("Gas Flow Computer",
                 "Are you sure you want to discard the changes made to the current configuration?",
                 ui::Icon::Question, ui::Answer::Yes);
    }
    void Look(binding::BindingStage stage, std::function<void(forms::TagRuns&)> look, int element = 0,
              int run = 1) {
        TheStory.Check([this, look](Driver&) { look(TheForm()); });
        LeaveByCancel();
        Show(stage, element, run);
    }
    [[nodiscard]] forms::TagRuns& TheForm() { return Program.Forms.Get<forms::TagRuns>(); }

    // Steps.
    void Pick(int position, int child = 0) {
        TheStory.Do("pick variable " + std::to_string(position), [this, position, child](Driver& hands) {
            auto& tree = TheForm().TreeAGA;
            hands.ClickNode(Form, "TreeAGA", tree.FullPath(binding::node::Variable(position) + child));
        });
    }
    void Assign(int position) {
        Pick(position);
        TheStory.Click(Form, "Command1");
    }
    void AutoAssign() {
        TheStory.Click(Form, "Command6")
            .Box("Automatic Tags assignments", "All variables will be assigned to tags automatically",
                 ui::Icon::Information);
    }
    // What the tree says of the variable: "F1 FX 1001", "Not Configured Not Configured Not Configured".
    void See(int position, const std::string& shown, const std::string& image) {
        TheStory.Check([this, position, shown, image](Driver&) {
            EXPECT_EQ(Shown(position), shown) << "variable " << position;
            EXPECT_EQ(TheForm().TreeAGA.At(binding::node::Variable(position)).Image, image);
        });
    }
    void SeeBound(int position, const std::string& shown) { See(position, shown, "Config"); }
    void SeeUnbound(int position) {
        See(position, "Not Configured Not Configured Not Configured", "NoConfig");
    }
    [[nodiscard]] std::string Shown(int position) {
        const auto& tree = TheForm().TreeAGA;
        return tree.At(binding::node::NameValue(position)).Text + " " +
               tree.At(binding::node::TypeValue(position)).Text + " " +
               tree.At(binding::node::AddressValue(position)).Text;
    }
    void SeeRows(const std::string& list, int count) {
        TheStory.Check([list, count](Driver& eyes) { EXPECT_EQ(eyes.Rows(Form, list), count) << list; });
    }
    void SeeRow(const std::string& list, int row, const std::vector<std::string>& cells) {
        TheStory.Check([list, row, cells](Driver& eyes) {
            for (std::size_t column = 0; column < cells.size(); ++column)
                EXPECT_EQ(eyes.Cell(Form, list, row, static_cast<int>(column)), cells[column])
                    << list << " row " << row;
        });
    }
    void SeeSelectedRow(const std::string& list, int row) {
        TheStory.Check([this, list, row](Driver&) {
            const auto* found = dynamic_cast<const ui::ListView*>(TheForm().Find(list));
            EXPECT_EQ(found->SelectedRow(), row) << list;
        });
    }
    void RefuseIncomplete(const std::string& text) {
        TheStory.Click(Form, "Command5").Box("Tags Configuration", text, ui::Icon::Information);
    }

    [[nodiscard]] static config::TagBinding Bound(const std::string& tag, const std::string& type,
                                                  const std::string& address) {
        return {.Tag = tag, .Type = type, .RegAddr = address};
    }
    // Binds every variable of the stage to tags "<stem>0", "<stem>1", ... at registers from first.
    void BindRecords(binding::BindingStage stage, int element, const std::string& stem, int first) {
        int at = 0;
        for (const auto& variable : binding::VariablesOf(stage, Station, element)) {
            *variable.Binding = Bound(stem + std::to_string(at), "FX", std::to_string(first + at));
            ++at;
        }
    }
};

} // namespace gfc::test
