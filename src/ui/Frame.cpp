#include "ui/Frame.h"

namespace gfc::ui {

void Frame::SetCentred(bool centred) {
    if (centred == centred_)
        return;
    centred_ = centred;
    Changed();
}

} // namespace gfc::ui
