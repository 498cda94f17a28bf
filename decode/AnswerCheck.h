// What the program believes of a helper's answer: somebody who has taken the helper over can say what he
// likes.
#pragma once

#include <optional>

#include "decode/DecodeProtocol.h"

namespace vantor::decode {

// Longest side that a whole picture is said to have: its area still fits any arithmetic.
constexpr std::uint32_t kMostFullSide = std::uint32_t{1} << 24;

// The answer with every number of it in its range, or nothing where no helper of ours answers so. To be asked
// once, where the answer is received; everybody behind may calculate with what comes out.
std::optional<Answer> believed(const Request& request, const Answer& answer);

// Likewise for the message that a helper begins with; nothing where it is none.
std::optional<Answer> believedReady(const Answer& answer);

}  // namespace vantor::decode
