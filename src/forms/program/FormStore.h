#pragma once

#include "ui/Form.h"

#include <memory>
#include <typeindex>
#include <unordered_map>

namespace gfc::forms {

struct Program;

// One of each form, made at first use. A form that has unloaded itself is forgotten, and the next use makes
// it anew; the old one lives on until the event it is in has returned.
class FormStore {
public:
    explicit FormStore(Program& program) : program_(program) {}
    FormStore(const FormStore&) = delete;
    FormStore& operator=(const FormStore&) = delete;
    // The screen outlives the forms: their windows go first.
    ~FormStore() {
        for (const auto& [type, form] : forms_)
            form->Abandon();
    }

    // Made if need be, not loaded: for what a caller sets before showing it.
    template <class F>
    [[nodiscard]] F& Get() {
        auto& form = forms_[typeid(F)];
        if (form == nullptr)
            Adopt(form = std::make_shared<F>(program_), typeid(F));
        return static_cast<F&>(*form);
    }

    // Touching a form's controls loads it.
    template <class F>
    [[nodiscard]] F& Touch() {
        F& form = Get<F>();
        form.EnsureLoaded();
        return form;
    }

    template <class F>
    [[nodiscard]] bool IsLoaded() const {
        const auto found = forms_.find(typeid(F));
        return found != forms_.end() && found->second->IsLoaded();
    }

    // Nothing happens to a form that is not there.
    template <class F>
    void Unload() {
        if (const auto found = forms_.find(typeid(F)); found != forms_.end())
            std::shared_ptr<ui::Form>(found->second)->Unload();
    }

private:
    void Adopt(const std::shared_ptr<ui::Form>& form, std::type_index type) {
        form->SetOnGone([this, type] { forms_.erase(type); });
    }

    Program& program_;
    std::unordered_map<std::type_index, std::shared_ptr<ui::Form>> forms_;
};

} // namespace gfc::forms
