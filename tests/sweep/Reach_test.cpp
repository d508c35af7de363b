#include "PlainNeeds.h"
#include "forms/wizard/WizardWorld.h"

#include <gtest/gtest.h>

#include <random>

// Long ways over the wizard's pages on stations of several sizes, foretold step by step. However standard,
// source and composition are chosen one after the other, and whatever is taken back on the way, a gross
// source never comes to stand with a chromatograph.
namespace gfc::test::sweep {
namespace {

const std::string wizard = "WizardFC";
const char* const standardTexts[] = {"AGA-3 1992", "AGA-7", "Accelabar-AGA-3 1992", "GBT21446-2008"};
const char* const sourceTexts[] = {"Densimeter", "AGA-8", "SGERG-88", "ISO 12213-2 1997",
                                   "ISO 12213-3 1997 "};

struct Wander : WizardWorld {
    Wander(const Room& room, int runs) : WizardWorld(room), Space(room), Runs(runs) {
        (void)Preset(0, 0);
        ActivateFirst(runs);
    }

    Room Space;
    int Runs;
    int Standard = 0, Source = 0;
    // Both off after the preset's densimeter.
    bool Manual = false, Chromatograph = false;

    [[nodiscard]] bool Gross() const { return Source == 2 || Source == 4; }

    // Whether the standard fits with the source, after the box if not.
    bool Passes() {
        if (Fits(Space, Times(SourceNeed(Standard, Source), Runs))) {
            Manual = Source != 0;
            // The densimeter takes the manual composition off and leaves the other as it is.
            Chromatograph = Chromatograph && !Manual;
            return true;
        }
        SayShortage();
        return false;
    }
    void SayShortage() {
        const bool isAGA7 = Standard == 1;
        TheStory.Box(ShortageTitle(isAGA7), ShortageText(isAGA7, Runs), ui::Icon::Exclamation);
    }
    void ChooseSource(int source) {
        TheStory.Select(wizard, "cbSourceGas", source);
        Source = source;
        if (Passes())
            return;
        Source = source == 0 ? 1 : 0;
        (void)Passes();
    }
    void ChooseStandard(int standard) {
        TheStory.Select(wizard, "CombStandard", standard);
        Standard = standard;
        if (Passes())
            return;
        Standard = standard == 1 ? 0 : 1;
        (void)Passes();
    }
    void ChooseComposition() {
        const int pages = Standard == 1 && Source == 0 ? 2 : 3;
        for (int page = 0; page < pages; ++page)
            TheStory.Click(wizard, "siguiente");
        TheStory.SeeVisible(wizard, "FrCompGas", Source != 0).SeeEnabled(wizard, "OptCromatografo", !Gross());
        if (Source != 0 && !Gross() && !Chromatograph)
            TakeChromatograph();
        for (int page = 0; page < pages; ++page)
            TheStory.Click(wizard, "atras");
    }
    void TakeChromatograph() {
        TheStory.Click(wizard, "OptCromatografo");
        const auto need = CompositionNeed(Standard, Source);
        Chromatograph = !need || Fits(Space, Times(*need, Runs));
        Manual = !Chromatograph;
        if (!Chromatograph)
            SayShortage();
    }
    void See() {
        EXPECT_FALSE(Gross() && Chromatograph);
        TheStory.SeeText(wizard, "CombStandard", standardTexts[Standard])
            .SeeText(wizard, "cbSourceGas", sourceTexts[Source])
            .SeeChecked(wizard, "OptComp", Manual)
            .SeeChecked(wizard, "OptCromatografo", Chromatograph);
    }
};

TEST(Reach, never_leads_to_a_chromatograph_for_a_gross_source) {
    // All; none with a chromatograph; no gas model; turbines alone; orifices alone; neither.
    const Room rooms[] = {{100, 9, 20, 9}, {60, 9, 20, 9}, {40, 3, 9, 9},
                          {24, 9, 20, 9},  {60, 9, 20, 1}, {10, 1, 3, 1}};
    for (std::size_t i = 0; i < std::size(rooms); ++i) {
        SCOPED_TRACE("room " + std::to_string(i));
        Wander way(rooms[i], 2);
        std::minstd_rand dice(static_cast<unsigned>(i) + 1);
        for (int step = 0; step < 400; ++step) {
            const auto thrown = dice() / 7 % 12;
            if (thrown < 4)
                way.ChooseStandard(static_cast<int>(thrown));
            else if (thrown < 9)
                way.ChooseSource(static_cast<int>(thrown) - 4);
            else
                way.ChooseComposition();
            way.See();
        }
        way.PlayPages();
    }
}

} // namespace
} // namespace gfc::test::sweep
