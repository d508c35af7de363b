#pragma once

#include "ConfiguradorWorld.h"
#include "forms/station/PassStory.h"

namespace gfc::test {

inline const PassWords ConfiguradorWords = {
    " Accelabar parameters", " external SGERG-88 Gas Parameters I/O configuration", true, " of"};
inline const std::string ConfiguradorOpening =
    "Press 'Continue' to configure common and individual Run parameters and I/O...";

// A new configuration, all of it, up to a press on the picture button.
struct PassOfConfigurador : ConfiguradorWorld {
    explicit PassOfConfigurador(const PassChoices& choices) : ThePass(choices, ConfiguradorWords) {
        Preset();
        TheStory.Menu(Configurator, "ConfigAll");
        for (const int run : choices.Runs)
            TheStory.Click(Configurator, "Run" + std::to_string(11 * run));
        TheStory.Select(Configurator, "CombStandard", choices.Standard)
            .Select(Configurator, "cbSourceGas", choices.Source);
        if (choices.External)
            TheStory.SelectTab(Configurator, "SSTab2", 1)
                .Click(Configurator, "OptGagePress")
                .Click(Configurator, "OptAtmPressExt");
        if (choices.Outside)
            TheStory.SelectTab(Configurator, "SSTab2", 3).Click(Configurator, "Option5");
        TheStory.SelectTab(Configurator, "SSTab2", 0).Click(Configurator, "Command1");
        Open();
    }
    void Open() {
        TheStory.SeeShown(Configurator, false)
            .SeeText("Step", "Label1", ConfiguradorOpening)
            .SeeText("Step", "Label2", "")
            .Click("Step", "Command1");
    }
    void AllRuns() {
        ThePass.Through(TheStory);
        TheStory.SeeShown(Configurator)
            .SeeEnabled(Configurator, "SSTab2")
            .SeeVisible(Configurator, "SalvarSalir", false)
            .SeeVisible(Configurator, "SalvarSalir2")
            .SeeEnabled(Configurator, "SalvarSalir2");
    }
    void RefuseToSave(const std::string& entry) {
        TheStory.Menu(Configurator, entry)
            .Box("I/O Tag assignments configuration...", "", ui::Icon::Exclamation);
    }

    PassStory ThePass;
};

} // namespace gfc::test
