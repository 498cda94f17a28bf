// Where the files shipped beside the program lie.
#pragma once

#include <QString>

namespace vantor {

// The resources folder of the running program, without a trailing slash: "../share/vantor-recovery" beside
// the folder of the executable, which holds in the build tree and under any installation prefix.
QString resourcesFolder();

}  // namespace vantor
