#include "suggest/Runs.h"

#include "suggest/Families.h"

#include <algorithm>
#include <map>
#include <numeric>
#include <set>
#include <tuple>

namespace gfc::suggest {

namespace {

using naming::PartKind;
using naming::Subject;
using Rows = std::set<const binding::VariableRow*>;

constexpr std::size_t PlainRunWord = 3;    // letters from which on a word for a run is not taken for another
constexpr std::size_t RowsOfShortWord = 3; // variables that must share a short one
constexpr std::size_t RowsOfPrefix = 3;
constexpr std::size_t RowsOfLoop = 2;

// The word of "R1", without its number.
std::string WordOf(const naming::TagName& name) {
    return name.RunText.substr(0, name.RunText.find_first_of("0123456789"));
}

// The variables of each tag.
std::vector<Rows> RowsOfTags(std::size_t tags, const std::vector<Known>& known) {
    std::vector<Rows> rows(tags);
    for (const Known& variable : known)
        for (const Match& match : variable.Matches)
            rows[match.Tag].insert(variable.Row);
    return rows;
}

// "FT1.PRS": a short word and one digit at the very beginning.
std::string PrefixOf(const naming::TagName& name) {
    if (name.Parts.size() < 3 || name.Parts[0].Kind != PartKind::Letters || name.Parts[0].Device ||
        name.Parts[1].Kind != PartKind::Digits || name.Parts[1].Text.size() != 1)
        return {};
    const auto& word = name.Parts[0];
    return word.Means.empty() || word.Text.size() == 1 ? word.Text + name.Parts[1].Text : std::string();
}

// All numbers of a name, one behind the other: what two tags of one loop share.
std::string NumbersOf(const naming::TagName& name) {
    std::string numbers;
    for (const auto& part : name.Parts)
        if (part.Kind == PartKind::Digits)
            numbers += part.Text + " ";
    return numbers;
}

class Reader {
public:
    Reader(const Question& question, const std::vector<TagFacts>& facts, const std::vector<Known>& known)
        : question_(question), facts_(facts), known_(known), rows_(RowsOfTags(facts.size(), known)),
          families_(question, facts, known), readings_(facts.size()) {}

    std::vector<Reading> Read() {
        CountWords();
        LearnLoops();
        for (std::size_t tag = 0; tag < facts_.size(); ++tag)
            if (!rows_[tag].empty())
                readings_[tag] = ReadNames(tag);
        ReadOrder();
        ReadNeighbours();
        return std::move(readings_);
    }

private:
    [[nodiscard]] bool IsRun(int run) const {
        return std::ranges::find(question_.Runs, run) != question_.Runs.end();
    }

    void CountWords() {
        for (std::size_t tag = 0; tag < facts_.size(); ++tag) {
            const auto& name = facts_[tag].Name;
            if (name.Run != 0)
                wordRows_[name.RunText].insert(rows_[tag].begin(), rows_[tag].end());
            if (const std::string prefix = PrefixOf(name); !prefix.empty())
                prefixRows_[prefix].insert(rows_[tag].begin(), rows_[tag].end());
            NoteZero(name);
        }
    }

    // "RUN0": who counts from 0 means another run by each number.
    void NoteZero(const naming::TagName& name) {
        for (std::size_t i = 0; i + 1 < name.Parts.size(); ++i) {
            const auto& means = name.Parts[i].Means;
            const bool word = means.size() == 1 && means.front() == Subject::Run;
            std::size_t next = i + 1;
            if (name.Parts[next].Kind == PartKind::Sign && next + 1 < name.Parts.size())
                ++next;
            if (word && name.Parts[next].Kind == PartKind::Digits &&
                name.Parts[next].Text.find_first_not_of('0') == std::string::npos)
                countsFromZero_.insert(name.Parts[i].Text);
        }
    }

    // A loop is a run's where at least two variables of that run, and none of another, are bound to it.
    void LearnLoops() {
        struct Loop {
            std::set<int> Runs;
            Rows Bound;
        };
        std::map<std::string, Loop> loops;
        for (const BoundVariable& bound : question_.Bound) {
            if (bound.Variable.Run == 0 || bound.Variable.Row->Stage == binding::BindingStage::GasInputs)
                continue;
            const std::string numbers = NumbersOf(naming::Parse(bound.Binding.Tag));
            loops[numbers].Runs.insert(bound.Variable.Run);
            loops[numbers].Bound.insert(bound.Variable.Row);
        }
        for (const auto& [numbers, loop] : loops)
            if (!numbers.empty() && loop.Runs.size() == 1 && loop.Bound.size() >= RowsOfLoop)
                loops_[numbers] = *loop.Runs.begin();
    }

    [[nodiscard]] Reading ReadWord(std::size_t tag) const {
        const auto& name = facts_[tag].Name;
        const std::string word = WordOf(name);
        if (!IsRun(name.Run) || countsFromZero_.contains(word))
            return {};
        const bool sure = word.size() >= PlainRunWord || wordRows_.at(name.RunText).size() >= RowsOfShortWord;
        return {name.Run, {Evidence::RunWord, std::to_string(name.Run)}, sure};
    }

    [[nodiscard]] Reading ReadModule(std::size_t tag) const {
        const auto& module = *facts_[tag].Module;
        if (!IsRun(module.Run))
            return {};
        return {module.Run, {Evidence::RunModule, std::string(facts_[tag].Tag->ModuleName)}, true};
    }

    [[nodiscard]] Reading ReadLoop(std::size_t tag) const {
        const auto found = loops_.find(NumbersOf(facts_[tag].Name));
        if (found == loops_.end())
            return {};
        const std::string& number = facts_[tag].Name.Device.Loop;
        const std::string what = number.empty() ? "its numbers" : "loop " + number;
        return {
            found->second,
            {Evidence::RunLoopBound, what + " like the other inputs of run " + std::to_string(found->second)},
            true};
    }

    [[nodiscard]] Reading ReadPrefix(std::size_t tag) const {
        const std::string prefix = PrefixOf(facts_[tag].Name);
        const auto found = prefixRows_.find(prefix);
        if (prefix.empty() || found == prefixRows_.end() || found->second.size() < RowsOfPrefix)
            return {};
        const int run = prefix.back() - '0';
        return IsRun(run) ? Reading{run, {Evidence::RunPrefix, prefix}, false} : Reading{};
    }

    // The first that says something, sure or not; another that says something else makes it unsure.
    [[nodiscard]] Reading ReadNames(std::size_t tag) const {
        Reading best;
        for (const Reading& each :
             {ReadLoop(tag), ReadWord(tag), families_.Read(tag), ReadModule(tag), ReadPrefix(tag)}) {
            if (each.Run == 0)
                continue;
            if (best.Run == 0)
                best = each;
            else if (best.Run == each.Run)
                best.IsSure = best.IsSure || each.IsSure;
            else if (each.IsSure || !best.IsSure)
                return {best.Run, best.Why, false};
        }
        if (facts_[tag].IsAlike && best.Why.Kind != Evidence::RunModule)
            best.IsSure = false;
        return best;
    }

    // Of as many tags as there are runs, alike but for their numbers, the first may be the first run's.
    void ReadOrder() {
        for (const Known& variable : known_) {
            std::map<std::string, std::vector<std::size_t>> alike;
            std::set<std::string> told; // of one that says its run the others are other runs'
            for (const Match& match : variable.Matches) {
                const std::string name = WithoutNumbers(match.Tag);
                alike[name].push_back(match.Tag);
                if (readings_[match.Tag].Run != 0 || NamesARun(match.Tag))
                    told.insert(name);
            }
            for (auto& [name, tags] : alike)
                if (tags.size() == question_.Runs.size() && !told.contains(name))
                    GiveInOrder(tags);
        }
    }

    // Be it a run that is not asked for.
    [[nodiscard]] bool NamesARun(std::size_t tag) const {
        const auto& name = facts_[tag].Name;
        return facts_[tag].Module->Run != 0 || (name.Run != 0 && !countsFromZero_.contains(WordOf(name)));
    }

    [[nodiscard]] std::string WithoutNumbers(std::size_t tag) const {
        std::string name;
        for (const auto& part : facts_[tag].Name.Parts)
            if (part.Kind == PartKind::Letters)
                name += part.Text + " ";
        return name + std::string(facts_[tag].Tag->RegType);
    }

    void GiveInOrder(std::vector<std::size_t>& tags) {
        const auto order = [this](std::size_t tag) {
            return std::pair(NumbersOf(facts_[tag].Name), facts_[tag].Tag->RegAddr);
        };
        std::ranges::sort(tags, {}, order);
        for (std::size_t i = 0; i < tags.size(); ++i) {
            const bool only = tags.size() == 1;
            const std::string place =
                std::to_string(i + 1) + ". of " + std::to_string(tags.size()) + " in order";
            readings_[tags[i]] = {question_.Runs[i],
                                  only ? Found{Evidence::RunOnly, {}} : Found{Evidence::RunOrder, place},
                                  only && !facts_[tags[i]].IsAlike};
        }
    }

    // Both next registers of its class and module are of one run.
    void ReadNeighbours() {
        const auto place = [this](std::size_t tag) {
            const project::Tag& at = *facts_[tag].Tag;
            return std::tuple(at.ModuleName.View(), at.RegType.View(), at.RegAddr);
        };
        const auto sameBlock = [&](std::size_t a, std::size_t b) {
            return std::get<0>(place(a)) == std::get<0>(place(b)) &&
                   std::get<1>(place(a)) == std::get<1>(place(b));
        };
        const std::vector<std::size_t> order = ByRegister(place);
        for (std::size_t i = 1; i + 1 < order.size(); ++i) {
            const std::size_t tag = order[i];
            if (rows_[tag].empty() || readings_[tag].Run != 0 || !sameBlock(order[i - 1], tag) ||
                !sameBlock(tag, order[i + 1]))
                continue;
            const Reading& before = readings_[order[i - 1]];
            const Reading& behind = readings_[order[i + 1]];
            if (before.Run != 0 && before.Run == behind.Run && before.IsSure && behind.IsSure)
                readings_[tag] = {before.Run, {Evidence::RunNeighbours, {}}, false};
        }
    }

    // Of several tags on one register the last one counts.
    template <class Place>
    [[nodiscard]] std::vector<std::size_t> ByRegister(Place place) const {
        std::vector<std::size_t> order(facts_.size());
        std::iota(order.begin(), order.end(), std::size_t(0));
        std::ranges::stable_sort(order, {}, place);
        std::vector<std::size_t> last;
        for (std::size_t i = 0; i < order.size(); ++i)
            if (i + 1 == order.size() || place(order[i]) != place(order[i + 1]))
                last.push_back(order[i]);
        return last;
    }

    const Question& question_;
    const std::vector<TagFacts>& facts_;
    const std::vector<Known>& known_;
    std::vector<Rows> rows_;
    Families families_;
    std::vector<Reading> readings_;
    std::map<std::string, Rows> wordRows_, prefixRows_;
    std::set<std::string> countsFromZero_;
    std::map<std::string, int> loops_;
};

} // namespace

std::vector<Reading> ReadingsOf(const Question& question, const std::vector<TagFacts>& facts,
                                const std::vector<Known>& known) {
    return Reader(question, facts, known).Read();
}

} // namespace gfc::suggest
