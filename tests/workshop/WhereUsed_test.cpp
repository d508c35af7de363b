#include "SampleFixture.h"
#include "workshop/demo/SampleConfiguration.h"
#include "workshop/usage/ConfigurationFile.h"
#include "workshop/usage/TagUses.h"

#include <gmock/gmock.h>

namespace gfc::workshop {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace {

const std::string Warning = "io-workshop: warning: KDOrmAGA_plant_Lakeside_Delivery.ini names ";

} // namespace

class WhereUsed : public SampleFixture {
protected:
    WhereUsed() { Run("open " + Quoted("plant/plant.KPJ")); }

    [[nodiscard]] Outcome Edit(const std::string& command, const std::string& arguments) const {
        return Run(command + " Lakeside_Delivery " + arguments);
    }
    [[nodiscard]] std::vector<TagUse> Uses(const std::string& station) const {
        Project project = Plant();
        return TagUsesOf(project, StationNamed(project, station));
    }
    void Configure(const std::string& station, const std::string& bytes) const {
        WriteBytes(ConfigurationFileOf(Plant(), station), bytes);
    }
};

TEST_F(WhereUsed, names_station_run_key_and_register) {
    EXPECT_EQ(Run("where-used pit-601_pv").Output,
              "Station            Section  Key              Class  Register  Project   File\n"
              "Lakeside_Delivery  Run1     GasPressKDIOTag  FX     1203      as bound  "
              "KDOrmAGA_plant_Lakeside_Delivery.ini\n");
    EXPECT_EQ(Run("where-used PIT-601_PV lakeside_delivery").Status, 0);
}

TEST_F(WhereUsed, finds_every_binding_of_a_file_whatever_the_case_of_its_keys) {
    const std::vector<TagUse> uses = Uses("Lakeside_Delivery");
    EXPECT_EQ(uses.size(), 12U);
    const std::vector<TagUse> volume = UsesNaming(uses, "FI-601_VOL"); // "StdVolFlowKDIOtag"
    ASSERT_EQ(volume.size(), 1U);
    EXPECT_EQ(volume[0].Class + ' ' + volume[0].Register, "FY 1001");
    EXPECT_EQ(volume[0].File, files_.Configuration);
}

TEST_F(WhereUsed, tells_of_the_common_tag_of_runs_that_are_off_and_of_several_files) {
    Configure("Quarry_Turbine",
              "[FlowRuns]\r\nRun1=No\r\nRun2=yes\r\n[AGA7]\r\nCommonPaKDIOTag=P-1\r\n"
              "CommonPaKDIOType=FX\r\nCommonPaKDIORegAddr=7\r\n[Run1]\r\nGasPressKDIOTag=p-1\r\n"
              "[run2]\r\nGasPressKDIOTag=P-1\r\n");
    Configure("Skid_Añelo",
              "[Run1]\nGasTempKDIOTag=\xD1-1\nGasPressKDIOTag=P-1\nGasPressKDIOTag=P-2\n[Run1]\n"
              "GasDPKDIOTag=P-1\n");
    EXPECT_THAT(Run("where-used P-1").Output,
                AllOf(HasSubstr("Quarry_Turbine  AGA7        CommonPaKDIOTag  FX     7         no such tag"),
                      HasSubstr("Quarry_Turbine  Run1 (off)  GasPressKDIOTag"),
                      HasSubstr("Quarry_Turbine  run2        GasPressKDIOTag"),
                      HasSubstr("Skid_Añelo      Run1 (off)  GasPressKDIOTag"), Not(HasSubstr("GasDP"))));
    EXPECT_THAT(Run("where-used P-1 Skid_Añelo").Output, Not(HasSubstr("Quarry")));
    EXPECT_THAT(Run("where-used Ñ-1").Output, HasSubstr("GasTempKDIOTag"));
    EXPECT_EQ(Run("where-used P-2").Status, 1) << "of a key that stands twice the first counts";
}

TEST_F(WhereUsed, tells_a_tag_that_nothing_names_from_one_that_nobody_knows) {
    const Outcome idle = Run("where-used TIT-602_PV");
    EXPECT_EQ(idle.Status, 0);
    EXPECT_EQ(idle.Output, "No configuration file names TIT-602_PV.\n");
    const Outcome unknown = Run("where-used PIT-9");
    EXPECT_EQ(unknown.Status, 1);
    EXPECT_THAT(unknown.Output,
                HasSubstr("PIT-9: no station has such a tag and no configuration file names it"));
    EXPECT_EQ(Run("where-used PIT-601_PV West").Status, 1);
    EXPECT_EQ(Run("where-used").Status, 2);
}

TEST_F(WhereUsed, shows_where_a_moved_tag_stands_now) {
    ASSERT_EQ(Edit("move-tag", "PIT-601_PV 1299").Status, 0);
    EXPECT_THAT(Run("where-used PIT-601_PV").Output, HasSubstr("FX     1203      now FX 1299"));
}

TEST_F(WhereUsed, edits_of_a_bound_tag_are_done_with_a_warning) {
    const std::string tail =
        " at FX 1203 (Run1, GasPressKDIOTag).\n"
        "io-workshop: warning: check the station in the configurator and bind these anew.\n";
    EXPECT_THAT(Edit("move-tag", "PIT-601_PV 1299").Output, HasSubstr(Warning + "PIT-601_PV" + tail));
    EXPECT_THAT(Edit("move-tag", "PIT-601_PV 1299").Output, Not(HasSubstr("warning")))
        << "nothing was changed";
    const Outcome renamed = Edit("rename-tag", "PIT-601_PV PIT-601A_PV");
    EXPECT_EQ(renamed.Status, 0);
    EXPECT_THAT(renamed.Output, HasSubstr(Warning + "PIT-601_PV" + tail));
    EXPECT_THAT(Edit("remove-tag", "PIT-601A_PV").Output, Not(HasSubstr("warning"))) << "no file names it";
    EXPECT_THAT(Edit("remove-tag", "DT-601_PV").Output, HasSubstr(Warning + "DT-601_PV at FX 1201"));
    EXPECT_EQ(ReadBytes(files_.Configuration), SampleConfiguration(files_.Project.string()));
}

TEST_F(WhereUsed, import_warns_of_bindings_that_it_takes_the_tag_from) {
    WriteBytes(Folder / "t.csv", "Station,Module,Module Type,Tag,Class,Register,Description\n"
                                 "Lakeside_Delivery,VFX_RUNS,,PIT-601_PV,FX,1299,\n"
                                 "Lakeside_Delivery,VFX_RUNS,,DT-601_PV,FX,1201,only a new text\n");
    for (const std::string how : {"--preview ", ""}) {
        const Outcome import = Run("import-tags " + how + Quoted("t.csv"));
        EXPECT_EQ(import.Status, 0);
        EXPECT_THAT(import.Output,
                    AllOf(HasSubstr(Warning + "PIT-601_PV"), Not(HasSubstr("names DT-601_PV"))));
    }
    EXPECT_THAT(Run("import-tags --preview --replace " + Quoted("t.csv")).Output,
                HasSubstr(Warning + "TIT-601_PV at FX 1202 (Run1, GasTempKDIOTag)"));
}

TEST(EntriesOf, takes_sections_and_keys_as_the_reader_of_the_file_does) {
    std::vector<std::string> texts;
    for (const ConfigurationEntry& entry :
         EntriesOf("lost=1\r\n[ A ]\r\n k = v=w \r\n;no entry\r\nK=2\r\n[a]\r\nx=1\r\n"
                   "[B\r\nk=\r\n")) {
        texts.push_back(entry.Section + '/' + entry.Key + '/' + entry.Value);
    }
    EXPECT_THAT(texts, ElementsAre("A/k/v=w", "B/k/"));
    EXPECT_THAT(EntriesOf(""), IsEmpty());
}

} // namespace gfc::workshop
