// One document of each kind.
#include "samples/Archives.h"
#include "samples/CardContents.h"
#include "samples/Documents.h"
#include "samples/Scenes.h"

namespace vantor::samples {

void addDocuments(std::vector<CardFile>& files) {
    const auto add = [&files](const char* name, const QByteArray& bytes, Gap gap = Gap::None,
                              std::int64_t clusters = 0) {
        files.push_back(
            {QStringLiteral("DOCS"), QString::fromLatin1(name), bytes, gap, clusters, Pieces::One});
    };
    add("ALBUM.PDF", pdfFile(sceneNamed("seaSunset").paint(640, 480)), Gap::Zeros, 2);
    add("NOTES.ZIP", zipFile({{"notes/first.txt", QByteArray("Sun, sand and sea.\n").repeated(40)},
                              {"notes/second.txt", "Stored as it is.\n", Packing::Stored}}));
}

}  // namespace vantor::samples
