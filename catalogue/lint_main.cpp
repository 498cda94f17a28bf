// catalogue-lint FILE...: prints what is wrong in catalogue files, one finding a line; exit code 1 when there
// is any.
#include <QFile>
#include <QFileInfo>
#include <cstdio>

#include "catalogue/CatalogueFile.h"
#include "catalogue/CatalogueLint.h"

namespace {

vantor::CatalogueUse useOf(const QString& path) {
    const QString name = QLatin1Char('/') + QFileInfo(path).fileName();
    const bool photo = name == QLatin1String(vantor::kPhotoCatalogue) ||
                       name == QLatin1String(vantor::kPhotoThoroughCatalogue);
    return photo ? vantor::CatalogueUse::Photo : vantor::CatalogueUse::Selectable;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fprintf(stderr, "Usage: catalogue-lint FILE...\n");
        return 2;
    }
    int status = 0;
    for (int i = 1; i < argc; ++i) {
        QFile file(QString::fromLocal8Bit(argv[i]));
        if (!file.open(QIODevice::ReadOnly)) {
            std::fprintf(stderr, "%s: %s\n", argv[i], qPrintable(file.errorString()));
            return 2;
        }
        for (const vantor::LintFinding& finding :
             vantor::lintCatalogue(file.readAll(), useOf(file.fileName()))) {
            std::printf("%s:%d: %s\n", argv[i], finding.line, qPrintable(finding.what));
            status = 1;
        }
    }
    return status;
}
