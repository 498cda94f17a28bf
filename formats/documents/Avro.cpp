// Files of records (AVRO): a head of named values, a mark of its own, and blocks that each close with that
// mark. Source: Apache Avro specification, object container files.
#include <array>

#include "formats/Format.h"

namespace vantor {

namespace {

// A number whose lowest bit is its sign; moves `at` behind it.
std::optional<std::int64_t> avroNumber(ByteView& view, std::uint64_t& at) {
    const auto value = groupedNumber(view, at, 10);
    if (!value)
        return std::nullopt;
    const auto half = static_cast<std::int64_t>(*value >> 1);
    return (*value & 1) != 0 ? -half - 1 : half;
}

// Moves `at` behind a text or a row of bytes.
bool skipAvroBytes(ByteView& view, std::uint64_t& at) {
    const auto bytes = avroNumber(view, at);
    if (!bytes || *bytes < 0)
        return false;
    at = addClamped(at, static_cast<std::uint64_t>(*bytes));
    return at <= view.size();
}

// Moves `at` behind the names and values of the head; one without any is none.
bool skipAvroHead(ByteView& view, std::uint64_t& at) {
    constexpr std::int64_t kMostNames = 4096;
    for (std::int64_t names = 0;;) {
        auto count = avroNumber(view, at);
        if (!count || *count > kMostNames || *count < -kMostNames)
            return false;
        if (*count == 0)
            return names != 0;
        if (*count < 0) {  // its bytes are told as well
            count = -*count;
            if (!avroNumber(view, at))
                return false;
        }
        names += *count;
        if (names > kMostNames)
            return false;
        for (std::int64_t i = 0; i < 2 * *count; ++i) {
            if (!skipAvroBytes(view, at))
                return false;
        }
    }
}

Extent walkAvro(ByteView& view) {
    std::array<std::uint8_t, 16> mark{}, found{};
    std::uint64_t at = 4;
    if (!view.matches(0, "Obj\1"))
        return unknownExtent();
    if (!skipAvroHead(view, at) || !view.copy(at, mark))
        return cutOffAt(view, view.size());
    for (at += mark.size();;) {
        std::uint64_t next = at;
        const auto records = avroNumber(view, next);
        if (!records || *records <= 0 || !skipAvroBytes(view, next) || !view.copy(next, found) ||
            found != mark)
            return inexact(completeAt(view, at));
        at = next + mark.size();
    }
}

}  // namespace

extern constexpr Format kAvro = {
    .name = "Avro",
    .group = Group::Documents,
    .walk = walkAvro,
    .extensions = " AVRO ",
};

}  // namespace vantor
