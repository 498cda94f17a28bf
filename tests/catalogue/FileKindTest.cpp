// What kind of thing a type is, also where the desktop's own list of types does not know it.
#include <gtest/gtest.h>

#include <QFile>

#include "catalogue/CatalogueFile.h"
#include "catalogue/FileKind.h"
#include "catalogue/SignatureRecord.h"
#include "tests/catalogue/Figures.h"

namespace vantor {
namespace {

std::set<QString> shippedTypes(std::initializer_list<const char*> files) {
    QStringList records;
    for (const char* const name : files) {
        QFile file(QStringLiteral(VANTOR_SOURCE_DIR "/resources/") + QLatin1String(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly) && appendCatalogueText(file.readAll(), records)) << name;
    }
    return valuesIn(records, Ext_Name);
}

TEST(FileKind, OfWhatPhotoSearchesFind_IsKnown) {
    const auto types = shippedTypes({"ZelExt2.dll", "ZelExt2Adv.dll"});
    ASSERT_GT(types.size(), 60U);
    for (const QString& type : types) {
        EXPECT_NE(kindOfExtension(type), FileKind::Other) << type.toStdString();
    }
}

TEST(FileKind, OfWhatVideoSearchesFind_IsVideo) {
    const auto types = shippedTypes({"ZelVideo.dll", "ZelVideoAdv.dll"});
    ASSERT_GT(types.size(), 40U);
    for (const QString& type : types) {
        EXPECT_EQ(kindOfExtension(type), FileKind::Video) << type.toStdString();
    }
}

TEST(FileKind, OfFilesThatOfficesRecordersAndPhonesWrite_IsKnown) {
    const std::pair<const char*, FileKind> known[] = {
        {"DSS", FileKind::Sound},      {"MSV", FileKind::Sound},    {"rf64", FileKind::Sound},
        {"PAGES", FileKind::Document}, {"MSG", FileKind::Document}, {"SQLITE", FileKind::Document},
        {"vsdx", FileKind::Document},  {"MDB", FileKind::Document}, {"KML", FileKind::Document},
        {"APK", FileKind::Archive},    {"LZ4", FileKind::Archive},  {"VHDX", FileKind::Archive},
        {"7z", FileKind::Archive},     {"IIQ", FileKind::Picture},  {"PSB", FileKind::Picture},
        {"WASM", FileKind::Other},
    };
    for (const auto& [type, kind] : known) {
        EXPECT_EQ(kindOfExtension(QLatin1String(type)), kind) << type;
    }
}

}  // namespace
}  // namespace vantor
