// The most telling fact first.
#include "media/MediumKind.h"

#include <algorithm>

namespace vantor {

MediumKind mediumKindOf(const MediaFacts& facts) {
    const auto text = [&](const char* key) { return facts.value(QLatin1String(key)).toString(); };
    const QString bus = text("BusProtocol");
    if (bus == u"Image File") {
        return MediumKind::ImageFile;
    }
    if (!text("OpticalDeviceType").isEmpty()) {
        return MediumKind::OpticalDisc;
    }
    const QStringList takes = facts.value(QStringLiteral("MediaCompatibility")).toStringList();
    const bool takesCards = std::any_of(takes.begin(), takes.end(), [](const QString& name) {
        return name == u"flash" || name.startsWith(u"flash_");
    });
    if (bus == u"Secure Digital" || takesCards) {
        return MediumKind::Card;
    }
    return bus == u"USB" || takes.contains(QStringLiteral("thumb")) ? MediumKind::UsbStick : MediumKind::Disk;
}

}  // namespace vantor
