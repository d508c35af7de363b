#include "naming/Words.h"

#include <algorithm>
#include <unordered_map>
#include <vector>

namespace gfc::naming {

namespace {

using enum Subject;
using enum Language;

// A word that two languages share stands under neither.
// clang-format off
constexpr Word Table[] = {
    // quantities
    {"PRESSURE", Pressure, English}, {"PRESSION", Pressure}, {"PRESS", Pressure, English},
    {"PRES", Pressure}, {"PRESION", Pressure, Spanish}, {"PRESSAO", Pressure, Portuguese},
    {"PSTAT", Pressure, Any, Static}, {"PF", Pressure, Any, Flowing}, {"P", Pressure},
    {"PRSN", Pressure, Spanish}, {"DP", Differential}, {"DIFF", Differential, English},
    {"DIF", Differential}, {"DIFERENCIAL", Differential}, {"DIFFERENTIAL", Differential, English},
    {"DELTAP", Differential}, {"PDIF", Differential}, {"DPRESS", Differential, English},
    {"PDIFF", Differential, English}, {"PD", Differential}, {"DELTA", Differential},
    {"TEMPERATURE", Temperature, English}, {"TEMP", Temperature}, {"TMP", Temperature},
    {"TEMPERATURA", Temperature}, {"TF", Temperature, Any, Flowing}, {"T", Temperature},
    {"DENSITY", Density, English}, {"DENS", Density}, {"DEN", Density}, {"DENSIDAD", Density, Spanish},
    {"DENSIDADE", Density, Portuguese}, {"RHO", Density}, {"MASAESP", Density, Spanish},
    {"RHOTP", Density, Any, Flowing}, {"RHOF", Density, Any, Flowing}, {"RHOL", Density, Any, Flowing},
    {"RHOS", Density, Any, Standard}, {"RHOB", Density, Any, Standard}, {"RHON", Density, Any, Standard},
    {"RHOSTD", Density, Any, Standard}, {"GRAVITY", RelativeDensity, English}, {"SG", RelativeDensity},
    {"GR", RelativeDensity}, {"RD", RelativeDensity}, {"GRS", RelativeDensity}, {"SPGR", RelativeDensity},
    {"GRAVEDAD", RelativeDensity, Spanish}, {"RELDENS", RelativeDensity, English}, {"FLOW", Flow, English},
    {"FLUJO", Flow, Spanish}, {"CAUDAL", Flow, Spanish}, {"VAZAO", Flow, Portuguese},
    {"FLW", Flow, English}, {"QF", Flow}, {"Q", Flow}, {"GASTO", Flow, Spanish}, {"QV", Flow, Any, Volume},
    {"QN", Flow, Any, Standard}, {"QB", Flow, Any, Standard}, {"QS", Flow, Any, Standard},
    {"QSTD", Flow, Any, Standard}, {"QM", Flow, Any, Mass}, {"QMASS", Flow, English, Mass},
    {"SCFH", Flow, English, Standard}, {"SCFD", Flow, English, Standard},
    {"MMSCFD", Flow, English, Standard}, {"VOLUME", Volume}, {"VOLUMEN", Volume, Spanish}, {"VOL", Volume},
    {"VN", Volume, Any, Standard}, {"VB", Volume, Any, Standard}, {"VSTD", Volume, Any, Standard},
    {"SCF", Volume, English, Standard}, {"V", Volume}, {"VS", Volume, Any, Standard},
    {"MASS", Mass, English}, {"MASA", Mass, Spanish}, {"MASSA", Mass, Portuguese}, {"M", Mass},
    {"MSS", Mass}, {"ENERGY", Energy, English}, {"ENERGIA", Energy}, {"CALORIFIC", CalorificValue, English},
    {"HEATING", CalorificValue, English}, {"CALORIFICO", CalorificValue}, {"HV", CalorificValue, English},
    {"CV", CalorificValue}, {"HS", CalorificValue}, {"PCS", CalorificValue},
    {"GHV", CalorificValue, English}, {"HHV", CalorificValue, English}, {"BTU", CalorificValue, English},
    {"PODERCAL", CalorificValue}, {"CAL", CalorificValue, Spanish}, {"PODER", CalorificValue},
    {"COMPRESSIBILITY", Compressibility, English}, {"COMPRESIBILIDAD", Compressibility, Spanish},
    {"COMPRESSIBILIDADE", Compressibility, Portuguese}, {"COMP", Compressibility}, {"Z", Compressibility},
    {"ZF", Compressibility, Any, Flowing}, {"ZTP", Compressibility, Any, Flowing},
    {"ZS", Compressibility, Any, Standard}, {"ZB", Compressibility, Any, Standard},
    {"ZN", Compressibility, Any, Standard}, {"ZSTD", Compressibility, Any, Standard},
    {"COMPRESIB", Compressibility, Spanish}, {"COMPRESS", Compressibility, English},
    {"FPV", Supercompressibility}, {"FPVS", Supercompressibility},
    {"SUPERCOMPRESSIBILITY", Supercompressibility, English},
    {"SUPERCOMPRESIBILIDAD", Supercompressibility, Spanish},
    {"SUPERCOMPRESSIBILIDADE", Supercompressibility, Portuguese}, {"SUPERCOMP", Supercompressibility},
    {"UNCERTAINTY", Uncertainty, English}, {"UNCERT", Uncertainty, English}, {"UNC", Uncertainty, English},
    {"INCERTIDUMBRE", Uncertainty, Spanish}, {"INCERTEZA", Uncertainty, Portuguese},
    {"INCERT", Uncertainty}, {"PULSE", Pulses, English}, {"PULSES", Pulses, English}, {"PULSO", Pulses},
    {"PULSOS", Pulses}, {"PULS", Pulses}, {"PLS", Pulses}, {"PULSECOUNT", Pulses, English},
    {"CNT", Pulses, English}, {"COUNT", Pulses, English}, {"COUNTS", Pulses, English}, {"CONTADOR", Pulses},
    {"CONTEO", Pulses, Spanish}, {"IMPULSOS", Pulses}, {"ATMOSPHERIC", Atmospheric, English},
    {"ATM", Atmospheric}, {"ATMOS", Atmospheric}, {"PATM", Atmospheric}, {"BARO", Atmospheric},
    {"BAROMETRIC", Atmospheric, English}, {"BAROMETRICA", Atmospheric}, {"ATMOSFERICA", Atmospheric},
    {"PBARO", Atmospheric}, {"DIAMETER", Diameter, English}, {"DIAMETRO", Diameter}, {"DIAM", Diameter},
    {"DIA", Diameter}, {"BORE", Diameter, English, Orifice}, {"ROUGHNESS", Roughness, English},
    {"RUGOSIDAD", Roughness, Spanish}, {"RUGOSIDADE", Roughness, Portuguese}, {"ROUGH", Roughness, English},
    {"RUGOS", Roughness}, {"SERVICETIME", ServiceTime, English}, {"SERVICE", ServiceTime, English},
    {"SERVICIO", ServiceTime, Spanish}, {"SERVICO", ServiceTime, Portuguese},
    {"SERVTIME", ServiceTime, English},
    // conditions
    {"STANDARD", Standard, English}, {"STD", Standard}, {"BASE", Standard}, {"NORMAL", Standard},
    {"NORM", Standard}, {"ESTANDAR", Standard, Spanish}, {"PADRAO", Standard, Portuguese},
    {"REFERENCE", Standard, English}, {"REFERENCIA", Standard}, {"CORRECTED", Standard, English},
    {"CORREGIDO", Standard, Spanish}, {"CORRIGIDO", Standard, Portuguese}, {"FLOWING", Flowing, English},
    {"ACTUAL", Flowing}, {"TP", Flowing}, {"LINE", Flowing, English}, {"OPER", Flowing},
    {"OPERACION", Flowing, Spanish}, {"OPERACAO", Flowing, Portuguese}, {"FLUYENTE", Flowing, Spanish},
    {"FLUXO", Flow, Portuguese}, {"BRUTO", Flowing}, {"STATIC", Static, English}, {"STAT", Status, English},
    {"ESTATICA", Static}, {"EST", Static}, {"PIPE", Pipe, English}, {"TUBERIA", Pipe, Spanish},
    {"CANO", Pipe, Spanish}, {"DUTO", Pipe, Portuguese}, {"TUBO", Pipe}, {"ORIFICE", Orifice, English},
    {"ORIF", Orifice}, {"ORIFICIO", Orifice}, {"PLACA", Orifice}, {"PLATE", Orifice, English}, {"GAS", Gas},
    {"NATURAL", Gas}, {"GC", Analyser, English}, {"GCX", Analyser, English}, {"CG", Analyser},
    {"CROMA", Analyser}, {"CROMATOGRAFO", Analyser}, {"CROMATOG", Analyser},
    {"CHROMATOGRAPH", Analyser, English}, {"CHROM", Analyser, English}, {"CHROMA", Analyser, English},
    {"ANALYSER", Analyser, English}, {"ANALYZER", Analyser, English}, {"ANALIZADOR", Analyser, Spanish},
    {"ANALISADOR", Analyser, Portuguese}, {"COMPOSITION", Analyser, English},
    {"COMPOSICION", Analyser, Spanish}, {"COMPOSICAO", Analyser, Portuguese}, {"MOL", Analyser},
    {"MOLE", Analyser, English}, {"PCT", Neutral, English}, {"FRAC", Neutral}, {"AGA3", FlowCalculation},
    {"AGA7", FlowCalculation}, {"AGA5167", FlowCalculation}, {"A3", FlowCalculation},
    {"A7", FlowCalculation}, {"AGA8", GasCalculation}, {"A8", GasCalculation}, {"SGERG", GasCalculation},
    {"SGERG88", GasCalculation}, {"GERG", GasCalculation}, {"ISO12213", GasCalculation},
    // states and commands
    {"STATUS", Status, English}, {"STS", Status, English}, {"ST", Status}, {"STATE", Status, English},
    {"ESTADO", Status}, {"ESTAT", Status}, {"FLST", Status, English, Flow}, {"GASST", Status, English, Gas},
    {"SIT", Status}, {"SITUACAO", Status, Portuguese}, {"CODE", Status, English}, {"HOLD", Hold, English},
    {"HLD", Hold, English}, {"PAUSE", Hold, English}, {"PAUSA", Hold}, {"RETENER", Hold, Spanish},
    {"RETENCION", Hold, Spanish}, {"RETER", Hold, Portuguese}, {"RETENCAO", Hold, Portuguese},
    {"CONGELAR", Hold}, {"STOP", Hold, English}, {"DETENER", Hold, Spanish}, {"PARAR", Hold},
    {"PARADA", Hold}, {"RUNNING", Running, English}, {"MARCHA", Running, Spanish},
    {"START", Running, English}, {"ARRANQUE", Running, Spanish}, {"PARTIDA", Running, Portuguese},
    {"RUNHOLD", Hold, English, Running}, {"TOTALIZE", Totalize, English}, {"TOTALIZER", Totalize, English},
    {"TOTALISER", Totalize, English}, {"TOT", Totalize}, {"TOTAL", Totalize}, {"TOTALS", Totalize, English},
    {"TOTALIZA", Totalize}, {"TOTALIZAR", Totalize}, {"TOTALIZADOR", Totalize},
    {"TOTALES", Totalize, Spanish}, {"TOTAIS", Totalize, Portuguese}, {"ACCUM", Totalize, English},
    {"ACC", Totalize, English}, {"ACUM", Totalize}, {"ACUMULADO", Totalize}, {"ACUMULADOR", Totalize},
    {"HOLDT", Totalize, English, Hold}, {"RESET", Reset}, {"RST", Reset}, {"RES", Reset},
    {"CLEAR", Reset, English}, {"CLR", Reset, English}, {"BORRAR", Reset, Spanish},
    {"BORRADO", Reset, Spanish}, {"ZERAR", Reset, Portuguese}, {"ZERA", Reset, Portuguese},
    {"REINICIO", Reset}, {"REINICIAR", Reset}, {"PUESTACERO", Reset, Spanish}, {"LIMPIAR", Reset, Spanish},
    {"LIMPAR", Reset, Portuguese}, {"ENABLE", Enable, English}, {"ENA", Enable}, {"EN", Enable, English},
    {"GCEN", Enable, English, Analyser}, {"GCENA", Enable, English, Analyser},
    {"ENABLED", Enable, English}, {"HABILITA", Enable}, {"HABILITAR", Enable},
    {"HABILITACION", Enable, Spanish}, {"HABILITACAO", Enable, Portuguese}, {"HAB", Enable},
    {"PERM", Enable}, {"STROBE", Enable, English}, {"VALID", Enable, English}, {"VALIDO", Enable},
    // components
    {"METHANE", Methane, English}, {"METANO", Methane}, {"C1", Methane}, {"CH4", Methane},
    {"METH", Methane, English}, {"NITROGEN", Nitrogen, English}, {"NITROGENO", Nitrogen, Spanish},
    {"NITROGENIO", Nitrogen, Portuguese}, {"N2", Nitrogen}, {"NITRO", Nitrogen}, {"NITR", Nitrogen},
    {"CARBONDIOXIDE", CarbonDioxide, English}, {"CO2", CarbonDioxide}, {"DIOXIDO", CarbonDioxide},
    {"DIOX", CarbonDioxide}, {"DIOXIDE", CarbonDioxide, English}, {"CARBONICO", CarbonDioxide},
    {"ANHIDRIDO", CarbonDioxide, Spanish}, {"ETHANE", Ethane, English}, {"ETANO", Ethane}, {"C2", Ethane},
    {"C2H6", Ethane}, {"ETH", Ethane, English}, {"PROPANE", Propane, English}, {"PROPANO", Propane},
    {"C3", Propane}, {"C3H8", Propane}, {"PROP", Propane}, {"WATER", Water, English}, {"AGUA", Water},
    {"H2O", Water}, {"HYDROGENSULFIDE", HydrogenSulfide, English}, {"HYDROGENSULFITE", HydrogenSulfide, English}, {"H2S", HydrogenSulfide},
    {"SULFHIDRICO", HydrogenSulfide, Spanish}, {"SULFIDRICO", HydrogenSulfide, Portuguese},
    {"SULFIDE", HydrogenSulfide, English}, {"SULFHIDR", HydrogenSulfide, Spanish},
    {"SULFURO", HydrogenSulfide, Spanish}, {"HYDROGEN", Hydrogen, English},
    {"HIDROGENO", Hydrogen, Spanish}, {"HIDROGENIO", Hydrogen, Portuguese}, {"H2", Hydrogen},
    {"CARBONMONOXIDE", CarbonMonoxide, English}, {"CO", CarbonMonoxide}, {"MONOXIDO", CarbonMonoxide},
    {"MONOX", CarbonMonoxide}, {"MONOXIDE", CarbonMonoxide, English}, {"OXYGEN", Oxygen, English},
    {"OXIGENO", Oxygen, Spanish}, {"OXIGENIO", Oxygen, Portuguese}, {"O2", Oxygen},
    {"ISOBUTANE", IsoButane, English}, {"ISOBUTANO", IsoButane}, {"IBUTANE", IsoButane, English},
    {"IBUTANO", IsoButane}, {"IC4", IsoButane}, {"I4", IsoButane}, {"IC4H10", IsoButane},
    {"NORMALBUTANE", NormalButane, English}, {"NBUTANE", NormalButane, English}, {"NBUTANO", NormalButane},
    {"NC4", NormalButane}, {"N4", NormalButane}, {"BUTANE", NormalButane, English},
    {"BUTANO", NormalButane}, {"NC4H10", NormalButane}, {"ISOPENTANE", IsoPentane, English},
    {"ISOPENTANO", IsoPentane}, {"IPENTANE", IsoPentane, English}, {"IPENTANO", IsoPentane},
    {"IC5", IsoPentane}, {"I5", IsoPentane}, {"NEOPENTANE", Aside, English}, {"NEOPENTANO", Aside},
    {"NEOC5", Aside}, {"NEO", Aside}, {"NORMALPENTANE", NormalPentane, English},
    {"NPENTANE", NormalPentane, English}, {"NPENTANO", NormalPentane}, {"NC5", NormalPentane},
    {"N5", NormalPentane}, {"PENTANE", NormalPentane, English}, {"PENTANO", NormalPentane},
    {"HEXANE", Hexane, English}, {"HEXANO", Hexane}, {"NHEXANE", Hexane, English}, {"NHEXANO", Hexane},
    {"NC6", Hexane}, {"C6", Hexane}, {"HEX", Hexane}, {"C6PLUS", HexanePlus, English}, {"C6P", HexanePlus},
    {"C6MAS", HexanePlus, Spanish}, {"C6MAIS", HexanePlus, Portuguese}, {"HEXPLUS", HexanePlus, English},
    {"HEXANEPLUS", HexanePlus, English}, {"C6UP", HexanePlus, English}, {"PLUS", HexanePlus, English},
    {"HEPTANE", Heptane, English}, {"HEPTANO", Heptane}, {"NHEPTANE", Heptane, English},
    {"NHEPTANO", Heptane}, {"NC7", Heptane}, {"C7", Heptane}, {"HEPT", Heptane},
    {"OCTANE", Octane, English}, {"OCTANO", Octane}, {"NOCTANE", Octane, English}, {"NOCTANO", Octane},
    {"NC8", Octane}, {"C8", Octane}, {"NONANE", Nonane, English}, {"NONANO", Nonane},
    {"NNONANE", Nonane, English}, {"NNONANO", Nonane}, {"NC9", Nonane}, {"C9", Nonane},
    {"DECANE", Decane, English}, {"DECANO", Decane}, {"NDECANE", Decane, English}, {"NDECANO", Decane},
    {"NC10", Decane}, {"C10", Decane}, {"HELIUM", Helium, English}, {"HELIO", Helium}, {"HE", Helium},
    {"ARGON", Argon}, {"ARGONIO", Argon, Portuguese}, {"AR", Argon},
    // what qualifies
    {"RUN", Run, English}, {"METER", Run, English}, {"MTR", Run, English}, {"STREAM", Run, English},
    {"TRAMO", Run, Spanish}, {"TREN", Run, Spanish}, {"LINEA", Run, Spanish}, {"RAMAL", Run},
    {"MEDIDOR", Run}, {"TRECHO", Run, Portuguese}, {"LINHA", Run, Portuguese}, {"PUENTE", Run, Spanish},
    {"CORRIDA", Run}, {"METERRUN", Run, English}, {"TRAIN", Run, English}, {"R", Run}, {"MR", Run},
    {"TR", Run}, {"FR", Run}, {"TRM", Run, Spanish}, {"STR", Run, English}, {"PV", Value, English},
    {"VALUE", Value, English}, {"VAL", Value}, {"VALOR", Value}, {"MEAS", Value, English}, {"MED", Value},
    {"LIVE", Value, English}, {"RATE", Rate, English}, {"TASA", Rate, Spanish}, {"TAXA", Rate, Portuguese},
    {"INST", Rate}, {"INSTANT", Rate, English}, {"SEL", Selected}, {"SELECTED", Selected, English},
    {"SELECT", Selected, English}, {"SELECCION", Selected, Spanish}, {"SELECAO", Selected, Portuguese},
    {"SELECIONADA", Selected, Portuguese}, {"SELECCIONADA", Selected, Spanish},
    {"INUSE", Selected, English}, {"LOW", Range, English}, {"HIGH", Range, English}, {"LO", Range, English},
    {"HI", Range, English}, {"BAJA", Range, Spanish}, {"ALTA", Range}, {"BAIXA", Range, Portuguese},
    {"BAJO", Range, Spanish}, {"ALTO", Range}, {"BAIXO", Range, Portuguese}, {"MID", Range, English},
    {"MEDIA", Range}, {"SPARE", Spare, English}, {"RESERVA", Spare}, {"LIBRE", Spare, Spanish},
    {"LIVRE", Spare, Portuguese}, {"RSV", Spare}, {"UNUSED", Spare, English}, {"RESERVE", Spare, English},
    {"RESERVADO", Spare}, {"IN", Neutral, English}, {"INPUT", Neutral, English}, {"OUT", Neutral, English},
    {"OUTPUT", Neutral, English}, {"CMD", Neutral, English}, {"COMANDO", Neutral},
    {"MANDO", Neutral, Spanish}, {"CMND", Neutral, English}, {"FACTOR", Neutral},
    {"FATOR", Neutral, Portuguese}, {"CALC", Neutral}, {"IO", Neutral}, {"TAG", Neutral}, {"REG", Neutral},
    {"AI", Neutral}, {"AO", Neutral}, {"DI", Neutral}, {"DO", Neutral}, {"FC", Neutral},
    {"CALCULATED", Neutral, English}, {"CALCULADO", Neutral}, {"DE", Neutral}, {"DEL", Neutral, Spanish},
    {"OF", Neutral, English}, {"FC1", Neutral}, {"XQ", Neutral}, {"CARBON", Neutral, English},
    {"CARBONO", Neutral}, {"TIME", Neutral, English}, {"TIEMPO", Neutral, Spanish},
    {"TEMPO", Neutral, Portuguese}, {"CONTENT", Neutral, English}, {"CONTENIDO", Neutral, Spanish},
    {"TEOR", Neutral, Portuguese}, {"REL", RelativeDensity}, {"RELATIVE", RelativeDensity, English},
    {"RELATIVA", RelativeDensity}, {"SPECIFIC", RelativeDensity, English}, {"SUPERIOR", Neutral},
    {"ABS", Neutral}, {"ABSOLUTE", Neutral, English}, {"N", Neutral}, {"I", Neutral},
    // near to a quantity and not it
    {"ALARM", Aside, English}, {"ALARMA", Aside, Spanish}, {"ALARME", Aside, Portuguese}, {"ALM", Aside},
    {"ALR", Aside}, {"LIM", Aside}, {"LIMIT", Aside, English}, {"LIMITE", Aside}, {"HILIM", Aside, English},
    {"LOLIM", Aside, English}, {"HIHI", Aside, English}, {"LOLO", Aside, English}, {"HH", Aside, English},
    {"LL", Aside, English}, {"CUT", Aside, English}, {"CUTOFF", Aside, English}, {"LOCUT", Aside, English},
    {"CORTE", Aside}, {"RAW", Aside, English}, {"CRUDO", Aside, Spanish}, {"SP", Aside, English},
    {"SETPOINT", Aside, English}, {"CONSIGNA", Aside}, {"PREV", Aside, English},
    {"PREVIOUS", Aside, English}, {"PREVHR", Aside, English}, {"PREVDAY", Aside, English},
    {"LAST", Aside, English}, {"YDAY", Aside, English}, {"YESTERDAY", Aside, English},
    {"AYER", Aside, Spanish}, {"ONTEM", Aside, Portuguese}, {"ANTERIOR", Aside}, {"ALT", Aside},
    {"VNALT", Aside}, {"INLET", Aside, English}, {"OUTLET", Aside, English}, {"ENTRADA", Aside},
    {"SALIDA", Aside, Spanish}, {"SAIDA", Aside, Portuguese}, {"AMBIENT", Aside, English},
    {"AMBIENTE", Aside}, {"AMB", Aside}, {"FILTER", Aside, English}, {"FILTRO", Aside},
    {"BATT", Aside, English}, {"BAT", Aside}, {"BATTERY", Aside, English}, {"BATERIA", Aside},
    {"LEVEL", Aside, English}, {"NIVEL", Aside}, {"VALVE", Aside, English}, {"VALVULA", Aside},
    {"VLV", Aside, English}, {"FAIL", Aside, English}, {"FAULT", Aside, English}, {"FALLA", Aside, Spanish},
    {"FALHA", Aside, Portuguese}, {"ERR", Aside}, {"ERROR", Aside}, {"ERRCNT", Aside}, {"CALIB", Aside},
    {"CALIBRATION", Aside, English}, {"ZERO", Aside}, {"CERO", Aside, Spanish}, {"SPAN", Aside, English},
    {"MAX", Aside}, {"MIN", Aside}, {"MAXIMO", Aside}, {"MINIMO", Aside}, {"AVG", Aside, English},
    {"PROM", Aside, Spanish}, {"PROMEDIO", Aside, Spanish}, {"AVERAGE", Aside, English},
    {"DAY", Aside, English}, {"HOUR", Aside, English}, {"MONTH", Aside, English}, {"HOY", Aside, Spanish},
    {"HOJE", Aside, Portuguese}, {"TODAY", Aside, English}, {"DIARIO", Aside}, {"HORARIO", Aside},
    {"MENSUAL", Aside, Spanish}, {"MENSAL", Aside, Portuguese}, {"WOBBE", Aside}, {"PCI", Aside},
    {"LHV", Aside, English}, {"CYCLE", Aside, English}, {"CICLO", Aside}, {"ACK", Aside, English},
    {"SEPARADOR", Aside}, {"SEPARATOR", Aside, English}, {"HEATER", Aside, English},
    {"CALENTADOR", Aside, Spanish}, {"AQUECEDOR", Aside, Portuguese}, {"ODOR", Aside}, {"ODORANTE", Aside},
    {"ODORIZER", Aside, English}, {"REGULATOR", Aside, English}, {"REGULADOR", Aside},
    {"STATION", Aside, English}, {"ESTACION", Aside, Spanish}, {"ESTACAO", Aside, Portuguese},
    {"OPEN", Aside, English}, {"CLOSED", Aside, English}, {"ABIERTA", Aside, Spanish},
    {"CERRADA", Aside, Spanish}, {"ABERTA", Aside, Portuguese}, {"FECHADA", Aside, Portuguese},
    {"DOOR", Aside, English}, {"PUERTA", Aside, Spanish}, {"PORTA", Aside, Portuguese},
    {"FALLBACK", Aside, English}, {"DEFAULT", Aside, English}, {"KEYPAD", Aside, English}, {"SIM", Aside},
    {"SIMULATED", Aside, English}, {"TENSION", Aside, Spanish}, {"TENSAO", Aside, Portuguese},
    {"CURRENT", Aside, English}, {"DIFFERENCE", Aside, English}, {"WATCHDOG", Aside, English},
    {"CHECK", Aside, English}, {"TEST", Aside, English}, {"UPSTREAM", Aside, English},
    {"DOWNSTREAM", Aside, English}, {"SUCTION", Aside, English}, {"DISCHARGE", Aside, English},
    {"SUCCION", Aside, Spanish}, {"DESCARGA", Aside},
};
// clang-format on

std::vector<const Word*> Sorted() {
    std::vector<const Word*> words;
    for (const Word& word : Table)
        words.push_back(&word);
    std::ranges::sort(words, {}, &Word::Text);
    return words;
}

std::unordered_map<std::string_view, const Word*> ByText() {
    std::unordered_map<std::string_view, const Word*> words;
    for (const Word& word : Table)
        words.emplace(word.Text, &word);
    return words;
}

} // namespace

std::span<const Word> Words() {
    return Table;
}

const Word* FindWord(std::string_view text) {
    static const std::unordered_map<std::string_view, const Word*> words = ByText();
    const auto found = words.find(text);
    return found == words.end() ? nullptr : found->second;
}

std::span<const Word* const> WordsFrom(std::string_view text) {
    static const std::vector<const Word*> sorted = Sorted();
    const auto first = std::ranges::lower_bound(sorted, text, {}, &Word::Text);
    const auto begins = [&](const Word* word) { return word->Text.starts_with(text); };
    return {first, std::find_if_not(first, sorted.end(), begins)};
}

} // namespace gfc::naming
