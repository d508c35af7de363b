#pragma once

#include "audit/ReportWriter.h"

#include <memory>
#include <string>
#include <vector>

namespace gfc::test {

// Makes nothing, in three steps.
class FakeReports : public audit::ReportWriter {
public:
    std::vector<audit::ReportOrder> Orders;

    std::unique_ptr<audit::ReportWork> Begin(const project::Project&, project::AddOnLibrary&,
                                             const audit::ReportOrder& order) override {
        Orders.push_back(order);
        return std::make_unique<Work>();
    }

private:
    class Work : public audit::ReportWork {
    public:
        bool Advance() override { return ++done_ < Total(); }
        [[nodiscard]] std::size_t Done() const override { return done_; }
        [[nodiscard]] std::size_t Total() const override { return 3; }
        [[nodiscard]] std::string Bytes() const override { return "the report"; }
        [[nodiscard]] std::string ContentHash() const override { return "c0ffee"; }

    private:
        std::size_t done_ = 0;
    };
};

} // namespace gfc::test
