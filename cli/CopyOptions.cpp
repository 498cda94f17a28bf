// Their texts, and what they mean.
#include "cli/CopyOptions.h"

namespace vantor {

CopyOptions::CopyOptions()
    : map(QStringLiteral("map"),
          QStringLiteral("The map of the image MEDIUM, as GNU ddrescue writes it: what it does not call "
                         "rescued counts as unreadable. Without this the map beside the image is used, if "
                         "there is one (card.img.map, card.map, also .mapfile and .log)."),
          QStringLiteral("FILE")) {}

void CopyOptions::addTo(QCommandLineParser& parser) const {
    parser.addOptions({map});
}

std::optional<QString> CopyOptions::read(const QCommandLineParser& parser, CliOptions& options) const {
    options.map = parser.value(map);
    if (parser.isSet(map) && options.map.isEmpty()) {
        return QStringLiteral("--map takes a file.");
    }
    return std::nullopt;
}

}  // namespace vantor
