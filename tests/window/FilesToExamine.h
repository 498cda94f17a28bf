// A card with files to examine, and the results of its search.
#pragma once

#include "results/RecoveryMode.h"
#include "tests/support/SmallFiles.h"
#include "tests/window/WindowTest.h"

namespace vantor {

// Sound files, a whole one and one that the card's end cuts off, and between them what only begins like a
// picture.
class FilesToExamine : public WindowTest {
  protected:
    void openResults(const QByteArray& records = {}) {
        parts.openBeside = [this](const QString&) -> std::unique_ptr<SectorReader> {
            ++openedBeside;
            return std::make_unique<ScriptedReader>(cardBeside);
        };
        source->add(QStringLiteral("sdb1"), QStringLiteral("CANON_DC"), card.bytes.size());
        writeCatalogue("ZelRaw.dll",
                       record("WAV", "52494646", "Sound") + record("PNG", "89504E47", "Picture") + records);
        put(wavFile(5000), 4);
        put(QByteArray("\x89PNG is no picture"), 20);
        put(wavFile(50'000, 2), 40);
        open();
    }
    // What begins at the sector, as far as the card reaches.
    void put(const QByteArray& file, std::size_t sector) {
        const std::size_t room = (card.bytes.size() - sector) * kSectorBytes;
        std::memcpy(card.bytes.at(sector).data(), file.data(),
                    std::min(static_cast<std::size_t>(file.size()), room));
    }
    void scan() {
        toFileTypes(kRawFileMode);
        cardBeside = card;
        scanToEnd();
    }
    // Names of the items that are in view, in their order.
    QStringList shown() const {
        const QAbstractItemModel* model = controller->imageBrowser_2->model();
        QStringList names;
        for (int row = 0; row < model->rowCount(); ++row) {
            names << model->index(row, 0).data().toString();
        }
        return names;
    }

    ScriptedMedium cardBeside{64};  // what the reader beside the scan reads
    std::atomic<int> openedBeside{0};
    const QString wav = QStringLiteral("WAV00001.WAV"), png = QStringLiteral("PNG00001.PNG"),
                  torn = QStringLiteral("WAV00002.WAV");
};

}  // namespace vantor
