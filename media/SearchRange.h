// The search range: the wizard's checks of what the user typed, and the numbers the scans work with.
#pragma once

#include <QString>
#include <cstdint>
#include <optional>

namespace vantor {

// What the range controls of one set say, as text and as the integer values of the two radio buttons.
struct RangeControls {
    QString diskIdentifier;  // of `_disk_identifier`
    QString sectors;         // of `_sectors_val`: sector count of the medium
    int entireDisk = 1;      // 1 = on
    int sectorRange = 0;     // 1 = on
    QString startText;
    QString endText;
};

// Sectors [start, end) of a pass.
struct SectorRange {
    std::uint64_t start = 0;
    std::uint64_t end = 0;
};

// The numbers behind the controls; both are 0 unless exactly one radio button is on. Texts are read as signed
// 64-bit integers and stored unsigned.
SectorRange rangeFromControls(const RangeControls& controls);

// Which value field a refusal sends the user back to.
enum class RangeField { Start, End };

struct RangeRefusal {
    QString message;
    QString informative;
    RangeField field = RangeField::Start;
};

// The text of a sector field, as a base for whoever has this as a member.
struct SectorText {
    // True when every character is one of "0" to "9"; so for the empty text.
    static bool Check_For_Valid_Sec(const QString& text);
};

// The first of the nine checks of a sector range that fails, or nothing when the range may be scanned.
std::optional<RangeRefusal> refuseRange(const QString& start, const QString& end, const QString& sectors);

}  // namespace vantor
