// What is known of a found item, in words for people: the same beside a large picture, below a small one and
// in a table.
#pragma once

#include <QString>
#include <cstdint>

#include "results/BrowserOrder.h"

namespace vantor {

class MyImageObject;

// "2026-05-17 14:03": when it was taken, else the card's own date; empty where neither tells.
QString dateWords(const ItemFacts& known);
// "4,000 × 3,000"; empty where the file does not tell.
QString pixelWords(const ItemFacts& known);
// "1:05", by what was played of it, else by what its head tells; empty where neither tells. The second gives
// the pixels then.
QString lengthWords(const ItemFacts& known, std::int64_t durationMs);
QString extentWords(const ItemFacts& known, std::int64_t durationMs);
// "sectors 4,096 to 8,191", as far as that is known, else what was found.
QString placeWords(const MyImageObject& item, const ItemFacts& known);
// "complete", "no file of its type", "not examined yet".
QString stateWords(const ItemFacts& known);
// Minutes and seconds, with hours where there are any: "0:05", "1:02:03".
QString timeText(std::int64_t timeMs);

// The line below a name: day and pixels or length, or the size where neither is known. The second is what of
// it matters most, where there is not room for all.
struct CaptionWords {
    QString all;
    QString first;
};
CaptionWords captionWords(const ItemFacts& known, std::int64_t durationMs);

}  // namespace vantor
