// The sets of file types against the shipped catalogues.
#include <gtest/gtest.h>

#include <QFile>
#include <QSet>

#include "catalogue/TypePresets.h"

namespace vantor {
namespace {

QSet<QString> shippedTypes() {
    QSet<QString> types;
    for (const char* const name : {"ZelRaw.dll", "ZelRawAdv.dll", "ZelVideo.dll", "ZelVideoAdv.dll"}) {
        QFile file(QStringLiteral(VANTOR_SOURCE_DIR "/resources/") + QLatin1String(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
        for (const QByteArray& line : file.readAll().split('\n')) {
            if (line.startsWith("Extension :")) {
                types.insert(QString::fromLatin1(line.mid(11).trimmed()));
            }
        }
    }
    return types;
}

qsizetype countIn(const QString& key) {
    const QSet<QString> types = shippedTypes();
    return std::count_if(types.cbegin(), types.cend(),
                         [&key](const QString& type) { return isInPreset(key, type); });
}

TEST(TypePresets, AreThoseThatAreOffered) {
    QStringList keys, names;
    for (const TypePreset& preset : typePresets()) {
        keys << preset.key;
        names << preset.name;
    }
    EXPECT_EQ(keys.join(' '), QStringLiteral("photos office phone recorder everything"));
    EXPECT_EQ(names.join('/'),
              QStringLiteral("Photos of all cameras/Office documents/Phone/Sound recorder/Everything"));
}

TEST(TypePresets, HoldWhatTheyAreCalledAfter) {
    for (const char* const photo : {"JPG", "CR3", "NEF", "ARW", "DNG", "HEIC", "jpg"}) {
        EXPECT_TRUE(isInPreset("photos", QLatin1String(photo))) << photo;
        EXPECT_FALSE(isInPreset("office", QLatin1String(photo))) << photo;
    }
    for (const char* const document : {"PDF", "DOCX", "ODT", "XLS"}) {
        EXPECT_TRUE(isInPreset("office", QLatin1String(document))) << document;
        EXPECT_FALSE(isInPreset("recorder", QLatin1String(document))) << document;
    }
    EXPECT_TRUE(isInPreset("phone", "3GP"));
    EXPECT_TRUE(isInPreset("recorder", "WAV"));
    EXPECT_TRUE(isInPreset("everything", "NO SUCH TYPE"));
    EXPECT_FALSE(isInPreset("no such preset", "JPG"));
}

// A type that nothing searches for would be a word without a meaning.
TEST(TypePresets, NameNoTypeThatTheCataloguesLack) {
    const QSet<QString> types = shippedTypes();
    for (const TypePreset& preset : typePresets()) {
        EXPECT_EQ(typesOfPreset(preset.key) - types, QSet<QString>()) << preset.key.toStdString();
        EXPECT_GT(countIn(preset.key), 10) << preset.key.toStdString();
    }
    EXPECT_EQ(countIn("everything"), types.size());
}

}  // namespace
}  // namespace vantor
