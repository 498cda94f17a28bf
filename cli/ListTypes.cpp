// Presets first, as --types takes them.
#include "cli/ListTypes.h"

#include <QJsonObject>
#include <cstdio>

#include "catalogue/TypePresets.h"
#include "cli/CliSession.h"
#include "cli/JsonLine.h"
#include "cli/Telling.h"

namespace vantor {

namespace {

void print(const CliOptions& options, const QString& type, const QString& description) {
    if (options.listJson) {
        const QJsonObject line{{QStringLiteral("type"), type}, {QStringLiteral("description"), description}};
        printJsonLine(line);
    } else {
        std::printf("%-12s  %s\n", qPrintable(type), qPrintable(description));
    }
}

}  // namespace

int listTypes(const CliOptions& options) {
    CliSession session(options, 0);
    session.loadCatalogues(options.catalogueFolder);
    session.chooseAllTypes();
    const QList<FileTypeRow>& rows = session.nsCheckedListDataObject;
    const QString extension = QStringLiteral("Extension");
    for (const TypePreset& preset : typePresets()) {
        if (std::any_of(rows.cbegin(), rows.cend(), [&](const FileTypeRow& row) {
                return isInPreset(preset.key, row.value(extension).toString());
            })) {
            print(options, u'@' + preset.key, preset.name);
        }
    }
    for (const FileTypeRow& row : rows) {
        print(options, row.value(extension).toString(), row.value(QStringLiteral("Description")).toString());
    }
    return std::fflush(stdout) == 0 ? kExitCompleted : kExitDestinationTrouble;
}

}  // namespace vantor
