#include "saving/TwinFile.h"

#include <QObject>
#include <algorithm>
#include <vector>

#include "saving/FreeSpace.h"
#include "saving/SavedName.h"
#include "saving/SavingFolder.h"
#include "saving/WholeFile.h"

namespace vantor {

namespace {

constexpr std::size_t kChunkBytes = 1024 * 1024;

bool isUnwanted(const std::atomic<int>* unwanted) {
    return unwanted != nullptr && *unwanted != 0;
}

// False when the medium gave less than the movie holds.
bool copyData(const DataPlace& data, MediumBytes& movie, WholeFile& file, const std::atomic<int>* unwanted) {
    std::vector<std::uint8_t> chunk(kChunkBytes);
    std::uint64_t at = data.from;
    while (at < data.to && file.isGood() && !isUnwanted(unwanted)) {
        const auto wanted = static_cast<std::size_t>(std::min<std::uint64_t>(kChunkBytes, data.to - at));
        const std::size_t arrived = movie.readPast(at, std::span(chunk).first(wanted));
        if (arrived == 0) {
            return false;
        }
        file.write({reinterpret_cast<const char*>(chunk.data()), static_cast<qsizetype>(arrived)});
        at += arrived;
    }
    return at == data.to;
}

}  // namespace

QString twinNameOf(const QString& name, const QString& mark) {
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot <= 0 ? name + u' ' + mark : name.left(dot) + u' ' + mark + name.mid(dot);
}

WrittenTwin writeTwin(const QString& destination, const QString& type, const QString& name,
                      const RepairedMovie& repaired, MediumBytes& movie, const std::atomic<int>* unwanted) {
    WrittenTwin written;
    const auto top = SavingFolder::open(destination);
    const auto folder = top ? top->below(safePathComponent(type)) : std::nullopt;
    if (!folder) {
        written.error =
            QObject::tr("The folder %1/%2 cannot be created").arg(destination, safePathComponent(type));
        return written;
    }
    if (const auto refusal = refuseForSpace(folder->path(), repaired.bytes())) {
        written.error = *refusal;
        return written;
    }
    movie.expect(repaired.data.to);
    WholeFile file(*folder);
    file.write(repaired.head);
    const bool all = copyData(repaired.data, movie, file, unwanted);
    if (isUnwanted(unwanted)) {
        written.error = QObject::tr("Cancelled");
        return written;
    }
    if (file.isGood() && !all) {
        written.error = QObject::tr("The medium cannot be read any more");
        return written;
    }
    file.write(repaired.index);
    const auto path = file.commit(safePathComponent(name));
    written.path = path.value_or(QString());
    written.error = path ? QString() : file.error();
    return written;
}

}  // namespace vantor
