#pragma once

#include "project/AddOnLibrary.h"
#include "project/Project.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

// Reports of configurations as the windows know them. How they are made is not said here.
namespace gfc::audit {

struct ReportOrder {
    std::vector<std::string> Stations; // as the project writes them
    std::string User;                  // whom the cover names
    // Changes are listed from behind this entry of the record on; nothing for no list.
    std::optional<std::int64_t> Since;
    bool Letter = false; // paper of a PDF: Letter instead of A4
    std::string File;    // where it will stand; ".pdf" and ".json" at its end say the form, else it is HTML
};

// A report in the making, in steps between which a person may give it up.
class ReportWork {
public:
    virtual ~ReportWork() = default;
    // False once it is through.
    virtual bool Advance() = 0;
    [[nodiscard]] virtual std::size_t Done() const = 0;
    [[nodiscard]] virtual std::size_t Total() const = 0;
    // Of what is through: the bytes of the file, and the SHA-256 that its cover bears.
    [[nodiscard]] virtual std::string Bytes() const = 0;
    [[nodiscard]] virtual std::string ContentHash() const = 0;
};

class ReportWriter {
public:
    virtual ~ReportWriter() = default;
    // Project and library must outlive the work.
    [[nodiscard]] virtual std::unique_ptr<ReportWork>
    Begin(const project::Project& project, project::AddOnLibrary& library, const ReportOrder& order) = 0;
};

} // namespace gfc::audit
