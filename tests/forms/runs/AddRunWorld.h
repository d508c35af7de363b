#pragma once

#include "AddRunStory.h"
#include "RunCommandsWorld.h"
#include "forms/binding/TagRuns.h"
#include "forms/station/Step.h"

namespace gfc::test {

// A station with a golden configuration to which one more run is added.
struct AddRunWorld : RunCommandsWorld {
    AddRunWorld(const std::string& golden, const AddedRun& added, project::TagList tags = LargeStationTags())
        : RunCommandsWorld(golden, std::move(tags)), Added(added), Adding(added) {}

    void Open() {
        Choose(Added.Run, "erun");
        OfferToConfigure(ui::Answer::Yes);
    }
    void AddAndSave() {
        Open();
        Adding.Through(TheStory);
        AddRunStory::Finish(TheStory, ui::Answer::Yes);
    }
    void ExpectNothingOpen() {
        EXPECT_EQ(Station.CurrentStation, "");
        EXPECT_EQ(Session.SelectedNodeText, "");
        EXPECT_EQ(Station.ActiveRunCount, 0);
        EXPECT_EQ(Window().TreeGFC.SelectedNode(), 0);
        EXPECT_EQ(Session.Modules.NFX + Session.Modules.NAX + Session.Modules.NLX, 0);
        EXPECT_FALSE(Program.Forms.IsLoaded<forms::Step>());
        EXPECT_FALSE(Program.Forms.IsLoaded<forms::TagRuns>());
    }

    AddedRun Added;
    AddRunStory Adding;
};

} // namespace gfc::test
