#include "qt/support/RandomSequence.h"

#include <cstdio>

namespace gfc::test {

unsigned Seed() {
    constexpr unsigned usualSeed = 20'240'611;
    const QByteArray given = qgetenv("GFC_SEED");
    return given.isEmpty() ? usualSeed : given.toUInt();
}

void TellOf(const char* what, int events) {
    std::printf("%d random events over %s, GFC_SEED=%u\n", events, what, Seed());
}

ui::Answer QuickScreen::Ask(const ui::Box& box) {
    if (OnAsk)
        return OnAsk(box);
    return box.TheButtons == ui::Buttons::YesNo ? ui::Answer::No : ui::Answer::Ok;
}

int Sequence::Run(int events) {
    for (int sent = 0; sent < events; ++sent) {
        if (window_ == nullptr || !window_->isVisible())
            return sent;
        Note(Between && Hands.OneIn(10) ? Between() : Hands.Act());
        if (!Holds()) {
            Tell(sent);
            return events;
        }
    }
    return events;
}

bool Sequence::Holds() {
    if (window_ == nullptr || !window_->isVisible())
        return true;
    outcome_ = HighlightsWhatIsSelected(form_, *window_);
    if (outcome_ && Also)
        outcome_ = Also();
    return static_cast<bool>(outcome_);
}

void Sequence::Note(const std::string& event) {
    constexpr std::size_t kept = 8;
    trail_.push_back(event);
    if (trail_.size() > kept)
        trail_.pop_front();
}

void Sequence::Tell(int sent) {
    std::string trail;
    for (const std::string& event : trail_)
        trail += "\n  " + event;
    ADD_FAILURE() << "event " << sent << " of GFC_SEED=" << seed_ << ": " << outcome_.message()
                  << "\nlast events:" << trail;
}

} // namespace gfc::test
