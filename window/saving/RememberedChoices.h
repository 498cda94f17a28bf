// The saving options in the settings of the program.
#pragma once

#include "window/saving/SavingOptions.h"

class QSettings;

namespace vantor {

void rememberChoices(QSettings& settings, const SavingChoices& choices);
// What is missing, or makes no sense, is as at a first start.
SavingChoices recalledChoices(const QSettings& settings);

}  // namespace vantor
