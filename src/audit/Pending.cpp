#include "audit/Subject.h"
namespace gfc::audit {
void CheckPlausible(const Subject&, Sink&) {}
void CheckTags(const Subject&, const project::TagList&, Sink&) {}
void CheckSharedTags(const Subject&, Sink&) {}
void CheckTagNames(const Subject&, Sink&) {}
} // namespace gfc::audit
