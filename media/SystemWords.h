// Why the system refused something, in words that a user understands.
#pragma once

#include <QString>

namespace vantor {

// A reason without a full stop for an error number (errno(3)); those that users seldom meet are told in the
// system's own words. Any thread.
QString systemWords(int error);

}  // namespace vantor
