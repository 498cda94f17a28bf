// One question that walkers ask of names and numbers alike.
#pragma once

#include <algorithm>
#include <iterator>

namespace vantor {

template <typename Values, typename Value>
bool isAmong(const Values& values, const Value& value) {
    return std::find(std::begin(values), std::end(values), value) != std::end(values);
}

}  // namespace vantor
