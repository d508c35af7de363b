#include "workshop/demo/SampleConfiguration.h"

#include "workshop/text/CodePage.h"

namespace gfc::workshop {

namespace {

// Letter by letter what the configurator writes, the small letters of "KDIOtag" and "KDIOtype" included.
constexpr std::string_view BeforeProject = R"([General]
Package=kdormaga
Project=)";

constexpr std::string_view AfterProject = R"(
OrmStation=Lakeside_Delivery
UserID=workshop
[Station]
EnableDataTraces=No
DeviceDataTraces=/nvram/kdormaga.txt
NumberTraces=1000
[FlowRuns]
Run1=Yes
Run2=No
Run3=No
Run4=No
Run5=No
FlowAlgorithm=AGA3
GasDensitySource=MEASURED
GasDensityStandardT=60.00
GasDensityStandardP=14.73
SystemUnits=US
WrkFloatModName=VFX_LOG
WrkFloatRegAddr=1001
WrkFloatRegType=FX
WrkIntLongModName=VLX_LOG
WrkIntLongRegAddr=1001
WrkIntLongRegType=LX
WrkAnalogModName=VAX_LOG
WrkAnalogRegAddr=101
WrkAnalogRegType=AX
Run11=Yes
Run22=No
Run33=No
Run44=No
Run55=No
[AGA3]
StandardT=60.00
StandardP=14.73
FlowingViscosity=0.010268
IsentropicCoeff=1.3
Compressible=Yes
PressType=Absolute
ExtAtmPress=No
AtmPress=14.695949
CommonPaKDIORegAddr=
CommonPaKDIOTag=
CommonPaKDIOType=
[Run1]
SystemUnits=US
FlowAlgorithm=AGA3
GasDensitySource=MEASURED
StandardT=60.00
StandardP=14.73
Compressible=Yes
FlowingViscosity=0.010268
IsentropicCoeff=1.3
PressureTap=Flange
PressureTapPos=Up
PipeMaterial=CS
InternalPipeDia=7.981
InternalPipeDiaRefTemp=68.00
OrificeMaterial=SS
OrificeDia=4.000
OrificeDiaRefTemp=68.00
OrificeThermalExpCoeff=
PipeThermalExpCoeff=
ExtMechParam=No
PressType=Absolute
ExtAtmPress=No
AtmPress=14.695949
CalibrationFactor=1.0
ContractHour=6
ContractMin=0
GasDensityStandard=0.0458
GasDensityKDIOTag=DT-601_PV
GasDensityKDIOType=FX
GasDensityKDIORegAddr=1201
GasTempKDIOTag=TIT-601_PV
GasTempKDIOType=FX
GasTempKDIORegAddr=1202
GasPressKDIOTag=PIT-601_PV
GasPressKDIOType=FX
GasPressKDIORegAddr=1203
GasDPKDIOTag=PDIT-601_PV
GasDPKDIOType=FX
GasDPKDIORegAddr=1204
GFCRunHoldKDIOTag=HS-601_HOLD
GFCRunHoldKDIOType=X
GFCRunHoldKDIORegAddr=101
GFCTotalizeHoldKDIOTag=HS-601_TOTHOLD
GFCTotalizeHoldKDIOType=X
GFCTotalizeHoldKDIORegAddr=102
ResetTotalsKDIOTag=HS-601_RESET
ResetTotalsKDIOType=X
ResetTotalsKDIORegAddr=103
StdMassFlowKDIOTag=FI-601_MASS
StdMassFlowKDIOType=FY
StdMassFlowKDIORegAddr=1002
StdVolFlowKDIOtag=FI-601_VOL
StdVolFlowKDIOtype=FY
StdVolFlowKDIORegAddr=1001
GasVolumeKDIOTag=FQI-601_VOL
GasVolumeKDIOType=FY
GasVolumeKDIORegAddr=1003
GasMassKDIOTag=FQI-601_MASS
GasMassKDIOType=FY
GasMassKDIORegAddr=1004
AGA3StatusKDIOTag=NS-601_FLOW
AGA3StatusKDIOType=AY
AGA3StatusKDIORegAddr=101
)";

void AppendLines(std::string& bytes, std::string_view text) {
    for (const char c : text) {
        bytes.append(c == '\n' ? "\r" : "");
        bytes += c;
    }
}

} // namespace

std::string SampleConfiguration(std::string_view projectPath) {
    std::string bytes;
    AppendLines(bytes, BeforeProject);
    bytes += ToCodePage(projectPath);
    AppendLines(bytes, AfterProject);
    return bytes;
}

} // namespace gfc::workshop
