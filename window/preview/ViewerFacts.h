// What the viewer tells beside a picture.
#pragma once

#include <QList>
#include <QString>
#include <cstdint>
#include <optional>

#include "results/BrowserOrder.h"

namespace vantor {

class MyImageObject;

struct ViewerFact {
    QString name;
    QString value;

    friend bool operator==(const ViewerFact&, const ViewerFact&) = default;
};

// What only the look at the file itself told.
struct ViewedFacts {
    std::optional<std::uint64_t> bytes;
    bool lengthIsKnown = false;
    std::int64_t durationMs = 0;  // 0: none
};

// In the order in which they are shown; what is not known is left out, but for whether the item is sound.
QList<ViewerFact> viewerFacts(const MyImageObject& item, const ItemFacts& known, const ViewedFacts& viewed);

}  // namespace vantor
