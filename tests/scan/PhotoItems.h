// What the tests of the photo scan search for, and what they look at.
#pragma once

#include <vector>

#include "tests/support/TestSession.h"

namespace vantor {

inline std::vector<HandedOver> nonEmpty(const TestSession& session) {
    std::vector<HandedOver> items;
    for (const HandedOver& item : session.handedOver) {
        if (!item.data.isEmpty()) {
            items.push_back(item);
        }
    }
    return items;
}

inline const QStringList kJpegAndPng = recordsOf({{"JPG", "FFD8"}, {"PNG", "89504E47"}});

}  // namespace vantor
