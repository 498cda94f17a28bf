// What a scan asks of the controls, taken down when it starts; they cannot be changed while it runs.
#pragma once

#include <QString>
#include <array>

#include "media/SearchRange.h"

namespace vantor {

// By ControlSet, where there are two.
struct ScanInputs {
    std::array<RangeControls, 2> range;
    std::array<bool, 2> thorough{};
    QString destination;
};

}  // namespace vantor
