#include "report/ReportFile.h"

#include "report/MakeReport.h"
#include "services/Text.h"

namespace gfc::report {

namespace {

class Work : public audit::ReportWork {
public:
    Work(ReportMaking making, audit::ReportOrder order, const ReportFileWriter::MakePdf& pdf)
        : making_(std::move(making)), order_(std::move(order)), pdf_(pdf), isPdf_(pdf && Ends(".pdf")) {}

    // First all stations are read, then what has to be laid out is.
    bool Advance() override {
        ++done_;
        if (!read_) {
            read_ = !making_.Advance();
            if (read_ && isPdf_)
                rendering_ = pdf_(making_.Made(), order_.Letter);
            return !read_ || isPdf_;
        }
        return rendering_->Advance();
    }
    [[nodiscard]] std::size_t Done() const override { return done_; }
    // A page on paper takes two steps for each of its chapters: cover, stations and signatures.
    [[nodiscard]] std::size_t Total() const override {
        const std::size_t stations = order_.Stations.size();
        return isPdf_ ? stations + 2 * (stations + 2) : stations;
    }
    [[nodiscard]] std::string Bytes() const override {
        if (isPdf_)
            return rendering_->Bytes();
        return Ends(".json") ? ToJson(making_.Made()) : ToHtml(making_.Made());
    }
    [[nodiscard]] std::string ContentHash() const override { return report::ContentHash(making_.Made()); }

private:
    [[nodiscard]] bool Ends(const char* ending) const {
        return services::FoldCase(order_.File).ends_with(ending);
    }

    ReportMaking making_;
    audit::ReportOrder order_;
    ReportFileWriter::MakePdf pdf_;
    bool isPdf_;
    bool read_ = false;
    std::size_t done_ = 0;
    std::unique_ptr<Rendering> rendering_;
};

} // namespace

std::unique_ptr<audit::ReportWork> ReportFileWriter::Begin(const project::Project& project,
                                                           project::AddOnLibrary& library,
                                                           const audit::ReportOrder& order) {
    Request request{order.Stations, order.User, order.Since, version_};
    return std::make_unique<Work>(ReportMaking({machine_, &library, project, recorder_}, std::move(request)),
                                  order, pdf_);
}

} // namespace gfc::report
