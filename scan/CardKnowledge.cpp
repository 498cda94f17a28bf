// What the card's own directories tell of the files that a search finds.
#include <QHash>
#include <algorithm>
#include <initializer_list>
#include <utility>

#include "catalogue/SignatureRecord.h"
#include "decode/CardHelper.h"
#include "media/WatchedReader.h"
#include "results/ToldFiles.h"
#include "scan/ScanSession.h"
#include "scan/TraceScreen.h"

namespace vantor {

namespace {

// A card's directories and tables take less, whatever somebody wrote on it to keep us busy.
constexpr std::uint64_t kMostCardSectors = std::uint64_t{2} << 20;

QStringList typesOf(std::initializer_list<const QStringList*> catalogues) {
    QStringList types;
    for (const QStringList* const records : catalogues) {
        for (qsizetype n = 0; n < recordCount(*records); ++n) {
            types.append(recordField(*records, n, Ext_Name));
        }
    }
    types.removeDuplicates();
    return types;
}

}  // namespace

std::shared_ptr<const CardIndex> ScanSession::card() const {
    const std::lock_guard lock(m_listLock);
    return m_card;
}

std::shared_ptr<const SectorScreen> ScanSession::screenFor(
    std::shared_ptr<const SectorScreen> headers) const {
    return m_traces ? std::make_shared<const TraceScreen>(std::move(headers)) : std::move(headers);
}

std::vector<std::shared_ptr<const CardFile>> ScanSession::toldFiles(std::uint64_t* beyondRoom) const {
    const auto known = card();
    if (!known) {
        return {};
    }
    std::vector<std::uint64_t> starts;
    for (std::size_t i = 0; i < itemCount(); ++i) {
        const auto item = itemAt(i);
        if (item && !item->carved().runs.empty()) {
            starts.push_back(item->carved().runs.front().first);
        }
    }
    std::sort(starts.begin(), starts.end());
    const bool photos = Recovery_MODE == kPhotoMode;
    const QStringList chosen = typesOf(
        {photos ? &Ext_Array : &CheckListHeader_Array, photos ? &Adv_Ext_Array : &CheckListHeader_Adv_Array});
    const QStringList all = typesOf(
        {&Ext_Array, &Adv_Ext_Array, &Video_Array, &Adv_Video_Array, &RawFile_Array, &Adv_RawFile_Array});
    QHash<QString, bool> wanted;  // by extension
    const auto isWanted = [&](const QString& name) {
        const QString extension = pathExtension(name).toUpper();
        const auto asked = wanted.constFind(extension);
        if (asked != wanted.constEnd()) {
            return *asked;
        }
        // A type of its own is wanted only where it was chosen, however much it has in common with one that
        // was: movies and HEIF pictures are files of one format. What has no type of its own goes with its
        // format's.
        const auto isLike = [&name](const QString& type) { return isNamedLike(name, type); };
        const bool is = all.contains(extension, Qt::CaseInsensitive)
                            ? chosen.contains(extension, Qt::CaseInsensitive)
                            : std::any_of(chosen.begin(), chosen.end(), isLike) ||
                                  std::none_of(all.begin(), all.end(), isLike);
        wanted.insert(extension, is);
        return is;
    };
    // A thorough pass over no signatures, which ends at once, comes after a general one that was whole.
    const std::uint64_t searchedTo = m_end.nothingToSearch ? m_end.end : m_end.sector;
    return toldOnly(known, starts, {{m_end.start, searchedTo}, isWanted}, beyondRoom);
}

void ScanSession::forgetCard() {
    m_traces = m_askCard ? std::make_unique<CardCollector>() : nullptr;
    m_cardIsUnread = false;
    const std::lock_guard lock(m_listLock);
    m_card.reset();
}

void ScanSession::learnOfCard(bool stopped) {
    if (!m_askCard) {
        return;
    }
    const std::unique_ptr<SectorReader> medium = openMedium();
    if (!medium || medium->mediumSectors() == 0) {
        return;
    }
    std::vector<FoundStart> found;
    for (std::size_t i = 0; i < itemCount(); ++i) {
        const auto item = itemAt(i);
        if (item && !item->carved().runs.empty()) {
            found.push_back({item->carved().runs.front().first, item->fileType()});
        }
    }
    WatchedReader watched(*medium, m_cardWatch, kMostCardSectors);
    CardHelperOptions options;
    options.stop = [this, stopped] { return stopped || stop_now == 1; };
    auto table =
        readCardInHelper(watched, medium->mediumSectors(), m_traces->traces(), found, std::move(options));
    m_cardIsUnread = !table && !medium->isGone() && !stopped && stop_now != 1;
    if (!table) {
        return;
    }
    auto card = std::make_shared<const CardIndex>(std::move(*table));
    const std::lock_guard lock(m_listLock);
    m_card = std::move(card);
}

}  // namespace vantor
