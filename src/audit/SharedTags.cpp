#include "audit/Bindings.h"
#include "services/Text.h"

#include <algorithm>

namespace gfc::audit {

namespace {

using binding::TagClass;

// A register is known by its type and its address; the name is only what it is called.
bool IsSameTag(const Bound& left, const Bound& right) {
    return left.Binding->RegAddr == right.Binding->RegAddr &&
           services::EqualNoCase(left.Binding->Type, right.Binding->Type);
}

// Two inputs of a run that measure different things cannot come from one transmitter. Digital inputs may: one
// switch can hold flow and totals. Components may, too: those that a chromatograph lacks are bound to one
// spare tag.
bool AreTwoQuantities(const Bound& left, const Bound& right) {
    const auto isMeasured = [](const Bound& bound) {
        return bound.Row->Stage == binding::BindingStage::CommonInputs ||
               (bound.Row->Stage == binding::BindingStage::RunInputs &&
                bound.Row->Class != TagClass::Digital);
    };
    const bool ofOneRun = left.Run == right.Run || left.Run == 0;
    return ofOneRun && isMeasured(left) && isMeasured(right);
}

bool ArePulses(const Bound& left, const Bound& right) {
    return left.Row->Class == TagClass::Long && right.Row->Class == TagClass::Long;
}

// What is said of later because an earlier one has the same tag.
void Judge(const Bound& earlier, const Bound& later, Sink& sink) {
    const std::string& tag = later.Binding->Tag;
    const auto& output = later.IsOutput() ? later : earlier;
    const auto& other = later.IsOutput() ? earlier : later;
    if (earlier.IsOutput() && later.IsOutput())
        Add(sink, RuleId::OutputsOnOneTag, later,
            {later.Variable(), tag, earlier.Variable(), earlier.WhoseRun()});
    else if (earlier.IsOutput() || later.IsOutput())
        Add(sink, RuleId::OutputOnInput, output,
            {output.Variable(), tag, other.Variable(), other.WhoseRun()});
    else if (ArePulses(earlier, later))
        Add(sink, RuleId::PulsesShared, later, {tag, earlier.WhoseRun()});
    else if (AreTwoQuantities(earlier, later))
        Add(sink, RuleId::QuantitiesOnOneTag, later, {later.Variable(), tag, earlier.Variable()});
    else
        Add(sink, RuleId::InputShared, later,
            {later.Variable(), tag, earlier.Variable(), earlier.WhoseRun()});
}

} // namespace

// Each variable is held against the first one on its tag, so that five runs on one chromatograph give four
// findings for each component and not ten; but against the first output, too, since that is what spoils a
// tag.
void CheckSharedTags(std::vector<Bound> all, Sink& sink) {
    std::erase_if(all, [](const Bound& bound) { return !bound.IsMade(); });
    const auto before = [](const Bound& left, const Bound& right) {
        return left.Binding->RegAddr < right.Binding->RegAddr;
    };
    // What is on disappears behind what is off nowhere: a run that is off is the later one.
    std::stable_sort(all.begin(), all.end(), [](const Bound& l, const Bound& r) { return l.On && !r.On; });
    std::stable_sort(all.begin(), all.end(), before);
    for (std::size_t later = 1; later < all.size(); ++later)
        for (std::size_t earlier = later; earlier-- > 0 && !before(all[earlier], all[later]);)
            if (IsSameTag(all[earlier], all[later])) {
                Judge(all[earlier], all[later], sink);
                break;
            }
}

} // namespace gfc::audit
