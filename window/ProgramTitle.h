// The program's name as windows and questions say it.
#pragma once

#include <QString>

namespace vantor {

inline const QString kProgramTitle = QStringLiteral("Vantor - Memory Card Recovery");

}  // namespace vantor
