// The raw file scan of the video and raw-file modes: turns headers into runs of sectors.
#include <QStringList>
#include <memory>
#include <optional>
#include <vector>

#include "catalogue/NumberText.h"
#include "catalogue/SignatureRecord.h"
#include "catalogue/TextHelpers.h"
#include "scan/HeaderMatcher.h"
#include "scan/PassReading.h"
#include "scan/PlatformException.h"
#include "scan/ReferenceSector.h"
#include "scan/ScanSession.h"

namespace vantor {

namespace {

// The size limit of every raw item, whatever its type: 18 MiB.
constexpr std::uint64_t kRawItemLimitBytes = 18 * 1024 * 1024;

// Entries of an item under carving in MultiHeader_Array.
constexpr qsizetype kOpenItemStride = 7;
constexpr qsizetype kOpenItemName = 5;
constexpr qsizetype kOpenItemUid = 6;

}  // namespace

// Which records open an item together with the one that matched; worked out when a record first matches.
class CompanionRecords {
  public:
    explicit CompanionRecords(const QStringList& records)
        : m_records(records), m_of(static_cast<std::size_t>(recordCount(records))) {}

    const std::vector<int>& of(int record) {
        auto& cached = m_of[static_cast<std::size_t>(record)];
        if (!cached) {
            cached = find(record);
        }
        return *cached;
    }

  private:
    std::vector<int> find(int record) const {
        std::vector<int> found;
        const QString& hex = recordField(m_records, record, Header_Hex);
        const QString& offset = recordField(m_records, record, Header_Offset);
        for (int j = record; j < recordCount(m_records); ++j) {
            const QString& other = recordField(m_records, j, Header_Hex);
            if (Find_Str(hex, other) ||
                (Find_Str(other, hex) && recordField(m_records, j, Header_Offset) == offset)) {
                found.push_back(j);
            }
        }
        return found;
    }

    const QStringList& m_records;
    std::vector<std::optional<std::vector<int>>> m_of;
};

// The working state of one pass. Size and start are one value for all open items.
struct ScanSession::RawPass {
    RawPass(const QString& passName, const QStringList& records, const QString& folder)
        : name(passName),
          matcher(std::make_shared<const HeaderMatcher>(records)),
          companions(records),
          destination(folder) {}

    QString name;
    std::shared_ptr<const HeaderMatcher> matcher;
    CompanionRecords companions;
    QString destination;
    PassReading reading;

    ReferenceSector reference;
    CarvedRun carved;
    std::uint64_t itemStartSector = 0;
    std::uint64_t itemSize = 0;  // bytes
    std::uint64_t itemsOpened = 0;
    std::uint64_t lastGoodSector = 0;  // where the current bytes were truly read from
    bool carving = false;
    bool lastReadSucceeded = false;
};

bool ScanSession::Raw_File_Recovey_Mode(const QString& passName) {
    if (passName == kGeneralPass) {
        Prev_Index = kNoPreview;
        MultiHeader_Array.clear();
        clearItems();
        m_view.reloadBrowser(ControlSet::Sig);
    }
    if (!beginPass(ControlSet::Sig, passName)) {
        return false;
    }
    prepareRecords(passName, CheckListHeader_Array, CheckListHeader_Adv_Array);

    RawPass pass(passName, REC_PROC_Array, m_view.destinationFolder());
    pass.reading = beginReading(ControlSet::Sig, passName, pass.matcher);
    bool stopped = false;
    if (!withoutPlatformException([&] { stopped = !runRawLoop(pass); })) {
        // Open items are not published then, in a later pass neither.
        MultiHeader_Array.clear();
        return endOfRange(pass.lastReadSucceeded);
    }
    const auto openItemAt = MultiHeader_Array.isEmpty() ? std::nullopt : std::optional(pass.itemStartSector);
    if (stopped) {
        stop_now = 0;
        passEnds(PassOutcome::Stopped, openItemAt);
        pFile_Disk.reset();
        m_view.invalidateTimer();
        // The items stay in the list of open ones until the next general pass begins.
        for (qsizetype at = 0; at < MultiHeader_Array.size(); at += kOpenItemStride) {
            publishRawItem(pass, at);
        }
        Final_or_Stop_Screen();
        return false;
    }
    closeRawItems(pass);
    return endOfRange(pass.lastReadSucceeded, openItemAt);
}

// False when the user stopped.
bool ScanSession::runRawLoop(RawPass& pass) {
    SectorReader& medium = *pFile_Disk;
    const bool remembers = pass.reading.remembers();
    const std::uint64_t stopBefore = pass.reading.stopBefore;
    const std::uint64_t end = end_sector;
    std::uint64_t index = for_index;
    if (index < end && REC_PROC_Array.isEmpty()) {
        pass.lastReadSucceeded = true;
        return true;
    }
    while (index < end) {
        if (stop_now.load(std::memory_order_relaxed) == 1 || medium.position() >= stopBefore) {
            return false;
        }
        const bool readBefore = pass.lastReadSucceeded;
        pass.lastReadSucceeded = medium.read();
        if (remembers) {
            pass.reading.note(medium, pass.lastReadSucceeded, *m_refusals);
        }
        if (pass.lastReadSucceeded) {
            pass.lastGoodSector = medium.position() - 1;
            noteTrace(medium, pass.lastGoodSector);
        } else {
            m_readFailures.note(medium.position(), readBefore);
            if (!medium.seek(index)) {
                medium.bringCurrent();
                pass.reference.become(medium.current());
            }
        }
        for_index.store(++index, std::memory_order_relaxed);
        if (pass.carving && !MultiHeader_Array.isEmpty()) {
            if (pass.lastReadSucceeded) {
                pass.carved.add(pass.lastGoodSector);
            } else {
                pass.carved.readFailed = true;
            }
        }

        bool headerFound = false;
        if (medium.worthALook() && !pass.reference.equals(medium.current())) {
            if (const auto match = pass.matcher->firstMatch(medium.current())) {
                if (pass.carving) {
                    closeRawItems(pass);
                    pass.itemSize = 0;
                    pass.itemStartSector = 0;
                }
                headerFound = true;
                pass.itemSize += kSectorBytes;
                openRawItems(pass, *match);
                pass.carving = true;
            }
        }
        if (!pass.carving) {
            continue;
        }
        if (!headerFound) {
            pass.itemSize += kSectorBytes;
        }
        // Size and start are shared, so all open items reach the limit together.
        if (pass.itemSize >= kRawItemLimitBytes) {
            closeRawItems(pass);
        }
        if (MultiHeader_Array.isEmpty()) {
            pass.itemSize = 0;
            pass.itemStartSector = 0;
        }
    }
    return true;
}

void ScanSession::openRawItems(RawPass& pass, int record) {
    pass.carved = CarvedRun{{}, !pass.lastReadSucceeded};
    pass.carved.add(pass.lastGoodSector);
    for (const int j : pass.companions.of(record)) {
        const QString& extension = recordField(REC_PROC_Array, j, Ext_Name);
        pass.itemStartSector = for_index - 1;
        ++pass.itemsOpened;
        const QString name = Generate_File_Name(pass.itemsOpened, extension, extension);
        Show_NSLog_Message(extension);
        MultiHeader_Array << extension << QString::number(kRawItemLimitBytes)
                          << recordField(REC_PROC_Array, j, Header_Hex) << QStringLiteral("0")
                          << pass.destination + u'/' + extension + u'/' + name << name << name;
    }
}

// Publishes the open item at an index of MultiHeader_Array, ending before the sector to be read next.
void ScanSession::publishRawItem(const RawPass& pass, qsizetype at) {
    m_handOver = {pass.name, MultiHeader_Array.at(at), pass.itemStartSector, 0, {}, pass.carved};
    addImageWithData_2({}, MultiHeader_Array.at(at + kOpenItemName), MultiHeader_Array.at(at + kOpenItemUid),
                       pass.itemStartSector, for_index);
    m_handOver = {};
}

void ScanSession::closeRawItems(RawPass& pass) {
    for (qsizetype at = 0; at < MultiHeader_Array.size(); at += kOpenItemStride) {
        publishRawItem(pass, at);
    }
    MultiHeader_Array.clear();
}

}  // namespace vantor
