// The file of a search, written anew as a whole.
#include "scan/SearchKeeper.h"

#include <QCryptographicHash>
#include <QSaveFile>
#include <algorithm>
#include <utility>

#include "media/RefusedSectors.h"

namespace vantor {

namespace {

QByteArray sumOf(const std::uint8_t* sector) {
    return QCryptographicHash::hash(QByteArrayView(sector, kSectorBytes), QCryptographicHash::Sha256);
}

}  // namespace

SearchKeeper::SearchKeeper(QString path, SearchRecord record)
    : m_path(std::move(path)),
      m_begun(std::move(record)),
      m_goesOn(!m_begun.read.empty() || !m_begun.refused.empty()),
      m_read(std::make_shared<ReadSectors>(m_begun.read, m_begun.worthALook)),
      m_reached(m_begun.reached) {
    for (const SectorSample& known : m_begun.samples) {
        m_samples[known.sector] = known.sum;
    }
}

void SearchKeeper::tellRefusals(RefusedSectors& refusals) const {
    for (const SectorRun& run : m_begun.refused) {
        refusals.add(run);
    }
}

void SearchKeeper::note(std::uint64_t sector, std::uint8_t looks, const std::uint8_t* bytes) {
    m_reached = std::max(m_reached, sector + 1);
    if (m_read->worthALook().count() < kMostLooks && m_read->add(sector, looks != 0)) {
        sample(sector, bytes);
    }
}

// Empty sectors tell no card from another.
void SearchKeeper::sample(std::uint64_t sector, const std::uint8_t* bytes) {
    const auto isZero = [](std::uint8_t byte) { return byte == 0; };
    if (sector % m_stride != 0 || std::all_of(bytes, bytes + kSectorBytes, isZero)) {
        return;
    }
    m_samples[sector] = sumOf(bytes);
    while (m_samples.size() > kMostSamples) {
        m_stride *= 2;
        std::erase_if(m_samples, [this](const auto& known) { return known.first % m_stride != 0; });
    }
}

void SearchKeeper::writeWhenDue(const RefusedSectors& refusals) {
    if (Clock::now() - m_written >= kEvery) {
        write(refusals);
    }
}

void SearchKeeper::write(const RefusedSectors& refusals) {
    if (m_path.isEmpty()) {
        return;
    }
    QSaveFile file(m_path);
    const QByteArray bytes = recordBytes(record(refusals));
    // A commit of this Qt does not ask whether the rest of the buffer found room.
    const bool written =
        file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush() && file.commit();
    m_error = written ? QString() : file.errorString();
    m_written = Clock::now();
}

SearchRecord SearchKeeper::record(const RefusedSectors& refusals) const {
    SearchRecord record;
    record.wishes = m_begun.wishes;
    record.medium = m_begun.medium;
    record.sectors = m_begun.sectors;
    for (const auto& [sector, sum] : m_samples) {
        record.samples.push_back({sector, sum});
    }
    record.reached = m_reached;
    record.read = m_read->runs();
    record.refused = refusals.runs();
    record.worthALook = m_read->worthALook();
    record.notes = m_notes ? m_notes() : m_begun.notes;
    return record;
}

bool holdsSamples(SectorReader& medium, const std::vector<SectorSample>& samples) {
    std::size_t readable = 0;
    std::size_t same = 0;
    for (const SectorSample& known : samples) {
        if (medium.seek(known.sector) && medium.read()) {
            ++readable;
            same += sumOf(medium.current()) == known.sum ? 1 : 0;
        }
    }
    return samples.empty() || (same > 0 && 4 * same >= 3 * readable);
}

}  // namespace vantor
