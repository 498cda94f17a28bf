// A walk to the photo's end, and a copy up to there.
#include "scan/PhotoPicture.h"

#include <algorithm>
#include <span>

#include "results/MediumBytes.h"
#include "results/TrueLength.h"

namespace vantor {

QByteArray pictureBytes(const QString& type, const CarvedRun& carved, const QByteArray& firstBytes,
                        SectorReader& medium, std::vector<std::uint8_t>& kept) {
    const ItemSource source{carved, firstBytes, [&medium] { return &medium; }};
    MediumBytes bytes(source, kept);
    const Extent extent = trueLengthOf(type, bytes, false).extent;
    const bool endIsKnown = extent.verdict == Verdict::Complete || extent.endFound;
    const std::uint64_t wanted = endIsKnown ? extent.end : std::max(extent.end, kMostOfUncertainPhoto);
    QByteArray picture(static_cast<qsizetype>(std::min(wanted, bytes.carvedBytes())), Qt::Uninitialized);
    const std::size_t got = bytes.read(
        0, {reinterpret_cast<std::uint8_t*>(picture.data()), static_cast<std::size_t>(picture.size())});
    picture.truncate(static_cast<qsizetype>(got));
    return picture.isEmpty() ? firstBytes : picture;
}

}  // namespace vantor
