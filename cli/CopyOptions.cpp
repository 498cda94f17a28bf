// Their texts, and what they mean.
#include "cli/CopyOptions.h"

#include <QObject>

namespace vantor {

CopyOptions::CopyOptions()
    : image(QStringLiteral("image"),
            QObject::tr("Copy the medium into this image file while it is searched, each sector read once; "
                        "searching and saving then read the copy. FILE.map says what was read. A copy that "
                        "is there already is gone on with, also one of GNU ddrescue."),
            QStringLiteral("FILE")),
      scrape(QStringLiteral("scrape"),
             QObject::tr("With --image: read also the sectors that lie between bad ones far apart, one by "
                         "one; may take very long.")),
      map(QStringLiteral("map"),
          QObject::tr("The map of the image MEDIUM, as GNU ddrescue writes it: what it does not call "
                      "rescued counts as unreadable. Without this the map beside the image is used, if "
                      "there is one (card.img.map, card.map, also .mapfile and .log)."),
          QStringLiteral("FILE")) {}

void CopyOptions::addTo(QCommandLineParser& parser) const {
    parser.addOptions({image, scrape, map});
}

std::optional<QString> CopyOptions::read(const QCommandLineParser& parser, CliOptions& options) const {
    options.map = parser.value(map);
    if (parser.isSet(map) && options.map.isEmpty()) {
        return QObject::tr("--map takes a file.");
    }
    options.image = parser.value(image);
    if (parser.isSet(image) && options.image.isEmpty()) {
        return QObject::tr("--image takes a file.");
    }
    options.scrape = parser.isSet(scrape);
    if (options.scrape && options.image.isEmpty()) {
        return QObject::tr("--scrape goes with --image.");
    }
    return std::nullopt;
}

}  // namespace vantor
