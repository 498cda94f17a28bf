// From the bytes as the image library hands them round to those that the format readers take.
#pragma once

#include <QByteArrayView>
#include <cstdint>
#include <span>

namespace vantor::decode {

inline std::span<const std::uint8_t> spanOf(QByteArrayView bytes) {
    return {reinterpret_cast<const std::uint8_t*>(bytes.data()), static_cast<std::size_t>(bytes.size())};
}

}  // namespace vantor::decode
