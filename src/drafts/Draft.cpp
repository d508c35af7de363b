#include "drafts/Draft.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace gfc::drafts {

namespace {

using binding::BindingStage;

struct DialogRow {
    Dialog What;
    std::string_view Name;
    BindingStage Stage;
};

// clang-format off
constexpr std::array<DialogRow, Dialogs> Rows = {{
    {Dialog::CommonInputs, "CommonInputs", BindingStage::CommonInputs},
    {Dialog::Mechanical,   "Mechanical",   BindingStage::None},
    {Dialog::RunInputs,    "RunInputs",    BindingStage::RunInputs},
    {Dialog::RunOutputs,   "RunOutputs",   BindingStage::RunOutputs},
    {Dialog::GasInputs,    "GasInputs",    BindingStage::GasInputs},
    {Dialog::GasData,      "GasData",      BindingStage::None},
    {Dialog::GasOutputs,   "GasOutputs",   BindingStage::GasOutputs},
}};
// clang-format on

} // namespace

std::string_view NameOf(Dialog dialog) {
    return Rows.at(static_cast<std::size_t>(dialog)).Name;
}

Dialog DialogOf(BindingStage stage) {
    return std::ranges::find(Rows, stage, &DialogRow::Stage)->What;
}

BindingStage StageOf(Dialog dialog) {
    return Rows.at(static_cast<std::size_t>(dialog)).Stage;
}

bool Draft::IsDone(const PassStep& step) const {
    return std::ranges::find(Done, step) != Done.end();
}

// Fowler, Noll and Vo's hash of 64 bits: bytes that a disk has spoilt are to be noticed, nothing more.
std::string MarkOf(std::string_view bytes) {
    std::uint64_t sum = 14695981039346656037U;
    for (const char byte : bytes)
        sum = (sum ^ static_cast<unsigned char>(byte)) * 1099511628211U;
    return std::to_string(sum);
}

} // namespace gfc::drafts
