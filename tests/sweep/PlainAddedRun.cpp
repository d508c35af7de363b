#include "PlainAddedRun.h"

#include "PlainBindings.h"
#include "PlainVariables.h"

#include <map>

namespace gfc::test::sweep {

namespace {

// The lines of the new section, in the order of writing.
class Lines {
public:
    Lines(FileText& file, const PlainAddedRun& added)
        : file_(file), added_(added), the_(added.The), section_("Run" + std::to_string(added.Run)),
          common_(the_.AGA7() ? "AGA7" : "AGA3") {}

    void Write() {
        Pools free = added_.Tags;
        for (auto* pool : {&free.Floats, &free.Longs, &free.Analogs, &free.Digitals})
            std::erase_if(*pool, [this](const PlainTag& tag) { return IsInUse(tag); });
        tags_ = BindRun(the_, free);
        file_.Set("FlowRuns", section_, "Yes").Set("FlowRuns", section_ + std::to_string(added_.Run), "Yes");
        file_.AddSection(section_);
        Inputs();
        Bind({"GasVolume", "GasMass", "StdMassFlow", "StdVolFlow", "AGA3Status"});
        if (!the_.Densimeter())
            Gas();
        CommonValues();
        FixedValues();
    }

private:
    void Put(const std::string& key, const std::string& value) { file_.Set(section_, key, value); }
    [[nodiscard]] std::string Common(const std::string& key) const {
        return file_.Value(common_, key).value_or("");
    }
    // No tag is given twice, whichever binding of the file it stands in.
    [[nodiscard]] bool IsInUse(const PlainTag& tag) const {
        return file_.Bytes().find("=" + tag.Name + "\r\n") != std::string::npos;
    }

    void PutTag(const std::string& stem, const PlainTag& tag, const std::string& addressEnd = "RegAddr") {
        Put(stem + "Tag", tag.Name);
        Put(stem + "Type", tag.Type);
        Put(stem + addressEnd, tag.Address);
    }
    void Bind(const std::vector<std::string>& names) {
        for (const auto& name : names)
            PutTag(name + "KDIO", tags_.at(name + "KDIO"));
    }

    void Inputs() {
        if (the_.Densimeter()) {
            Put("GasDensityStandard", "0.0458");
            Bind({"GasDensity"});
        }
        if (!the_.AGA7())
            Bind({"GasDP"});
        if (!the_.AGA7() || !the_.Densimeter())
            Bind({"GasPress", "GasTemp"});
        if (the_.External())
            PutTag("PaKDIO", {Common("CommonPaKDIOTag"), Common("CommonPaKDIORegAddr"),
                              Common("CommonPaKDIOType"), "", ""});
        if (the_.ExternalDiameters)
            Bind({"PipeDia", "OrificeDia"});
        if (the_.GBT())
            Bind({"PipeAbsRoughness", "OrificeServiceTime"});
        if (the_.AGA7())
            Pulses();
        Bind({"GFCRunHold", "GFCTotalizeHold", "ResetTotals"});
        Put("CalibrationFactor", "1.0");
        Put("ContractHour", added_.ContractHour);
        Put("ContractMin", added_.ContractMin);
    }

    void Pulses() {
        const PlainTag& tag = tags_.at("GasPulseInputKDIO");
        Put("GasPulseInputKDIOType", tag.Type);
        Put("GasPulseInputKDIOTag", tag.Name);
        Put("GasPulseInputKDIORegAddr", tag.Address);
        Put("meterKFactor", "1.0");
    }

    void Gas() {
        if (the_.Chromatograph)
            MeasuredGas();
        else
            FixedGas();
        Bind({"AGA8rhotp", "AGA8rhos"});
        const PlainTag& z = tags_.at("AGA8zKDIO");
        Put("AGA8zKDIOTAg", z.Name); // in the letters in which it is read
        Put("AGA8zKDIOType", z.Type);
        Put("AGA8zKDIORegAddr", z.Address);
        Bind({"AGA8zs", "AGA8fpvs", "AGA8uncert", "AGA8Status", "AGA8GRs"});
    }

    void MeasuredGas() {
        const std::vector<std::string> properties = {"VolCalorificValue", "RelativeDensity", "XCO2", "XH2"};
        for (const auto& name : the_.Detail() ? ComponentKeys() : properties)
            PutTag(name + "KDIO", tags_.at(name + "KDIO"), "Addr");
        Bind({"GCEnable"});
    }

    void FixedGas() {
        if (the_.Detail()) {
            const std::map<std::string, std::string> present = {
                {"GC_C1", "0.93"},      {"GC_N2", "0.002595"},  {"GC_CO2", "0.005956"},
                {"GC_C2", "0.018186"},  {"GC_C3", "0.004596"},  {"GC_iC4", "0.000977"},
                {"GC_nC4", "0.001007"}, {"GC_iC5", "0.000473"}, {"GC_nC5", "0.000324"},
                {"GC_nC6", "0.000664"}};
            for (const auto& name : ComponentKeys())
                Put(name, present.contains(name) ? present.at(name) : "0.000000");
            return;
        }
        const char* const heating[] = {"1091.28", "1091.28", "11.29444", "11.29444", "40.66"};
        Put("VolCalorificValue", heating[the_.Units]);
        Put("RelativeDensity", "0.63");
        Put("XCO2", "0.006");
        Put("XH2", "0.000");
    }

    void CommonValues() {
        Put("StandardT", Common("StandardT"));
        Put("StandardP", Common("StandardP"));
        Put("Compressible", "Yes"); // whatever the file says
        Put("FlowingViscosity", Common("FlowingViscosity"));
        Put("IsentropicCoeff", Common("IsentropicCoeff"));
        Put("FlowAlgorithm", AlgorithmText(the_));
        Put("GasDensitySource", SourceText(the_));
    }

    void FixedValues() {
        if (the_.Accelabar()) {
            Put("AccelabarK", "0.7123");
            Put("AccelabarY", "0.6407");
            Put("AccelabarSize", "8");
            Put("AccelabarThroatDia", "3.389");
            return; // neither an orifice nor the pressure
        }
        if (the_.HasOrifice())
            Orifice();
        if (the_.HasOrifice() || !the_.Densimeter())
            for (const char* key : {"PressType", "ExtAtmPress", "AtmPress"})
                Put(key, Common(key));
    }

    void Orifice() {
        const bool inches = the_.Units == 0 || the_.Units == 1;
        const bool fahrenheit = the_.Units == 0 || the_.Units == 3;
        const std::string reference = fahrenheit ? "68.00" : "20.00";
        const std::string bore = inches ? "0.57811" : "193.675";
        Put("PressureTap", "Flange");
        Put("PressureTapPos", "Up");
        Put("InternalPipeDia", inches ? "2.90039" : "363.513");
        Put("InternalPipeDiaRefTemp", reference);
        Put("PipeMaterial", "CS");
        Put("OrificeMaterial", "SS");
        Put("OrificeDia", the_.ExternalDiameters ? bore : "1.3");
        Put("OrificeDiaRefTemp", reference);
        Put("OrificeThermalExpCoeff", "");
        Put("PipeThermalExpCoeff", "");
        Put("ExtMechParam", the_.ExternalDiameters ? "Yes" : "No");
    }

    FileText& file_;
    const PlainAddedRun& added_;
    const Choice& the_;
    const std::string section_;
    const std::string common_;
    Bindings tags_;
};

} // namespace

void AddPlainRun(FileText& file, const PlainAddedRun& added) {
    Lines(file, added).Write();
}

} // namespace gfc::test::sweep
