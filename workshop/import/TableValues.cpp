#include "workshop/import/TableValues.h"

#include "workshop/store/Tags.h"
#include "workshop/text/Letters.h"

#include <algorithm>
#include <charconv>

namespace gfc::workshop {

namespace {

enum class Family { Digital, Analog, Float, Long };

struct Classes {
    std::string_view In;
    std::string_view Out;
};
constexpr Classes ClassesOf[] = {{"X", "Y"}, {"AX", "AY"}, {"FX", "FY"}, {"LX", "LY"}};

// A word of a class. One that is no family leaves that open, as "input" does; "ao" tells both.
struct ClassWord {
    std::string_view Word;
    std::optional<Family> Means;
    Direction Goes;
};

// clang-format off
constexpr ClassWord Words[] = {
    {"float", Family::Float, Direction::Untold},     {"float32", Family::Float, Direction::Untold},
    {"real", Family::Float, Direction::Untold},      {"real32", Family::Float, Direction::Untold},
    {"single", Family::Float, Direction::Untold},    {"flotante", Family::Float, Direction::Untold},
    {"f32", Family::Float, Direction::Untold},       {"fi", Family::Float, Direction::In},
    {"fo", Family::Float, Direction::Out},

    {"long", Family::Long, Direction::Untold},       {"int32", Family::Long, Direction::Untold},
    {"uint32", Family::Long, Direction::Untold},     {"dint", Family::Long, Direction::Untold},
    {"udint", Family::Long, Direction::Untold},      {"dword", Family::Long, Direction::Untold},
    {"counter", Family::Long, Direction::Untold},    {"accumulator", Family::Long, Direction::Untold},
    {"totalizer", Family::Long, Direction::Untold},  {"pulse", Family::Long, Direction::Untold},
    {"contador", Family::Long, Direction::Untold},   {"acumulador", Family::Long, Direction::Untold},
    {"pulso", Family::Long, Direction::Untold},      {"largo", Family::Long, Direction::Untold},
    {"li", Family::Long, Direction::In},             {"lo", Family::Long, Direction::Out},
    {"pi", Family::Long, Direction::In},

    {"analog", Family::Analog, Direction::Untold},   {"analogue", Family::Analog, Direction::Untold},
    {"analogica", Family::Analog, Direction::Untold}, {"analogico", Family::Analog, Direction::Untold},
    {"int16", Family::Analog, Direction::Untold},    {"uint16", Family::Analog, Direction::Untold},
    {"int", Family::Analog, Direction::Untold},      {"uint", Family::Analog, Direction::Untold},
    {"word", Family::Analog, Direction::Untold},     {"ai", Family::Analog, Direction::In},
    {"ao", Family::Analog, Direction::Out},          {"ea", Family::Analog, Direction::In},
    {"sa", Family::Analog, Direction::Out},

    {"digital", Family::Digital, Direction::Untold}, {"discrete", Family::Digital, Direction::Untold},
    {"discreto", Family::Digital, Direction::Untold}, {"discreta", Family::Digital, Direction::Untold},
    {"bool", Family::Digital, Direction::Untold},    {"boolean", Family::Digital, Direction::Untold},
    {"bit", Family::Digital, Direction::Untold},     {"binary", Family::Digital, Direction::Untold},
    {"booleano", Family::Digital, Direction::Untold}, {"status", Family::Digital, Direction::In},
    {"coil", Family::Digital, Direction::Out},       {"di", Family::Digital, Direction::In},
    {"do", Family::Digital, Direction::Out},         {"ed", Family::Digital, Direction::In},
    {"sd", Family::Digital, Direction::Out},

    {"in", {}, Direction::In},        {"input", {}, Direction::In},    {"inputs", {}, Direction::In},
    {"entrada", {}, Direction::In},   {"out", {}, Direction::Out},     {"output", {}, Direction::Out},
    {"outputs", {}, Direction::Out},  {"salida", {}, Direction::Out},  {"saida", {}, Direction::Out},
    {"register", {}, Direction::Untold}, {"integer", {}, Direction::Untold}, {"entero", {}, Direction::Untold},
    {"de", {}, Direction::Untold},    {"point", {}, Direction::Untold},
};

// What a column of directions holds. What may only be read is measured; what can be written, also where it can
// be read back, is an output.
struct DirectionWord {
    std::string_view Word;
    Direction Goes;
};
constexpr DirectionWord Directions[] = {
    {"in", Direction::In},       {"input", Direction::In},     {"i", Direction::In},
    {"entrada", Direction::In},  {"e", Direction::In},         {"x", Direction::In},
    {"read", Direction::In},     {"r", Direction::In},         {"ro", Direction::In},
    {"read only", Direction::In}, {"readonly", Direction::In}, {"lectura", Direction::In},
    {"solo lectura", Direction::In}, {"leitura", Direction::In},
    {"out", Direction::Out},     {"output", Direction::Out},   {"o", Direction::Out},
    {"salida", Direction::Out},  {"saida", Direction::Out},    {"s", Direction::Out},
    {"y", Direction::Out},       {"write", Direction::Out},    {"w", Direction::Out},
    {"wo", Direction::Out},      {"rw", Direction::Out},       {"r w", Direction::Out},
    {"read write", Direction::Out}, {"write only", Direction::Out}, {"escritura", Direction::Out},
    {"lectura escritura", Direction::Out}, {"escrita", Direction::Out},
};

// The areas of register maps that number their registers from the area's start, by five digits and by six.
constexpr RegisterArea Areas[] = {
    {10001, 19999}, {30001, 39999}, {40001, 49999}, {100001, 165536}, {300001, 365536}, {400001, 465536},
};
// clang-format on

struct ReadClass {
    std::optional<Family> Means;
    Direction Goes = Direction::Untold;
};

std::vector<std::string_view> WordsOf(std::string_view plain) {
    std::vector<std::string_view> words;
    while (!plain.empty()) {
        const std::size_t size = std::min(plain.find(' '), plain.size());
        words.push_back(plain.substr(0, size));
        plain.remove_prefix(std::min(size + 1, plain.size()));
    }
    return words;
}

// A later word never changes what an earlier one told, unless it tells more: "long integer", "digital input".
bool TakeWord(std::string_view word, ReadClass& read) {
    const auto known = std::find_if(std::begin(Words), std::end(Words),
                                    [&](const ClassWord& each) { return each.Word == word; });
    if (known == std::end(Words)) {
        return false;
    }
    read.Means = read.Means ? read.Means : known->Means;
    read.Goes = read.Goes != Direction::Untold ? read.Goes : known->Goes;
    return true;
}

// Nothing where a word is not known or none tells a family.
std::optional<ReadClass> ReadForeignClass(const std::string& text) {
    ReadClass read;
    const std::string plain = Plainly(text);
    const auto words = WordsOf(plain);
    const bool known =
        std::all_of(words.begin(), words.end(), [&](std::string_view word) { return TakeWord(word, read); });
    return known && read.Means ? std::optional(read) : std::nullopt;
}

bool IsOurs(const std::string& text) {
    return std::find(RegisterClasses.begin(), RegisterClasses.end(), Upper(text)) != RegisterClasses.end();
}

std::string NoDirection(const std::string& text, const Classes& classes) {
    return "\"" + text + "\" does not say whether it is read or written; use " + std::string(classes.In) +
           " or " + std::string(classes.Out) + ", a column of directions, or --direction in or out";
}

void PutClass(TableRow& row, Direction otherwise, std::vector<ValueFault>& faults) {
    const auto told = row.Direction.empty() ? std::optional(Direction::Untold) : ReadDirection(row.Direction);
    if (!told) {
        faults.push_back({ColumnNamed("Direction"),
                          "\"" + row.Direction + "\" is no direction; use in or out, or read or write"});
        return;
    }
    const auto read = IsOurs(row.Class) || row.Class.empty() ? std::nullopt : ReadForeignClass(row.Class);
    if (!read) {
        return; // ours already, or refused by its column
    }
    const Classes& classes = ClassesOf[static_cast<std::size_t>(*read->Means)];
    Direction goes = read->Goes != Direction::Untold ? read->Goes : *told;
    goes = goes != Direction::Untold ? goes : otherwise;
    if (goes == Direction::Untold) {
        faults.push_back({ColumnNamed("Class"), NoDirection(row.Class, classes)});
        return;
    }
    row.Class = goes == Direction::In ? classes.In : classes.Out;
}

std::optional<std::int64_t> Digits(std::string_view text, int base) {
    std::int64_t number = 0;
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, number, base);
    const bool whole = result.ec == std::errc{} && result.ptr == end && !text.starts_with('-');
    return whole ? std::optional(number) : std::nullopt;
}

// Of the forms for numbers to the base 16; empty where it is none of them.
std::string_view HexDigits(std::string_view text) {
    for (const std::string_view start : {"0x", "0X", "&H", "&h", "16#"}) {
        if (text.starts_with(start)) {
            return text.substr(start.size());
        }
    }
    const bool ends = text.size() > 1 && (text.back() == 'h' || text.back() == 'H');
    return ends ? text.substr(0, text.size() - 1) : std::string_view{};
}

// "R:" and the like before the number.
std::string_view WithoutArea(std::string_view text) {
    const std::size_t colon = text.find(':');
    const bool letters = colon != std::string_view::npos && colon > 0 &&
                         std::all_of(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(colon),
                                     [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); });
    return letters ? text.substr(colon + 1) : text;
}

// 1201.0 and 1201,00: spreadsheets give each number decimals when a column has them once.
std::string_view WithoutZeros(std::string_view text) {
    const std::size_t mark = text.find_first_of(".,");
    const bool zeros = mark != std::string_view::npos && mark > 0 && mark + 1 < text.size() &&
                       text.find_first_not_of('0', mark + 1) == std::string_view::npos;
    // Three zeros may be the thousands of a larger number.
    return zeros && text.size() - mark - 1 != 3 ? text.substr(0, mark) : text;
}

} // namespace

std::optional<std::int64_t> ReadRegister(std::string_view text) {
    const std::string_view number = WithoutArea(text);
    if (const std::string_view hex = HexDigits(number); !hex.empty()) {
        return Digits(hex, 16);
    }
    return Digits(WithoutZeros(number), 10);
}

std::optional<Direction> ReadDirection(std::string_view text) {
    const std::string plain = Plainly(text);
    const auto known = std::find_if(std::begin(Directions), std::end(Directions),
                                    [&](const DirectionWord& each) { return each.Word == plain; });
    return known == std::end(Directions) ? std::nullopt : std::optional(known->Goes);
}

std::vector<ValueFault> PutInOurWords(TableRow& row, Direction otherwise) {
    std::vector<ValueFault> faults;
    PutClass(row, otherwise, faults);
    if (const auto number = ParseNumber(row.Register) ? std::nullopt : ReadRegister(row.Register)) {
        row.Register = std::to_string(*number);
    }
    row.Description = OnOneLine(row.Description); // a record of the library has no room for several
    return faults;
}

std::optional<RegisterArea> AreaOf(const std::vector<TableRow>& rows) {
    const auto within = [&](const RegisterArea& area) {
        bool any = false;
        for (const TableRow& row : rows) {
            const auto number = row.Register.empty() ? std::nullopt : ParseNumber(row.Register);
            if (!row.Register.empty() && (!number || *number < area.First || *number > area.Last)) {
                return false;
            }
            any = any || number.has_value();
        }
        return any;
    };
    const auto found = std::find_if(std::begin(Areas), std::end(Areas), within);
    return found == std::end(Areas) ? std::nullopt : std::optional(*found);
}

bool CountFrom(std::int64_t base, TableRow& row) {
    const auto number = ParseNumber(row.Register);
    if (number && *number - base + 1 < 0) {
        return false;
    }
    row.Register = number ? std::to_string(*number - base + 1) : row.Register;
    return true;
}

} // namespace gfc::workshop
