#pragma once

#include "audit/Finding.h"
#include "ui/Label.h"
#include "ui/TextBox.h"

#include <functional>
#include <initializer_list>

namespace gfc::forms {

// The line under a form that says, while a person types, what is implausible; its tip says all and what to
// do. It never asks, holds nobody up and changes no field.
class QuietNotes {
public:
    // judge puts what it finds in what stands on the form now. Both must outlive this.
    QuietNotes(ui::Label& line, std::function<void(audit::Sink& sink)> judge);

    // The fields whose editing the line follows.
    void Follow(std::initializer_list<ui::TextBox*> fields);
    // Choices, too, once what they do is bound: the line changes after that.
    void FollowChoices(std::initializer_list<std::function<void()>*> clicks);
    // After what a program has put on the form.
    void Refresh();

private:
    // All of them with what to do, a line for each.
    [[nodiscard]] std::string Hint() const;

    ui::Label& line_;
    std::function<void(audit::Sink& sink)> judge_;
    audit::Findings findings_; // the worst first
};

} // namespace gfc::forms
