#pragma once

#include "ui/Control.h"

#include <vector>

namespace gfc::ui {

// Pages of which one shows; counted from 0.
class TabbedPane : public Control {
public:
    TabbedPane(Place place, std::string name, std::vector<std::string> captions)
        : Control(place, Kind::TabbedPane, std::move(name)), captions_(std::move(captions)) {}

    [[nodiscard]] int Tabs() const { return static_cast<int>(captions_.size()); }
    [[nodiscard]] const std::string& TabCaption(int tab) const {
        return captions_.at(static_cast<std::size_t>(tab));
    }
    void SetTabCaption(int tab, std::string caption);
    [[nodiscard]] int Tab() const { return tab_; }
    // A change runs OnClick, whoever made it.
    void SetTab(int tab);
    // Where the headers do not navigate, a click on one only runs OnClick.
    [[nodiscard]] bool HeadersNavigate() const { return headersNavigate_; }
    void SetHeadersNavigate(bool navigate) { headersNavigate_ = navigate; }
    // Where a control stands that belongs to one page.
    [[nodiscard]] Place OnPage(int page) { return Place(*this, page); }

    std::function<void()> OnClick;
    bool PersonSelects(int tab);

private:
    std::vector<std::string> captions_;
    int tab_ = 0;
    bool headersNavigate_ = true;
};

} // namespace gfc::ui
