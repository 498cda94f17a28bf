// What the window says when saving has ended.
#pragma once

#include <QString>

#include "saving/SaveTally.h"

namespace vantor {

struct SaveSummary {
    SaveTally tally;
    QString destination;
    bool cancelled = false;
    QString report;  // path; "" when none was written
    QString reportError;
    bool mediumGone = false;  // before all was read
};

// "12 files were saved."
QString summaryHeadline(const SaveSummary& summary);
// A line each: of these complete, cut off ...; where; what was left out; what failed and why.
QString summaryDetails(const SaveSummary& summary);

// "1 item", "3,214 items".
QString countOfItems(std::uint64_t count);

}  // namespace vantor
