// Real files laid on a card in memory, and what the engine finds of them with the shipped catalogues.
#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>
#include <optional>
#include <vector>

#include "results/RecoveryMode.h"
#include "tests/formats/Corpus.h"
#include "tests/support/ScriptedMedium.h"

namespace vantor {

struct LaidFile {
    test::CorpusFile file;
    QString type;  // the `Ext_Name` that it is to be found under
    std::uint64_t sector = 0;
    std::uint64_t sectors = 0;
};

struct FoundItem {
    QString pass;
    QString type;
    std::uint64_t first = 0;
    std::uint64_t end = 0;  // exclusive
};

// The six catalogue arrays as they are shipped.
class ShippedRecords {
  public:
    ShippedRecords();

    const QStringList& general(RecoveryMode mode) const { return m_general[mode]; }
    const QStringList& thorough(RecoveryMode mode) const { return m_thorough[mode]; }
    bool lists(RecoveryMode mode, const QString& type) const;

  private:
    QStringList m_general[3];
    QStringList m_thorough[3];
};

const char* nameOf(RecoveryMode mode);

// The type under which a format is listed: formats go by all their usual endings, the catalogues spell each
// type one way.
QString typeOfFormat(const std::string& format);

// The sound files of the corpus with the type each is to be found under; sectors are those of its bytes.
std::vector<LaidFile> soundCorpusFiles(const std::filesystem::path& folder);

// Puts the file's bytes on the card from `sector` on; what is left of its last sector stays as it is.
void lay(ScriptedMedium& card, const std::filesystem::path& folder, const test::CorpusFile& file,
         std::uint64_t sector);

// Both passes of the engine over the whole card. With a type only its records are searched for, else all;
// photo mode knows no choice. Items come in the order in which they were published.
std::vector<FoundItem> scanCard(const ShippedRecords& records, RecoveryMode mode, ScriptedMedium& card,
                                const std::optional<QString>& onlyType = {});

// The types of the items that were opened together with the first item at the sector, in their order.
QStringList typesFirstOpenedAt(const std::vector<FoundItem>& items, std::uint64_t sector);

}  // namespace vantor
