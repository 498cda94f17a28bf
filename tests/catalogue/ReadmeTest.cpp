// The README's tables of types say what the catalogues and the walkers know.
#include <gtest/gtest.h>

#include <QFile>
#include <QRegularExpression>
#include <map>
#include <set>

#include "formats/Registry.h"
#include "tests/catalogue/CorpusScan.h"
#include "tests/catalogue/Figures.h"

namespace vantor {
namespace {

constexpr RecoveryMode kModes[] = {kPhotoMode, kVideoMode, kRawFileMode};

QString readmePart(const QString& from, const QString& to) {
    QFile file(QStringLiteral(VANTOR_SOURCE_DIR "/README.md"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return QString::fromUtf8(file.readAll()).section(from, 1, 1).section(to, 0, 0);
}

QStringList tableRows(const QString& part) {
    QStringList rows;
    for (const QString& line : part.split(u'\n')) {
        if (line.startsWith(u"| ") && !line.startsWith(u"|--")) {
            rows.append(line);
        }
    }
    return rows;
}

QString figuresOf(const QStringList& records) {
    const double expected = falseItemsIn64GiB(records);
    return QStringLiteral("%1 | %2 | %3")
        .arg(recordCount(records))
        .arg(valuesIn(records, Ext_Name).size())
        .arg(expected, 0, 'f', expected < 10 ? 2 : 0);
}

}  // namespace

TEST(Readme, TellsTheFiguresOfEachCatalogue) {
    const ShippedRecords records;
    const QStringList rows =
        tableRows(readmePart(QStringLiteral("## What it knows"), QStringLiteral("### ")));
    for (const RecoveryMode mode : kModes) {
        for (const QStringList* catalogue : {&records.general(mode), &records.thorough(mode)}) {
            const QString figures = figuresOf(*catalogue);
            std::printf("%s mode, %s pass: %s (records, types, false items in 64 GiB)\n", nameOf(mode),
                        catalogue == &records.general(mode) ? "general" : "thorough", qPrintable(figures));
            EXPECT_EQ(rows.filter(QStringLiteral("| %1 |").arg(figures)).size(), 1) << qPrintable(figures);
        }
    }
}

TEST(Readme, ListsEveryTypeAndWhetherItIsSavedAtItsTrueLength) {
    const ShippedRecords records;
    std::set<QString> shipped;
    for (const RecoveryMode mode : kModes) {
        shipped.merge(valuesIn(records.general(mode), Ext_Name));
        shipped.merge(valuesIn(records.thorough(mode), Ext_Name));
    }
    std::set<QString> listed;
    int trueLength = 0;
    const QString part = readmePart(QStringLiteral("### The types"), QStringLiteral("## How fast"));
    for (const QString& row : tableRows(part).mid(1)) {
        const QStringList columns = row.split(QStringLiteral(" | "));
        ASSERT_EQ(columns.size(), 3) << qPrintable(row);
        const QStringList types = columns[2].chopped(2).split(u' ');
        EXPECT_EQ(columns[1].toInt(), types.size()) << qPrintable(row.left(40));
        for (QString type : types) {
            const bool bold = type.startsWith(QStringLiteral("**"));
            type.remove(u'*').remove(u'\\');
            EXPECT_TRUE(listed.insert(type).second) << qPrintable(type) << " is listed twice";
            EXPECT_EQ(bold, formatFor(type.toStdString()) != nullptr) << qPrintable(type);
            trueLength += bold ? 1 : 0;
        }
    }
    EXPECT_EQ(listed, shipped);
    const QString sum =
        QStringLiteral("%1 types. Those in bold, %2 of them, ").arg(shipped.size()).arg(trueLength);
    EXPECT_TRUE(part.trimmed().startsWith(sum)) << qPrintable(sum);
}

}  // namespace vantor
