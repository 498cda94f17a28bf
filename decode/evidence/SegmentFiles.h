// Files that are open already, under names: libewf opens what it reads by name, and a helper may open
// nothing.
#pragma once

#include <string>

namespace vantor::decode {

// Has the C library's open() give the descriptor out, duplicated, under the name that comes back; for the
// rest of the process's life. All other names are opened as ever, which a cage forbids.
std::string nameForSegment(int descriptor);

}  // namespace vantor::decode
