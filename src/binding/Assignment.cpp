#include "binding/Assignment.h"

namespace gfc::binding {

OfferList OfferListOf(int position, const TagCounts& needed) {
    if (position < needed.Float)
        return OfferList::Float;
    return position < needed.Float + needed.Long ? OfferList::Long : OfferList::AnalogDig;
}

int NeededFrom(OfferList list, const TagCounts& needed) {
    switch (list) {
    case OfferList::Float:
        return needed.Float;
    case OfferList::Long:
        return needed.Long;
    case OfferList::AnalogDig:
        break;
    }
    return needed.Analog + needed.Digital;
}

bool CanAutoAssign(const TagCounts& needed, const FreeRows& free) {
    const auto enough = [&needed](OfferList list, int rows) {
        const int wanted = NeededFrom(list, needed);
        return wanted <= 0 || rows >= wanted;
    };
    return enough(OfferList::Float, free.Float) && enough(OfferList::Long, free.Long) &&
           enough(OfferList::AnalogDig, free.AnalogDig);
}

std::string AutoAssignShortage(const TagCounts& needed) {
    // The blanks line the words up.
    const struct {
        int Needed;
        std::string_view Text;
    } lines[] = {
        {needed.Float, " consecutive float    tags"},
        {needed.Analog, " consecutive analog   tags"},
        {needed.Digital, " consecutive discrete tags"},
        {needed.Long, " consecutive long     tags"},
    };
    std::string text = "There must be at least:\r\n";
    for (const auto& line : lines)
        if (line.Needed > 0)
            text.append(std::to_string(line.Needed)).append(line.Text).append("\r\n");
    return text;
}

} // namespace gfc::binding
