#include "naming/Pieces.h"

#include <algorithm>
#include <optional>

namespace gfc::naming {

namespace {

constexpr std::size_t ShortestGrown = 3; // a word within grown-together ones; shorter ones stand in anything
constexpr std::size_t ShortestCut = 4;   // the beginning of a word
constexpr std::size_t Usual = 8;         // parts of a name

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}
bool IsUpper(char c) {
    return c >= 'A' && c <= 'Z';
}
bool IsLower(char c) {
    return c >= 'a' && c <= 'z';
}

PartKind KindOf(char folded) {
    if (IsDigit(folded))
        return PartKind::Digits;
    return IsUpper(folded) ? PartKind::Letters : PartKind::Sign;
}

// Between "static" and "Press", and between "AGA" and "Press".
bool IsNewCapital(std::string_view raw, std::size_t at) {
    if (at == 0 || at >= raw.size() || !IsUpper(raw[at]))
        return false;
    const bool next = at + 1 < raw.size() && IsLower(raw[at + 1]);
    return IsLower(raw[at - 1]) || (IsUpper(raw[at - 1]) && next);
}

// The letters and digits from here that make a word of the table with a digit in it, the longest; 0 for none.
// What comes before must not be part of it, nor what comes behind.
std::size_t WordWithDigits(std::string_view folded, std::size_t at) {
    if (at > 0 && KindOf(folded[at - 1]) == PartKind::Letters && !IsDigit(folded[at]))
        return 0;
    std::size_t end = at, digit = folded.size();
    for (; end < folded.size() && KindOf(folded[end]) != PartKind::Sign; ++end)
        if (IsDigit(folded[end]))
            digit = std::min(digit, end);
    for (; end > std::max(at + 1, digit); --end) {
        const auto text = folded.substr(at, end - at);
        const bool whole = end == folded.size() || KindOf(folded[end]) != KindOf(folded[end - 1]);
        if (whole && FindWord(text) != nullptr)
            return text.size();
    }
    return 0;
}

std::size_t PlainEnd(std::string_view folded, std::string_view raw, std::size_t at) {
    const PartKind kind = KindOf(folded[at]);
    std::size_t end = at + 1;
    while (end < folded.size() && KindOf(folded[end]) == kind && !IsNewCapital(raw, end))
        ++end;
    return end;
}

Part PartOf(std::string_view text, std::size_t begin, PartKind kind) {
    Part part;
    part.Kind = kind;
    part.Text = text;
    part.Begin = begin;
    return part;
}

// The last of the fewest words that make up the text up to here.
struct Grown {
    const Word* Last = nullptr;
    std::size_t Count = 0; // of all of them
};

// For each length of the text's beginnings; without a last word where none make it up.
std::vector<Grown> GrowthOf(std::string_view text) {
    std::vector<Grown> upTo(text.size() + 1);
    for (std::size_t end = ShortestGrown; end <= text.size(); ++end)
        for (std::size_t begin = 0; begin + ShortestGrown <= end; ++begin) {
            const bool opens = begin == 0 || upTo[begin].Last != nullptr;
            const std::size_t count = upTo[begin].Count + 1;
            if (!opens || (upTo[end].Last != nullptr && upTo[end].Count <= count))
                continue;
            if (const Word* word = FindWord(text.substr(begin, end - begin)))
                upTo[end] = {word, count};
        }
    return upTo;
}

// The fewest words that make up the text; none if they do not.
std::vector<const Word*> GrownTogether(std::string_view text) {
    const std::vector<Grown> upTo = GrowthOf(text);
    std::vector<const Word*> words(upTo.back().Count);
    std::size_t end = text.size();
    for (auto word = words.rbegin(); word != words.rend(); ++word) {
        *word = upTo[end].Last;
        end -= (*word)->Text.size();
    }
    return words;
}

// The word of which the text is the beginning, if all such words mean the same: the last of the table.
const Word* WordThatBegins(std::string_view text) {
    if (text.size() < ShortestCut)
        return nullptr;
    const auto words = WordsFrom(text);
    const auto isOther = [&](const Word* word) {
        return word->Means != words.front()->Means || word->Also != words.front()->Also;
    };
    return words.empty() || std::ranges::any_of(words, isOther) ? nullptr : *std::ranges::max_element(words);
}

void Give(Part& part, const Word& word) {
    part.Known = &word;
    part.Means = {word.Means};
    if (word.Also)
        part.Means.push_back(*word.Also);
}

// "T3_PRES": in front of a number and of other words a single letter is a place, and no quantity.
bool IsPlace(const std::vector<Part>& parts) {
    return parts.size() > 3 && parts[0].Kind == PartKind::Letters && parts[0].Text.size() == 1 &&
           parts[1].Kind == PartKind::Digits && parts[2].Kind == PartKind::Sign &&
           parts[3].Kind == PartKind::Letters && FindWord(parts[0].Text) != nullptr &&
           FindWord(parts[0].Text)->Means != Subject::Run;
}

void AppendMeaning(Part part, std::vector<Part>& parts) {
    if (const Word* word = FindWord(part.Text)) {
        Give(part, *word);
    } else if (const auto grown = GrownTogether(part.Text); !grown.empty()) {
        std::size_t begin = part.Begin;
        for (const Word* each : grown) {
            parts.push_back(PartOf(each->Text, begin, PartKind::Letters));
            Give(parts.back(), *each);
            begin += each->Text.size();
        }
        return;
    } else if (const Word* cut = WordThatBegins(part.Text)) {
        Give(part, *cut);
        part.Cut = true;
    }
    parts.push_back(std::move(part));
}

// "I_BUTANO", "CarbonDioxide": what two parts say together is not what each says alone. Of short ones only
// those that chemists put in front are taken together: "D_P" may be anything.
bool BelongsInFront(std::string_view text, std::string_view next) {
    return text == "I" || text == "N" || (text.size() >= ShortestGrown && next.size() >= ShortestGrown);
}

std::size_t NextLetters(const std::vector<Part>& parts, std::size_t at) {
    std::size_t next = at + 1;
    if (next < parts.size() && parts[next].Kind == PartKind::Sign && parts[next].Text.size() == 1)
        ++next;
    const bool letters = next < parts.size() && parts[next].Kind == PartKind::Letters && !parts[next].Device;
    return letters ? next : 0;
}

void JoinWords(std::vector<Part>& parts) {
    for (std::size_t i = 0; i < parts.size(); ++i) {
        if (parts[i].Kind != PartKind::Letters || parts[i].Device)
            continue;
        const std::size_t next = NextLetters(parts, i);
        if (next == 0 || !BelongsInFront(parts[i].Text, parts[next].Text) ||
            FindWord(parts[i].Text + parts[next].Text) == nullptr)
            continue;
        parts[i].Text += parts[next].Text;
        const auto first = parts.begin() + static_cast<std::ptrdiff_t>(i) + 1;
        parts.erase(first, parts.begin() + static_cast<std::ptrdiff_t>(next) + 1);
    }
}

} // namespace

std::vector<Part> PiecesOf(std::string_view folded, std::string_view name) {
    // Capitals are looked for only where both texts stand letter by letter beside each other.
    const std::string_view raw = folded.size() == name.size() ? name : folded;
    std::vector<Part> parts;
    parts.reserve(Usual);
    for (std::size_t at = 0; at < folded.size();) {
        const std::size_t word = WordWithDigits(folded, at);
        const std::size_t end = word != 0 ? at + word : PlainEnd(folded, raw, at);
        const PartKind kind = word != 0 ? PartKind::Letters : KindOf(folded[at]);
        std::string_view text = folded.substr(at, end - at);
        // "C6+" is all from hexane on.
        const bool plus = (text == "C6" || text == "NC6") && end < folded.size() && folded[end] == '+';
        parts.push_back(PartOf(plus ? "C6PLUS" : text, at, kind));
        at = plus ? end + 1 : end;
    }
    return parts;
}

void ReadMeanings(std::vector<Part>& parts) {
    JoinWords(parts);
    const bool place = IsPlace(parts);
    std::vector<Part> read;
    read.reserve(parts.size());
    for (Part& part : parts) {
        if (part.Kind == PartKind::Letters && !part.Device && !(place && read.empty()))
            AppendMeaning(std::move(part), read);
        else
            read.push_back(std::move(part));
    }
    parts = std::move(read);
}

} // namespace gfc::naming
