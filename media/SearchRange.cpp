// The nine checks of a typed sector range, in their order, and the conversion to numbers.
#include "media/SearchRange.h"

#include <QObject>
#include <algorithm>

#include "catalogue/NumberText.h"

namespace vantor {

namespace {

// The four checks of one field; start and end differ in nothing but the word in the texts.
std::optional<RangeRefusal> refuseField(const QString& text, const QString& sectors, RangeField field) {
    const QString hint = field == RangeField::Start ? QObject::tr("Please enter valid Start Sector value.")
                                                    : QObject::tr("Please enter valid End Sector value.");
    const RangeRefusal invalid{QStringLiteral("\n") + hint, QStringLiteral(""), field};
    const RangeRefusal tooLarge{QObject::tr("\nMaximum sector range exceeded"), hint, field};
    if (scanInt64(text).value_or(-1) < 0) {
        return invalid;
    }
    if (!SectorText::Check_For_Valid_Sec(text)) {
        return invalid;
    }
    if (text.size() > sectors.size()) {
        return tooLarge;
    }
    if (textToDouble(text) > textToDouble(sectors)) {
        return tooLarge;
    }
    return std::nullopt;
}

}  // namespace

SectorRange rangeFromControls(const RangeControls& controls) {
    const auto sector = [](const QString& text) { return static_cast<std::uint64_t>(textToInt64(text)); };
    if (controls.entireDisk == 1 && controls.sectorRange == 0) {
        return {0, sector(controls.sectors)};
    }
    if (controls.entireDisk == 0 && controls.sectorRange == 1) {
        return {sector(controls.startText), sector(controls.endText)};
    }
    return {};
}

bool SectorText::Check_For_Valid_Sec(const QString& text) {
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

std::optional<RangeRefusal> refuseRange(const QString& start, const QString& end, const QString& sectors) {
    if (auto refusal = refuseField(start, sectors, RangeField::Start)) {
        return refusal;
    }
    if (auto refusal = refuseField(end, sectors, RangeField::End)) {
        return refusal;
    }
    if (textToInt64(end) <= textToInt64(start)) {
        return RangeRefusal{QObject::tr("\nEnd Sector should be greater than Start Sector."),
                            QStringLiteral(""), RangeField::End};
    }
    return std::nullopt;
}

}  // namespace vantor
