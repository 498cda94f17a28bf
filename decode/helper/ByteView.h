// Bounds-checked integers out of untrusted bytes.
#pragma once

#include <QByteArrayView>
#include <cstdint>
#include <optional>

namespace vantor::decode {

enum class ByteOrder { Little, Big };

// An unsigned integer of `width` (1 to 8) bytes at `at`; nullopt when it is not wholly inside.
inline std::optional<std::uint64_t> readUnsigned(QByteArrayView bytes, std::uint64_t at, int width,
                                                 ByteOrder order) {
    const auto size = static_cast<std::uint64_t>(bytes.size());
    if (at > size || size - at < static_cast<std::uint64_t>(width)) {
        return std::nullopt;
    }
    std::uint64_t value = 0;
    for (int i = 0; i < width; ++i) {
        const int index = order == ByteOrder::Big ? i : width - 1 - i;
        value = value << 8 | static_cast<std::uint8_t>(bytes[static_cast<qsizetype>(at) + index]);
    }
    return value;
}

// Whether the text stands at `at`.
inline bool hasText(QByteArrayView bytes, qsizetype at, QByteArrayView text) {
    return bytes.size() - at >= text.size() && bytes.sliced(at, text.size()) == text;
}

}  // namespace vantor::decode
