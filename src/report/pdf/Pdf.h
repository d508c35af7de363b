#pragma once

#include "report/Report.h"

#include <string>

namespace gfc::report {

enum class Paper { A4, Letter };

// The report on paper, with the form for programs attached. Each page has a footer with the station, the hash
// of its file and "n of m". Bytes and time are those of the report: none of the machine's clock or chance
// goes in. There must be a QGuiApplication.
[[nodiscard]] std::string ToPdf(const Report& report, Paper paper);

} // namespace gfc::report
