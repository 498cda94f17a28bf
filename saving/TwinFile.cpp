#include "saving/TwinFile.h"

#include <QObject>
#include <algorithm>
#include <cerrno>
#include <vector>

#include "results/Mend.h"
#include "saving/FreeSpace.h"
#include "saving/SavedName.h"
#include "saving/SavingFolder.h"
#include "saving/Sha256.h"
#include "saving/WholeFile.h"

namespace vantor {

namespace {

constexpr std::size_t kTwinChunkBytes = 1024 * 1024;

class TwinWriting {
  public:
    TwinWriting(const SavingFolder& folder, const std::function<bool()>& unwanted, bool checksum)
        : m_file(folder), m_unwanted(unwanted), m_summing(checksum) {}

    bool isUnwanted() const { return m_unwanted && m_unwanted(); }
    WholeFile& file() { return m_file; }
    QByteArray sum() { return m_summing ? m_sum.result() : QByteArray(); }

    void write(QByteArrayView bytes) {
        m_file.write(bytes);
        if (m_summing) {
            m_sum.add(bytes);
        }
    }
    // False when the medium gave less than the file holds.
    bool copy(const DataPlace& data, MediumBytes& bytes) {
        std::vector<std::uint8_t> chunk(kTwinChunkBytes);
        std::uint64_t at = data.from;
        while (at < data.to && m_file.isGood() && !isUnwanted()) {
            const auto wanted =
                static_cast<std::size_t>(std::min<std::uint64_t>(kTwinChunkBytes, data.to - at));
            const std::size_t arrived = bytes.readPast(at, std::span(chunk).first(wanted));
            if (arrived == 0) {
                return false;
            }
            write({reinterpret_cast<const char*>(chunk.data()), static_cast<qsizetype>(arrived)});
            at += arrived;
        }
        return at == data.to;
    }

  private:
    WholeFile m_file;
    const std::function<bool()>& m_unwanted;
    const bool m_summing;
    Sha256 m_sum;
};

}  // namespace

QString twinNameOf(const QString& name, const QString& mark) {
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot <= 0 ? name + u' ' + mark : name.left(dot) + u' ' + mark + name.mid(dot);
}

TwinPlace placeOfTwin(const std::shared_ptr<Destination>& destination, const FoundItem& item,
                      const SaveOutcome& saved) {
    if (!saved.saved) {
        return {destination, safePathComponent(item.type), item.name};
    }
    const QString path = destination->wayTo(saved.path);
    return {destination, path.section(u'/', 0, -2), path.section(u'/', -1)};
}

SaveOutcome writeTwin(const TwinPlace& place, std::shared_ptr<const Mend> mend, const ItemSource& item,
                      const std::function<bool()>& unwanted, bool checksum) {
    SaveOutcome outcome;
    outcome.mend = mend;
    outcome.runs = mend->assembly.runs;
    outcome.pieces = std::max<std::size_t>(1, mend->assembly.runs.size());
    const auto top = place.destination->openToWrite(outcome.error);
    if (!top) {
        return outcome;
    }
    const auto folder = top->below(place.folder);
    if (!folder) {
        outcome.error = whyNoFolder(place.destination->path() + u'/' + place.folder, errno);
        return outcome;
    }
    const Twin& twin = mend->twin;
    if (const auto refusal = refuseForSpace(folder->path(), twin.bytes())) {
        outcome.error = *refusal;
        return outcome;
    }
    const ItemSource source = sourceOf(*mend, item);
    std::vector<std::uint8_t> kept;
    MediumBytes bytes(source, kept);
    bytes.endMeasuring();
    bytes.expect(twin.data.to);
    TwinWriting writing(*folder, unwanted, checksum);
    writing.write(twin.head);
    const bool all = writing.copy(twin.data, bytes);
    if (writing.isUnwanted()) {
        outcome.error = QObject::tr("Cancelled");
        return outcome;
    }
    if (writing.file().isGood() && !all) {
        outcome.error = QObject::tr("The medium cannot be read any more");
        return outcome;
    }
    writing.write(twin.index);
    const auto path = writing.file().commit(safePathComponent(twinNameOf(place.name, markOf(mend->kind))));
    outcome.saved = path.has_value();
    outcome.path = path.value_or(QString());
    outcome.error = path ? QString() : writing.file().error();
    outcome.bytes = twin.bytes();
    outcome.sha256 = writing.sum();
    outcome.sectorsUnreadable = bytes.sectorsUnreadable(twin.data.to);
    if (mend->kind == MendKind::Completed) {
        outcome.verdict = outcome.sectorsUnreadable == 0 ? Verdict::Complete : Verdict::Damaged;
        outcome.checked = outcome.verdict == Verdict::Complete;
    }
    return outcome;
}

}  // namespace vantor
