// Any bytes as a catalogue: loaded, linted, listed and cut.
#include <cstdlib>

#include "catalogue/CatalogueFile.h"
#include "catalogue/CatalogueLint.h"
#include "catalogue/FileTypeList.h"
#include "catalogue/SignatureRecord.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray text(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    QStringList records;
    vantor::appendCatalogueText(text, records);
    vantor::lintCatalogue(text,
                          size % 2 == 0 ? vantor::CatalogueUse::Photo : vantor::CatalogueUse::Selectable);
    QList<vantor::FileTypeRow> rows = vantor::fileTypeRows(records, {});
    vantor::sortFileTypeRows(rows);
    const qsizetype before = vantor::recordCount(records);
    if (!rows.isEmpty()) {
        vantor::removeRecordsOfType(records, rows.first()[QStringLiteral("Extension")].toString());
        if (vantor::recordCount(records) >= before) {
            std::abort();  // the type of the first row has at least one record
        }
    }
    return 0;
}
