#include "config/KeyChanges.h"

#include <gmock/gmock.h>

namespace gfc::config {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(KeysOf, GivesTheKeysThatAReaderFindsInTheOrderOfTheFile) {
    const std::string file = "before=any header\r\n[One]\r\nb=2\r\n;c=3\r\n A = \"1\" \r\nB=again\r\n"
                             "[Two]\r\na=\r\n[ONE]\r\nd=shadowed\r\n";
    EXPECT_THAT(KeysOf(file),
                ElementsAre(FileKey{"One", "b", "2"}, FileKey{"One", "A", "1"}, FileKey{"Two", "a", ""}));
}

TEST(KeysOf, GivesTextsInUtf8AndWhole) {
    const std::string longValue(300, 'x');
    const auto keys = KeysOf("[Estaci\xF3n]\nT=\xBA"
                             "C\nL=" +
                             longValue + "\n");
    EXPECT_THAT(keys, ElementsAre(FileKey{"Estación", "T", "ºC"}, FileKey{"Estación", "L", longValue}));
}

TEST(ChangesOf, TellsChangedGoneAndNewKeysAndNothingElse) {
    const std::string before = "[A]\nsame=1\nchanged=1\ngone=1\n[B]\nx=1\n";
    const std::string after = "[B]\nX=1\nnew=\n; a comment\n[A]\nchanged=2\nSAME=1\n";
    EXPECT_THAT(ChangesOf(before, after),
                ElementsAre(KeyChange{"A", "changed", "1", "2"}, KeyChange{"A", "gone", "1", std::nullopt},
                            KeyChange{"B", "new", std::nullopt, ""}));
    EXPECT_THAT(ChangesOf(before, before), IsEmpty());
}

} // namespace
} // namespace gfc::config
