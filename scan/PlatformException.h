// The one kind of failure that interface calls raise and their callers swallow.
#pragma once

#include <stdexcept>
#include <string>

namespace vantor {

class PlatformException : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

// Raises when the condition, given in words too, does not hold.
inline void assertParameter(bool holds, const char* condition) {
    if (!holds) {
        throw PlatformException(std::string("Invalid parameter not satisfying: ") + condition);
    }
}

// False when the step was ended by a platform exception, which goes no further; any other does.
template <class Step>
bool withoutPlatformException(const Step& step) {
    try {
        step();
    } catch (const PlatformException&) {
        return false;
    }
    return true;
}

// What the call gives; nothing of the kind when it raised a PlatformException. Whatever else it throws
// passes.
template <class Call>
auto guarded(Call call) -> decltype(call()) {
    try {
        return call();
    } catch (const PlatformException&) {
        return decltype(call())();
    }
}

}  // namespace vantor
