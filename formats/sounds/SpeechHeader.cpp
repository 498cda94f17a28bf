// Speech recordings with a head of text lines (SPH). Source: NIST SPHERE header format, as public notes on
// corpora of speech tell it.
#include <string_view>

#include "formats/Format.h"

namespace vantor {

namespace {

// The number of a line "name -i number" of the head; nothing where there is none.
std::optional<std::uint64_t> speechNumber(std::string_view head, std::string_view line) {
    const auto found = head.find(line);
    if (found == head.npos)
        return std::nullopt;
    std::uint64_t value = 0;
    auto at = found + line.size();
    for (; at < head.size() && head[at] >= '0' && head[at] <= '9'; ++at)
        value = addClamped(mulClamped(value, 10), static_cast<std::uint64_t>(head[at] - '0'));
    return at != found + line.size() ? std::optional(value) : std::nullopt;
}

Extent walkSpeechHeader(ByteView& view) {
    constexpr std::uint64_t kHead = 1024;  // the only length that is written
    if (!view.matches(0, "NIST_1A\n   1024\n"))
        return unknownExtent();
    const auto bytes = view.window(0, kHead);
    if (bytes.size() < kHead)
        return cutOffAt(view, view.size());
    const std::string_view head(reinterpret_cast<const char*>(bytes.data()), kHead);
    const auto samples = speechNumber(head, "\nsample_count -i ");
    const auto each = speechNumber(head, "\nsample_n_bytes -i ");
    const auto channels = speechNumber(head, "\nchannel_count -i ").value_or(1);
    // What is packed tells no length.
    const bool packed = head.find("shorten") != head.npos || head.find("wavpack") != head.npos ||
                        head.find("shortpack") != head.npos;
    if (!samples || !each || packed || head.find("\nend_head\n") == head.npos)
        return unknownExtent();
    return completeAt(view, addClamped(kHead, mulClamped(mulClamped(*samples, *each), channels)));
}

}  // namespace

extern constexpr Format kSpeechHeader = {
    .name = "Speech recording",
    .group = Group::Sounds,
    .walk = walkSpeechHeader,
    .extensions = " SPH ",
};

}  // namespace vantor
