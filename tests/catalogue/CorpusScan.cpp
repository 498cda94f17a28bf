// Laying real files on a card and scanning it.
#include "tests/catalogue/CorpusScan.h"

#include <cstring>
#include <map>

#include "catalogue/CatalogueFile.h"
#include "catalogue/SignatureRecord.h"
#include "tests/support/TestSession.h"

namespace vantor {

namespace {

QStringList recordsIn(const char* file) {
    QStringList array;
    appendCatalogueFile(QStringLiteral(VANTOR_SOURCE_DIR "/resources") + QLatin1String(file), array);
    return array;
}

QStringList recordsOfType(const QStringList& records, const QString& type) {
    QStringList chosen;
    for (qsizetype n = 0; n < recordCount(records); ++n) {
        if (recordField(records, n, Ext_Name) == type) {
            chosen += records.mid(n * kRecordStride, kRecordStride);
        }
    }
    return chosen;
}

}  // namespace

ShippedRecords::ShippedRecords()
    : m_general{recordsIn(kPhotoCatalogue), recordsIn(kVideoCatalogue), recordsIn(kRawFileCatalogue)},
      m_thorough{recordsIn(kPhotoThoroughCatalogue), recordsIn(kVideoThoroughCatalogue),
                 recordsIn(kRawFileThoroughCatalogue)} {}

bool ShippedRecords::lists(RecoveryMode mode, const QString& type) const {
    for (const QStringList* records : {&m_general[mode], &m_thorough[mode]}) {
        for (qsizetype n = 0; n < recordCount(*records); ++n) {
            if (recordField(*records, n, Ext_Name) == type) {
                return true;
            }
        }
    }
    return false;
}

QString typeOfFormat(const std::string& format) {
    static const std::map<QString, QString> kOneSpelling = {
        {"AIF", "AIFF"}, {"AR", "A"}, {"JPEG", "JPG"}, {"JPF", "JPX"}, {"TIFF", "TIF"}};
    const QString type = QString::fromStdString(format).toUpper();
    const auto spelled = kOneSpelling.find(type);
    return spelled == kOneSpelling.end() ? type : spelled->second;
}

const char* nameOf(RecoveryMode mode) {
    return mode == kPhotoMode ? "photo" : mode == kVideoMode ? "video" : "file";
}

std::vector<LaidFile> soundCorpusFiles(const std::filesystem::path& folder) {
    std::vector<LaidFile> files;
    for (const test::CorpusFile& file : test::corpusFiles(folder)) {
        if (!file.hostile) {
            const std::uint64_t bytes = std::filesystem::file_size(folder / file.path);
            files.push_back({file, typeOfFormat(file.format), 0, (bytes + kSectorBytes - 1) / kSectorBytes});
        }
    }
    return files;
}

void lay(ScriptedMedium& card, const std::filesystem::path& folder, const test::CorpusFile& file,
         std::uint64_t sector) {
    const test::Bytes bytes = test::readFile(folder / file.path);
    for (std::size_t at = 0; at < bytes.size(); at += kSectorBytes) {
        const std::size_t count = std::min(kSectorBytes, bytes.size() - at);
        std::memcpy(card.bytes.at(sector + at / kSectorBytes).data(), bytes.data() + at, count);
    }
}

std::vector<FoundItem> scanCard(const ShippedRecords& records, RecoveryMode mode, ScriptedMedium& card,
                                const std::optional<QString>& onlyType) {
    TestSession session(card);
    Recovery_MODE = mode;
    if (mode == kPhotoMode) {
        session.Ext_Array = records.general(mode);
        session.Adv_Ext_Array = records.thorough(mode);
        session.Photo_Rec_Thread();
    } else {
        // What a tick of one type leaves of the catalogues is chosen here, so that not every file pays for a
        // list of hundreds of types.
        const auto chosen = [&](const QStringList& all) {
            return onlyType ? recordsOfType(all, *onlyType) : all;
        };
        session.CheckListHeader_Array = chosen(records.general(mode));
        session.CheckListHeader_Adv_Array = chosen(records.thorough(mode));
        session.Raw_File_Rec_Thread();
    }
    std::vector<FoundItem> found;
    for (const HandedOver& item : session.handedOver) {
        // A photo pass hands over once more at its end, with or without an item.
        if (mode == kPhotoMode && item.data.isEmpty()) {
            continue;
        }
        found.push_back(
            {item.pass, item.name.mid(item.name.lastIndexOf(QLatin1Char('.')) + 1), item.first, item.end});
    }
    return found;
}

QStringList typesFirstOpenedAt(const std::vector<FoundItem>& items, std::uint64_t sector) {
    QStringList types;
    QString pass;
    for (const FoundItem& item : items) {
        if (item.first == sector && (types.isEmpty() || item.pass == pass)) {
            types.append(item.type);
            pass = item.pass;
        }
    }
    return types;
}

}  // namespace vantor
