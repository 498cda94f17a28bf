// From an item's bytes or sectors to a whole file in its type's folder.
#include "results/ItemSaver.h"

#include <QDir>
#include <functional>
#include <vector>

#include "results/WholeFile.h"

namespace vantor {

namespace {

// UTF-16 units; 240 bytes of UTF-8 at most, which leaves room for a number within the usual 255.
constexpr qsizetype kLongestComponent = 80;

constexpr std::size_t kWriteChunkBytes = 256 * 1024;

SaveOutcome saveWith(const QString& destination, const QString& type, const QString& name,
                     const std::function<void(WholeFile&, SaveOutcome&)>& fill) {
    SaveOutcome outcome;
    const QString folder = destination + u'/' + safePathComponent(type);
    if (!QDir().mkpath(folder)) {
        outcome.error = QStringLiteral("The folder %1 cannot be created").arg(folder);
        return outcome;
    }
    WholeFile file(folder);
    if (file.isGood()) {
        fill(file, outcome);
    }
    if (const auto path = file.commit(safePathComponent(name))) {
        outcome.saved = true;
        outcome.path = *path;
    } else {
        outcome.error = file.error();
    }
    return outcome;
}

}  // namespace

SaveOutcome ItemSaver::saveBytes(const QString& type, const QString& name, QByteArrayView bytes) const {
    return saveWith(m_destination, type, name, [&](WholeFile& file, SaveOutcome&) { file.write(bytes); });
}

SaveOutcome ItemSaver::saveRuns(const QString& type, const QString& name, const CarvedRun& item,
                                SectorReader& medium) const {
    return saveWith(m_destination, type, name, [&](WholeFile& file, SaveOutcome& outcome) {
        std::vector<std::uint8_t> chunk;
        chunk.reserve(kWriteChunkBytes);
        const auto flush = [&] {
            const bool written = file.write({chunk.data(), static_cast<qsizetype>(chunk.size())});
            chunk.clear();
            return written;
        };
        for (const SectorRun& run : item.runs) {
            for (std::uint64_t sector = run.first; sector < run.end; ++sector) {
                if ((medium.position() == sector || medium.seek(sector)) && medium.read()) {
                    chunk.insert(chunk.end(), medium.current(), medium.current() + kSectorBytes);
                } else {
                    ++outcome.sectorsUnreadable;
                    chunk.insert(chunk.end(), kSectorBytes, 0);
                }
                if (chunk.size() == kWriteChunkBytes && !flush()) {
                    return;
                }
            }
        }
        flush();
    });
}

QString safePathComponent(const QString& text) {
    static const QString kForbidden = QStringLiteral("/\\:*?\"<>|");
    QString component;
    for (const QChar c : text.left(kLongestComponent)) {
        component += c.unicode() < 0x20 || c.unicode() == 0x7F || kForbidden.contains(c) ? QChar(u'_') : c;
    }
    // Some file systems drop blanks and dots at the end, and then two names meet.
    while (component.endsWith(u'.') || component.endsWith(u' ')) {
        component.chop(1);
    }
    return component.isEmpty() ? QStringLiteral("_") : component;
}

}  // namespace vantor
