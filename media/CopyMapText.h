// The text form of a copy's map, as GNU ddrescue writes and reads it.
#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

#include "media/CopyMap.h"

namespace vantor {

// Public description: the GNU ddrescue manual, "Mapfile structure". Lines that begin with "#" are comments;
// the first other line has position, phase and (in newer files) pass, each further one first byte, length and
// state of a run. Numbers are decimal, 0x hexadecimal or 0 octal. The runs follow each other without a gap;
// what lies in front of the first is not tried. Nothing, and what is wrong with it in words ("line 7: …"),
// when the text is no such map or has more runs than a map keeps.
std::optional<CopyMap> readCopyMap(QByteArrayView text, QString* why = nullptr);

QByteArray writeCopyMap(const CopyMap& map);

// Whether the text says of itself that it is a map.
bool claimsToBeCopyMap(QByteArrayView text);

}  // namespace vantor
