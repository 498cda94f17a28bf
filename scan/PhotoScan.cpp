// The photo scan: collects the sectors behind each picture header into one item.
#include <QStringList>
#include <memory>
#include <optional>
#include <vector>

#include "catalogue/NumberText.h"
#include "catalogue/SignatureRecord.h"
#include "scan/HeaderMatcher.h"
#include "scan/PassReading.h"
#include "scan/PhotoItemBuffer.h"
#include "scan/PhotoPicture.h"
#include "scan/PlatformException.h"
#include "scan/ReferenceSector.h"
#include "scan/ScanSession.h"

namespace vantor {

namespace {

// Of photos with failed reads, all together.
constexpr std::uint64_t kMostHeldBytes = std::uint64_t{64} * 1024 * 1024;

}  // namespace

// The working state of one pass.
struct ScanSession::PhotoPass {
    PhotoPass(const QString& passName, PhotoMemory& memory) : name(passName), item(memory) {}

    void searchFor(const QStringList& records) {
        matcher = std::make_shared<const HeaderMatcher>(records);
        for (qsizetype n = 0; n < recordCount(records); ++n) {
            limits.push_back(static_cast<std::uint64_t>(textToInt64(recordField(records, n, Max_File_Size))));
        }
    }

    bool isGeneral() const { return name == kGeneralPass; }

    QString name;
    PhotoItemBuffer item;
    std::shared_ptr<const HeaderMatcher> matcher;
    std::vector<std::uint64_t> limits;  // bytes, a record each
    PassReading reading;
    bool keepsBytes = true;  // of an item; else its first sector alone
    // Where they are needed for its picture all the same: a reader beside the scan's, opened when first used.
    bool readsPictures = false;
    std::unique_ptr<SectorReader> beside;
    std::vector<std::uint8_t> pictureMemory;

    ReferenceSector reference;
    CarvedRun carved;
    QString itemType, itemName, itemUid;
    std::uint64_t itemFirstSector = 0;
    std::uint64_t itemSize = 0;   // bytes
    std::uint64_t itemLimit = 0;  // bytes; that of the record examined last, whatever the item's own type
    std::uint64_t itemsFound = 0;
    std::uint64_t lastGoodSector = 0;  // where the current bytes were truly read from
    bool itemOpen = false;
    bool justPublished = false;
    bool lastReadSucceeded = false;
    bool stopped = false;
};

bool ScanSession::Photo_Recovey_Mode(const QString& passName) {
    if (passName == kGeneralPass) {
        clearItems();
        m_heldBytes = 0;
        m_view.resetPhotoBrowser();
    }
    if (!beginPass(ControlSet::Photo, passName)) {
        return false;
    }

    PhotoPass pass(passName, m_photoMemory);
    // What the interface raises meanwhile ends the pass as the end of its range does.
    withoutPlatformException([&] {
        prepareRecords(passName, Ext_Array, Adv_Ext_Array);
        pass.searchFor(REC_PROC_Array);
        pass.reading = beginReading(ControlSet::Photo, passName, pass.matcher);
        const PhotoBytes needed = photoBytesNeeded();
        pass.keepsBytes = needed == PhotoBytes::All || (needed != PhotoBytes::First && !pass.reading.recalls);
        pass.readsPictures = needed == PhotoBytes::Picture && !pass.keepsBytes;
        runPhotoLoop(pass);
    });
    const auto openItemAt = pass.itemOpen ? std::optional(pass.itemFirstSector) : std::nullopt;
    if (pass.stopped) {
        stop_now = 0;
        passEnds(PassOutcome::Stopped, openItemAt);
        pFile_Disk.reset();
        m_view.invalidateTimer();
        handOverPhoto(pass);
        Final_or_Stop_Screen();
        return false;
    }
    handOverPhoto(pass);
    return endOfRange(pass.lastReadSucceeded, openItemAt);
}

void ScanSession::runPhotoLoop(PhotoPass& pass) {
    SectorReader& medium = *pFile_Disk;
    const bool remembers = pass.reading.remembers();
    const std::uint64_t stopBefore = pass.reading.stopBefore;
    const std::uint64_t end = end_sector;
    const bool haveRecords = !REC_PROC_Array.isEmpty();
    const std::uint64_t limitWithoutMatch = pass.limits.empty() ? 0 : pass.limits.back();
    std::uint64_t index = for_index;
    bool bytesWanted = false;
    while (index < end && haveRecords) {
        if (stop_now.load(std::memory_order_relaxed) == 1 || medium.position() >= stopBefore) {
            pass.stopped = true;
            return;
        }
        // A sector without a match matters as long as it changes the limit.
        const bool limitIsOpen = pass.itemOpen && pass.itemLimit != limitWithoutMatch;
        if (const bool want = limitIsOpen || (pass.itemOpen && pass.keepsBytes); want != bytesWanted) {
            medium.wantBytes(bytesWanted = want);
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
            pass.carved.readFailed = true;
            if (!medium.seek(index)) {
                // Bytes that can be neither renewed nor passed over count as a repeat.
                medium.bringCurrent();
                pass.reference.become(medium.current());
            }
        }
        for_index.store(++index, std::memory_order_relaxed);
        if ((medium.worthALook() || limitIsOpen) && !pass.reference.equals(medium.current())) {
            const auto match = pass.matcher->firstMatch(medium.current());
            if (!pass.limits.empty()) {
                pass.itemLimit = match ? pass.limits[static_cast<std::size_t>(*match)] : limitWithoutMatch;
            }
            if (match) {
                startPhotoItem(pass, *match);
            }
        }
        if (pass.itemOpen) {
            collectPhotoSector(pass);
        }
    }
}

// Takes the current sector into the open item, or closes the item at its limit; that sector then belongs to
// none.
void ScanSession::collectPhotoSector(PhotoPass& pass) {
    pass.itemSize += kSectorBytes;
    if (pass.itemSize < pass.itemLimit) {
        if (pass.keepsBytes || pass.item.size() == 0) {
            pass.item.append(pFile_Disk->current());
        } else {
            pass.item.passOver();
        }
        if (pass.lastReadSucceeded || pass.carved.runs.empty()) {
            pass.carved.add(pass.lastGoodSector);
        } else {
            pass.carved.addRepeat(pass.item.size() / kSectorBytes - 1);
        }
        return;
    }
    pass.itemSize = 0;
    pass.justPublished = true;
    handOverPhoto(pass);
    pass.itemOpen = false;
}

void ScanSession::startPhotoItem(PhotoPass& pass, int record) {
    if (pass.itemsFound != 0 && !pass.justPublished) {
        handOverPhoto(pass);
    }
    pass.justPublished = false;
    pass.itemOpen = true;
    ++pass.itemsFound;
    const QString& extension = recordField(REC_PROC_Array, record, Ext_Name);
    for (qsizetype i = 0; i < Fol_Cnt_Array.size(); i += 3) {
        if (Fol_Cnt_Array.at(i).toString() == extension) {
            Fol_Cnt_Array[i + 1] = Fol_Cnt_Array.at(i + 1).toLongLong() + 1;
            break;
        }
    }
    if (pass.isGeneral()) {
        ++GND_Image_number;
        pass.itemName = Generate_File_Name(pass.itemsFound, QStringLiteral("GND"), extension);
        pass.itemUid = Generate_File_UID_Num(GND_Image_number, false, extension);
    } else {
        ++THD_Image_number;
        pass.itemName = Generate_File_Name(pass.itemsFound, QStringLiteral("THD"), extension);
        pass.itemUid = Generate_File_UID_Num(THD_Image_number, true, extension);
    }
    pass.itemType = extension;
    pass.itemSize = 0;
    pass.itemFirstSector = for_index - 1;
    pass.carved = CarvedRun{{}, !pass.lastReadSucceeded};
}

// Nobody waits for the medium once more when the user has stopped.
QByteArray ScanSession::photoBytes(PhotoPass& pass) const {
    if (!pass.readsPictures || pass.stopped || pass.item.size() == 0 || pictureIsKnown()) {
        return pass.item.bytes();
    }
    if (!pass.beside) {
        pass.beside = openMedium();
    }
    return pass.beside
               ? pictureBytes(pass.itemType, pass.carved, pass.item.bytes(), *pass.beside, pass.pictureMemory)
               : pass.item.bytes();
}

// Hands the item over as it stands, empty ones included, which the adder drops.
void ScanSession::handOverPhoto(PhotoPass& pass) {
    m_handOver = {
        pass.name,  pass.itemType, pass.itemFirstSector, pass.item.size(), pass.item.overflowSha256(),
        pass.carved};
    const auto size = static_cast<std::uint64_t>(pass.item.bytes().size());
    if (pass.keepsBytes && pass.carved.readFailed && m_heldBytes + size <= kMostHeldBytes) {
        m_heldBytes += size;
        m_handOver.heldBytes = pass.item.bytes();
    }
    addImageWithData(photoBytes(pass), pass.itemName, pass.itemUid);
    m_handOver = {};
    pass.item.clear();
    pass.carved = {};
}

}  // namespace vantor
