#include "SampleTags.h"
#include "project/TagInventory.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace gfc::project {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> Names(const TagList& tags) {
    std::vector<std::string> names;
    for (const Tag& tag : tags)
        names.push_back(tag.TagName);
    return names;
}

TEST(TagInventory, sorts_tags_by_class_and_kind_of_module) {
    const char* classes[] = {"X", "Y", "AX", "AY", "FX", "FY", "LX", "LY"};
    TagList tags;
    for (const char* regType : classes) {
        tags = tags + Module("P", "Physical", regType, 1, std::string("P-") + regType);
        tags = tags + Module("V", "Virtual", regType, 2, std::string("V-") + regType);
    }
    const TagInventory inventory = InventoryOf(tags);
    EXPECT_THAT(Names(inventory.PhysX), ElementsAre("P-X1"));
    EXPECT_THAT(Names(inventory.PhysY), ElementsAre("P-Y1"));
    EXPECT_THAT(Names(inventory.PhysAX), ElementsAre("P-AX1"));
    EXPECT_THAT(Names(inventory.PhysAY), ElementsAre("P-AY1"));
    EXPECT_THAT(Names(inventory.PhysFX), ElementsAre("P-FX1"));
    EXPECT_THAT(Names(inventory.PhysFY), ElementsAre("P-FY1"));
    EXPECT_THAT(Names(inventory.PhysLX), ElementsAre("P-LX1"));
    EXPECT_THAT(Names(inventory.PhysLY), ElementsAre("P-LY1"));
    EXPECT_THAT(Names(inventory.VirtX), ElementsAre("V-X1", "V-X2"));
    EXPECT_THAT(Names(inventory.VirtY), ElementsAre("V-Y1", "V-Y2"));
    EXPECT_THAT(Names(inventory.VirtAX), ElementsAre("V-AX1", "V-AX2"));
    EXPECT_THAT(Names(inventory.VirtAY), ElementsAre("V-AY1", "V-AY2"));
    EXPECT_THAT(Names(inventory.VirtFX), ElementsAre("V-FX1", "V-FX2"));
    EXPECT_THAT(Names(inventory.VirtFY), ElementsAre("V-FY1", "V-FY2"));
    EXPECT_THAT(Names(inventory.VirtLX), ElementsAre("V-LX1", "V-LX2"));
    EXPECT_THAT(Names(inventory.VirtLY), ElementsAre("V-LY1", "V-LY2"));
}

TEST(TagInventory, takes_a_module_for_virtual_by_its_exact_first_word) {
    const struct {
        const char* Type;
        bool Virtual;
    } table[] = {{"Virtual", true},   {"Virtual Module", true},  {"Virtually", false}, {"virtual", false},
                 {" Virtual", false}, {"Module Virtual", false}, {"", false}};
    for (const auto& [type, expected] : table)
        EXPECT_EQ(IsVirtual({"T", 1, "AX", "M", type}), expected) << type;
}

TEST(TagInventory, takes_a_class_in_any_case) {
    EXPECT_EQ(InventoryOf(Module("M", "Virtual", "ax", 1)).VirtAX.size(), 1U);
    EXPECT_EQ(RegisterClassOf("Fy"), RegisterClass::FY);
    EXPECT_EQ(RegisterClassOf("Z"), std::nullopt);
    EXPECT_EQ(RegisterClassOf(""), std::nullopt);
}

TEST(TagInventory, does_not_show_a_tag_of_an_unknown_class) {
    const TagInventory inventory = InventoryOf(Module("M", "Virtual", "ZX", 3));
    for (const TagList* list : {&inventory.VirtX, &inventory.VirtAX, &inventory.PhysX, &inventory.PhysAX})
        EXPECT_THAT(*list, IsEmpty());
}

TEST(TagInventory, goes_on_behind_a_tag_of_an_unknown_class) {
    const TagInventory inventory =
        InventoryOf(Module("M", "Virtual", "ZX", 1) + Module("M", "Virtual", "AX", 2));
    EXPECT_EQ(inventory.VirtAX.size(), 2U);
}

TEST(TagInventory, keeps_the_whole_record_in_delivery_order) {
    const TagInventory inventory =
        InventoryOf({{"B", 9, "fx", "M2", "Virtual FI"}, {"A", 3, "FX", "M1", "Virtual"}});
    ASSERT_THAT(Names(inventory.VirtFX), ElementsAre("B", "A"));
    EXPECT_EQ(inventory.VirtFX[0].RegAddr, 9);
    EXPECT_EQ(inventory.VirtFX[0].RegType, "fx");
    EXPECT_EQ(inventory.VirtFX[0].ModuleName, "M2");
    EXPECT_EQ(inventory.VirtFX[0].ModuleType, "Virtual FI");
}

TEST(TagInventory, forgets_the_station_before) {
    TagInventory inventory;
    BuildInventory(Module("M", "Virtual", "FX", 5) + Module("M", "Physical", "X", 2), inventory);
    BuildInventory(Module("M", "Virtual", "FX", 2), inventory);
    EXPECT_EQ(inventory.VirtFX.size(), 2U);
    EXPECT_THAT(inventory.PhysX, IsEmpty());
}

const WorkingModuleNames Working{"wa", "wl", "wf"};

TEST(AvailableLists, leave_out_the_working_modules_in_any_case) {
    TagInventory inventory =
        InventoryOf(Module("WF", "Virtual", "FX", 2, "w") + Module("F1", "Virtual", "FY", 1, "fy") +
                    Module("F1", "Virtual", "FX", 1, "fx") + Module("WL", "Virtual", "LX", 1, "w") +
                    Module("L1", "Virtual", "LY", 1, "ly") + Module("L1", "Virtual", "LX", 1, "lx") +
                    Module("L2", "Physical", "LX", 1, "physical") + Module("WA", "Virtual", "AY", 1, "w") +
                    Module("A1", "Physical", "AY", 1, "pay") + Module("A1", "Physical", "AX", 1, "pax") +
                    Module("A2", "Virtual", "AY", 1, "vay") + Module("A2", "Virtual", "AX", 1, "vax") +
                    Module("D", "Virtual", "Y", 1, "vy") + Module("D", "Virtual", "X", 1, "vx") +
                    Module("D", "Physical", "Y", 1, "py") + Module("D", "Physical", "X", 1, "px"));
    BuildAvailableLists(inventory, Working, true);
    EXPECT_THAT(Names(inventory.AvailFloat), ElementsAre("fx1", "fy1"));
    EXPECT_THAT(Names(inventory.AvailLong), ElementsAre("lx1", "ly1")) << "a physical long stands in no list";
    EXPECT_THAT(Names(inventory.AvailAnalog), ElementsAre("vax1", "vay1", "pax1", "pay1"));
    EXPECT_THAT(Names(inventory.AvailDigital), ElementsAre("px1", "py1", "vx1", "vy1"));
}

TEST(AvailableLists, keep_physical_analog_tags_of_the_working_modules_name) {
    TagInventory inventory = InventoryOf(Module("WA", "Physical", "AX", 1, "p"));
    BuildAvailableLists(inventory, Working, false);
    EXPECT_THAT(Names(inventory.AvailAnalog), ElementsAre("p1"));
}

TEST(AvailableLists, touch_long_tags_for_the_pulse_meter_only) {
    TagInventory inventory = InventoryOf(Module("L1", "Virtual", "LX", 2, "l"));
    BuildAvailableLists(inventory, Working, false);
    EXPECT_THAT(inventory.AvailLong, IsEmpty());
    BuildAvailableLists(inventory, Working, true);
    BuildInventory({}, inventory);
    BuildAvailableLists(inventory, Working, false);
    EXPECT_EQ(inventory.AvailLong.size(), 2U) << "left as it was";
}

TEST(AvailableLists, are_empty_of_floats_without_virtual_modules) {
    TagInventory inventory = InventoryOf(Module("M", "Physical", "FX", 3));
    BuildAvailableLists(inventory, Working, true);
    EXPECT_THAT(inventory.AvailFloat, IsEmpty());
}

TEST(MergeWithout, copies_both_lists_in_order) {
    const TagList a = Module("M", "", "X", 1, "a") + Module("W", "", "X", 1, "w");
    const TagList b = Module("w", "", "X", 1, "w") + Module("M", "", "X", 1, "b");
    EXPECT_THAT(Names(MergeWithout(a, b, "W")), ElementsAre("a1", "b1"));
}

TEST(DistinctModules, names_one_module_for_each_run_of_neighbours) {
    EXPECT_THAT(DistinctModules(Module("A", "", "X", 2) + Module("B", "", "X", 1) + Module("A", "", "X", 1)),
                ElementsAre("A", "B", "A"));
    EXPECT_THAT(DistinctModules({}), IsEmpty());
}

TEST(DistinctModules, deliberately_compares_exactly) {
    EXPECT_THAT(DistinctModules(Module("A", "", "X", 1) + Module("a", "", "X", 1)), ElementsAre("A", "a"));
}

} // namespace
} // namespace gfc::project
