#include "workshop/import/Columns.h"

#include "workshop/store/Tags.h"
#include "workshop/text/CodePage.h"
#include "workshop/text/Letters.h"
#include "workshop/text/Paths.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace gfc::workshop {

namespace {

// clang-format off
constexpr std::array<Column, 11> Columns = {{
    {"Station",       &TableRow::Station,      Kind::FileName,  Need::Always,  80},
    {"Station Type",  &TableRow::StationType,  Kind::Text,      Need::Never,   80},
    {"IP Address",    &TableRow::Address,      Kind::Text,      Need::Never,   20},
    {"Serial Number", &TableRow::SerialNumber, Kind::Number,    Need::Never,   10},
    {"Module",        &TableRow::Module,       Kind::Text,      Need::WithTag, 40},
    {"Module Type",   &TableRow::ModuleType,   Kind::Text,      Need::Never,   80},
    {"Tag",           &TableRow::Tag,          Kind::Text,      Need::WithTag, 40},
    {"Class",         &TableRow::Class,        Kind::Class,     Need::WithTag, 40},
    {"Register",      &TableRow::Register,     Kind::Register,  Need::WithTag, 20},
    {"Description",   &TableRow::Description,  Kind::Note,      Need::Never,   80},
    {"Direction",     &TableRow::Direction,    Kind::Direction, Need::Never,   20},
}};

struct KnownAs {
    std::string_view Name; // as Plainly() leaves it
    std::string_view Title;
};

// How exports of control systems and field units title these columns.
constexpr KnownAs Names[] = {
    {"site", "Station"},               {"rtu", "Station"},                {"rtu name", "Station"},
    {"station name", "Station"},       {"site name", "Station"},          {"node", "Station"},
    {"device", "Station"},             {"device name", "Station"},        {"estacion", "Station"},
    {"nombre estacion", "Station"},    {"nombre de estacion", "Station"}, {"estacao", "Station"},
    {"equipo", "Station"},             {"unidad", "Station"},             {"remota", "Station"},
    {"location", "Station"},           {"plc", "Station"},

    {"rtu type", "Station Type"},      {"device type", "Station Type"},   {"tipo estacion", "Station Type"},
    {"tipo de estacion", "Station Type"}, {"station model", "Station Type"}, {"tipo de equipo", "Station Type"},

    {"ip", "IP Address"},              {"host", "IP Address"},            {"host address", "IP Address"},
    {"ip addr", "IP Address"},         {"direccion ip", "IP Address"},    {"endereco ip", "IP Address"},
    {"network address", "IP Address"}, {"direccion de red", "IP Address"},

    {"serial", "Serial Number"},       {"serial no", "Serial Number"},    {"sn", "Serial Number"},
    {"numero de serie", "Serial Number"}, {"n serie", "Serial Number"},   {"num serie", "Serial Number"},

    {"module name", "Module"},         {"card", "Module"},                {"card name", "Module"},
    {"slot", "Module"},                {"io module", "Module"},           {"i o module", "Module"},
    {"board", "Module"},               {"rack slot", "Module"},           {"modulo", "Module"},
    {"tarjeta", "Module"},             {"nombre modulo", "Module"},       {"nombre de modulo", "Module"},
    {"cartao", "Module"},              {"group", "Module"},               {"grupo", "Module"},
    {"block", "Module"},

    {"card type", "Module Type"},      {"module kind", "Module Type"},    {"tipo modulo", "Module Type"},
    {"tipo de modulo", "Module Type"}, {"tipo de tarjeta", "Module Type"}, {"tipo tarjeta", "Module Type"},
    {"board type", "Module Type"},

    {"tag name", "Tag"},               {"tagname", "Tag"},                {"point", "Tag"},
    {"point name", "Tag"},             {"point id", "Tag"},               {"name", "Tag"},
    {"variable", "Tag"},               {"variable name", "Tag"},          {"item", "Tag"},
    {"item name", "Tag"},              {"signal", "Tag"},                 {"signal name", "Tag"},
    {"channel name", "Tag"},           {"symbol", "Tag"},                 {"nombre", "Tag"},
    {"punto", "Tag"},                  {"nombre punto", "Tag"},           {"nombre del punto", "Tag"},
    {"nombre tag", "Tag"},             {"etiqueta", "Tag"},               {"senal", "Tag"},
    {"nombre de la senal", "Tag"},     {"nome", "Tag"},                   {"tag id", "Tag"},
    {"nombre del tag", "Tag"},         {"nombre de variable", "Tag"},     {"ponto", "Tag"},

    {"type", "Class"},                 {"data type", "Class"},            {"datatype", "Class"},
    {"point type", "Class"},           {"tag type", "Class"},             {"io type", "Class"},
    {"i o type", "Class"},             {"signal type", "Class"},          {"register type", "Class"},
    {"register class", "Class"},       {"reg type", "Class"},             {"tipo", "Class"},
    {"tipo de dato", "Class"},         {"tipo dato", "Class"},            {"tipo de punto", "Class"},
    {"tipo de senal", "Class"},        {"clase", "Class"},                {"classe", "Class"},
    {"tipo de dado", "Class"},         {"format", "Class"},               {"formato", "Class"},
    {"tipo de registro", "Class"},     {"variable type", "Class"},

    {"reg", "Register"},               {"register address", "Register"},  {"reg address", "Register"},
    {"register number", "Register"},   {"reg addr", "Register"},          {"modbus address", "Register"},
    {"modbus register", "Register"},   {"modbus", "Register"},            {"offset", "Register"},
    {"registro", "Register"},          {"direccion modbus", "Register"},  {"direccion de registro", "Register"},
    {"registrador", "Register"},       {"endereco modbus", "Register"},   {"numero de registro", "Register"},
    {"point address", "Register"},     {"tag address", "Register"},       {"io address", "Register"},

    {"desc", "Description"},           {"descriptor", "Description"},     {"comment", "Description"},
    {"comments", "Description"},       {"remark", "Description"},         {"remarks", "Description"},
    {"notes", "Description"},          {"descripcion", "Description"},    {"descricao", "Description"},
    {"comentario", "Description"},     {"observaciones", "Description"},  {"point description", "Description"},
    {"tag description", "Description"}, {"long name", "Description"},     {"servicio", "Description"},
    {"service", "Description"},

    {"dir", "Direction"},              {"access", "Direction"},           {"access mode", "Direction"},
    {"read write", "Direction"},       {"r w", "Direction"},              {"client access", "Direction"},
    {"in out", "Direction"},           {"i o", "Direction"},              {"io", "Direction"},
    {"direccion e s", "Direction"},    {"e s", "Direction"},              {"sentido", "Direction"},
    {"acceso", "Direction"},           {"acesso", "Direction"},           {"entrada salida", "Direction"},
};

constexpr std::string_view SomeAddress[] = {"address", "addr", "direccion", "endereco"};

// clang-format on

bool IsClass(const std::string& text) {
    return std::find(RegisterClasses.begin(), RegisterClasses.end(), Upper(text)) != RegisterClasses.end();
}

// Blanks at the ends and line breaks would be lost on the way through a configuration file.
bool IsPlain(const std::string& text) {
    const bool control =
        std::any_of(text.begin(), text.end(), [](unsigned char c) { return c < ' ' || c == 0x7F; });
    return !control && text.front() != ' ' && text.back() != ' ';
}

} // namespace

std::span<const Column> AllColumns() {
    return Columns;
}

const Column* ColumnNamed(std::string_view title) {
    const auto found = std::find_if(Columns.begin(), Columns.end(),
                                    [&](const Column& column) { return SameName(column.Title, title); });
    return found == Columns.end() ? nullptr : &*found;
}

const Column* ColumnKnownAs(std::string_view name) {
    if (const Column* column = ColumnNamed(name)) {
        return column;
    }
    const std::string plain = Plainly(name);
    const auto found = std::find_if(std::begin(Names), std::end(Names),
                                    [&](const KnownAs& known) { return known.Name == plain; });
    return ColumnNamed(found == std::end(Names) ? std::string_view(plain) : found->Title);
}

bool NamesSomeAddress(std::string_view name) {
    return std::find(std::begin(SomeAddress), std::end(SomeAddress), Plainly(name)) != std::end(SomeAddress);
}

std::optional<std::int32_t> ParseNumber(std::string_view text) {
    std::int32_t number = 0;
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, number);
    return result.ec == std::errc{} && result.ptr == end && number >= 0 ? std::optional(number)
                                                                        : std::nullopt;
}

std::string FaultOf(const Column& column, const std::string& text) {
    if (!FitsCodePage(text)) {
        return "\"" + text + "\" holds characters outside Windows-1252 or is not UTF-8";
    }
    if (CharacterCount(text) > column.Width) {
        return "\"" + text + "\" is longer than " + std::to_string(column.Width) + " characters";
    }
    if (!IsPlain(text)) {
        return "\"" + text + "\" holds a control character or has a blank at its end";
    }
    if (column.Holds == Kind::FileName && !IsFileName(text)) {
        return "\"" + text + "\" cannot be part of a file name";
    }
    const bool number = column.Holds == Kind::Number || column.Holds == Kind::Register;
    if (number && !ParseNumber(text)) {
        return "\"" + text + "\" is not a whole number from 0 to 2147483647";
    }
    if (column.Holds == Kind::Class && !IsClass(text)) {
        return "\"" + text + "\" is no register class; use X, Y, AX, AY, FX, FY, LX or LY";
    }
    return {};
}

} // namespace gfc::workshop
