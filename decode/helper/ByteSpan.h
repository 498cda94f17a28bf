// From the bytes as the image library hands them round to those that the format readers take.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <algorithm>
#include <cstdint>
#include <span>

namespace vantor::decode {

inline std::span<const std::uint8_t> spanOf(QByteArrayView bytes) {
    return {reinterpret_cast<const std::uint8_t*>(bytes.data()), static_cast<std::size_t>(bytes.size())};
}

// Bytes [at, at + length), as far as they are there, without copying: they must outlive what borrows them.
inline QByteArray borrowed(QByteArrayView bytes, std::uint64_t at, std::uint64_t length) {
    const auto size = static_cast<std::uint64_t>(bytes.size());
    const std::uint64_t from = std::min(at, size);
    return QByteArray::fromRawData(bytes.data() + from,
                                   static_cast<qsizetype>(std::min(length, size - from)));
}

}  // namespace vantor::decode
