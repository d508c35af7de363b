#pragma once

#include "audit/Finding.h"
#include "ui/Label.h"
#include "ui/TextBox.h"

#include <functional>
#include <initializer_list>

namespace gfc::forms {

// The line under a form that says, while a person types, what is implausible. It never asks, holds nobody up
// and changes no field.
class QuietNotes {
public:
    // judge puts what it finds in what stands on the form now. Both must outlive this.
    QuietNotes(ui::Label& line, std::function<void(audit::Sink& sink)> judge)
        : line_(line), judge_(std::move(judge)) {}

    // The fields whose editing the line follows.
    void Follow(std::initializer_list<ui::TextBox*> fields);
    // Choices, too, once what they do is bound: the line changes after that.
    void FollowChoices(std::initializer_list<std::function<void()>*> clicks);
    // After what a program has put on the form.
    void Refresh();

private:
    ui::Label& line_;
    std::function<void(audit::Sink& sink)> judge_;
};

} // namespace gfc::forms
