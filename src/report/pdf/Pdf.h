#pragma once

#include "report/Report.h"
#include "report/ReportFile.h"

#include <memory>
#include <string>

namespace gfc::report {

enum class Paper { A4, Letter };

// The report on paper, with the form for programs attached. Each page has a footer with the station, the hash
// of its file and "n of m". Bytes and time are those of the report: none of the machine's clock or chance
// goes in. There must be a QGuiApplication. The report must outlive it; two steps for each chapter: the
// cover, each station, the signatures.
[[nodiscard]] std::unique_ptr<Rendering> RenderPdf(const Report& report, Paper paper);

// As the writer of files asks for it.
[[nodiscard]] std::unique_ptr<Rendering> MakePdf(const Report& report, bool letter);

[[nodiscard]] std::string ToPdf(const Report& report, Paper paper);

} // namespace gfc::report
