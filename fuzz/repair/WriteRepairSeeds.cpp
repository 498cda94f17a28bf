// Writes inputs for fuzz_repair into a folder: photos in two pieces of sectors, and movies.
#include <QFile>
#include <cstdio>

#include "tests/repair/Archives.h"
#include "tests/repair/Avis.h"
#include "tests/repair/FragmentedMovies.h"
#include "tests/repair/Movies.h"
#include "tests/repair/Photos.h"

namespace {

bool write(const QString& folder, const char* name, char reader, const QByteArray& bytes) {
    QFile file(folder + u'/' + QLatin1String(name));
    const QByteArray content = reader + bytes;
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("fuzz_repair_seeds FOLDER\n", stderr);
        return 2;
    }
    const QString folder = QString::fromLocal8Bit(argv[1]);
    const QByteArray photo = vantor::test::makePhoto(1, 96, 96);
    const qsizetype cut = photo.size() / 1024 * 512;
    const QByteArray scans = vantor::test::makePhoto(2, 96, 96, vantor::test::Scans::Progressive);
    const QByteArray avi = vantor::test::makeAvi(vantor::test::noiseChunks(1, 2));
    const auto movie = vantor::test::makeMovie(vantor::test::picturesOfManySizes(4, 1), false, 1).bytes;
    const QByteArray archive = vantor::test::makeArchive(1, {{500}, {3000}, {900, false}});
    const bool written =
        write(folder, "fragments", 6, vantor::test::makeFragmented(1, 25, true)) &&
        write(folder, "archive", 8, archive.left(1024) + QByteArray(512, '\0') + archive.mid(1024)) &&
        write(folder, "samples", 0, movie) && write(folder, "walk", 1, movie) &&
        write(folder, "movie", 6, movie) && write(folder, "chunks", 6, avi) &&
        write(folder, "unindexed", 7, avi.left(avi.indexOf("idx1"))) && write(folder, "scans", 5, scans) &&
        write(folder, "scan-pieces", 5, scans.left(cut) + QByteArray(1024, '\0') + scans.mid(cut)) &&
        write(folder, "whole", 5, photo) &&
        write(folder, "pieces", 5,
              photo.left(cut) + QByteArray(1024, '\0') + photo.mid(cut) + QByteArray(512, '\0'));
    return written ? 0 : 1;
}
