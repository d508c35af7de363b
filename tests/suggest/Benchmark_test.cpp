#include "Plant.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>

namespace gfc::test {
namespace {

using suggest::Confidence;

struct Score {
    int Variables = 0;
    int Findable = 0;                 // with a right tag in the table
    int HighRight = 0, HighWrong = 0; // wrong: another tag, or a right one that nothing proves
    int FairRight = 0, FairWrong = 0;
    int None = 0;
    int NoneRightly = 0; // without a suggestion where there is none to find

    void Add(const Score& more) {
        Variables += more.Variables;
        Findable += more.Findable;
        HighRight += more.HighRight;
        HighWrong += more.HighWrong;
        FairRight += more.FairRight;
        FairWrong += more.FairWrong;
        None += more.None;
        NoneRightly += more.NoneRightly;
    }
};

void Print(const std::string& name, const std::string& kind, const Score& score) {
    const double findable = score.Findable == 0 ? 1 : score.Findable;
    std::printf("%-15s %-14s %5d %5d | %5d %5d | %5d %5d | %5d %5d | %5.1f %%\n", name.c_str(), kind.c_str(),
                score.Variables, score.Findable, score.HighRight, score.HighWrong, score.FairRight,
                score.FairWrong, score.None, score.NoneRightly, 100 * score.HighRight / findable);
}

const RightTag* RightTagFor(const Plant& plant, const suggest::Suggestion& suggestion) {
    const auto* right = plant.RightFor(suggestion.Variable);
    if (right == nullptr)
        return nullptr;
    for (const RightTag& each : *right) {
        const project::Tag& tag = plant.Tags[each.Tag];
        if (tag.RegType == suggestion.Binding.Type &&
            std::to_string(tag.RegAddr) == suggestion.Binding.RegAddr)
            return &each;
    }
    return nullptr;
}

// What is to be mended is named on request alone, so that the plants that are held out stay unseen.
void Tell(const Plant& plant, const suggest::Suggestion& suggestion, const char* how) {
    const char* wanted = std::getenv("GFC_TELL_PLANT");
    if (wanted != nullptr && plant.Name == wanted)
        std::printf("    %s: %d %s <- %s (%s): %s\n", how, suggestion.Variable.Run,
                    std::string(suggestion.Variable.Row->Stem).c_str(), suggestion.Binding.Tag.c_str(),
                    std::string(TextOf(suggestion.Confidence)).c_str(), suggestion.Reason.c_str());
}

Score Measure(const Plant& plant) {
    const auto question = plant.Question();
    Score score;
    for (const auto& suggestion : suggest::Suggest(question)) {
        ++score.Variables;
        const bool findable = plant.RightFor(suggestion.Variable) != nullptr;
        score.Findable += findable ? 1 : 0;
        const RightTag* right = RightTagFor(plant, suggestion);
        switch (suggestion.Confidence) {
        case Confidence::None:
            ++score.None;
            score.NoneRightly += findable ? 0 : 1;
            Tell(plant, suggestion, findable ? "not found" : "rightly none");
            break;
        case Confidence::Fair:
            ++(right != nullptr ? score.FairRight : score.FairWrong);
            Tell(plant, suggestion, right != nullptr ? "fair" : "fair, WRONG");
            break;
        case Confidence::High:
            const bool good = right != nullptr && right->MayBeSure;
            ++(good ? score.HighRight : score.HighWrong);
            Tell(plant, suggestion, good ? "sure" : "sure, WRONG");
            break;
        }
    }
    return score;
}

bool AreHeldOutPlantsWanted() {
    return std::getenv("GFC_ONLY_TUNED") == nullptr;
}

TEST(Benchmark, OfTwelvePlants) {
    std::printf("%-15s %-14s %5s %5s | %5s %5s | %5s %5s | %5s %5s | %s\n", "plant", "names", "vars", "found",
                "sure+", "sure-", "fair+", "fair-", "none", "ok", "right and sure of what can be found");
    Score all, tuned, held, well;
    for (const Plant& plant : ReadPlants()) {
        if (plant.IsHeld && !AreHeldOutPlantsWanted())
            continue;
        const Score score = Measure(plant);
        Print(plant.Name, plant.Named + (plant.IsHeld ? ", held" : ""), score);
        all.Add(score);
        (plant.IsHeld ? held : tuned).Add(score);
        if (plant.Named == "well")
            well.Add(score);
    }
    Print("tuned", "", tuned);
    Print("held out", "", held);
    Print("well named", "", well);
    Print("all", "", all);
    EXPECT_GE(all.HighRight + all.HighWrong, 300);
    EXPECT_LT(100 * all.HighWrong, all.HighRight + all.HighWrong);
    EXPECT_GE(100 * well.HighRight, 85 * well.Findable);
}

} // namespace
} // namespace gfc::test
