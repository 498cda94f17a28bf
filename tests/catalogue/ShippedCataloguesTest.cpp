// The six shipped catalogues: sound, broad, and strong enough not to cry wolf.
#include <gtest/gtest.h>

#include <QFile>
#include <cstring>

#include "catalogue/CatalogueFile.h"
#include "catalogue/CatalogueLint.h"
#include "catalogue/SignatureRecord.h"
#include "tests/catalogue/Figures.h"

namespace vantor {
namespace {

struct Shipped {
    const char* file;
    CatalogueUse use;
    bool general;
    std::size_t leastTypes;
};

QByteArray bytesOf(const Shipped& shipped) {
    QFile file(QStringLiteral(VANTOR_SOURCE_DIR "/resources") + QLatin1String(shipped.file));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << shipped.file;
    return file.readAll();
}

QStringList recordsOf(const Shipped& shipped) {
    QStringList array;
    EXPECT_TRUE(appendCatalogueText(bytesOf(shipped), array)) << shipped.file;
    return array;
}

class ShippedCatalogues : public testing::TestWithParam<Shipped> {};

}  // namespace

TEST_P(ShippedCatalogues, LintFindsNothing) {
    for (const LintFinding& finding : lintCatalogue(bytesOf(GetParam()), GetParam().use)) {
        ADD_FAILURE() << GetParam().file << ":" << finding.line << ": " << finding.what.toStdString();
    }
}

TEST_P(ShippedCatalogues, EveryRecordIsWholeAndReadable) {
    const QStringList records = recordsOf(GetParam());
    ASSERT_EQ(records.size() % kRecordStride, 0);
    for (qsizetype n = 0; n < recordCount(records); ++n) {
        const QString& extension = recordField(records, n, Ext_Name);
        EXPECT_EQ(extension, extension.toUpper());
        EXPECT_FALSE(recordField(records, n, Ext_Descp).isEmpty()) << extension.toStdString();
        EXPECT_GE(recordField(records, n, Header_Hex).size() / 2, 3) << extension.toStdString();
    }
}

TEST_P(ShippedCatalogues, ListsEnoughTypes) {
    const QStringList records = recordsOf(GetParam());
    const std::set<QString> types = valuesIn(records, Ext_Name);
    RecordProperty("types", static_cast<int>(types.size()));
    std::printf("%s: %d types in %d records, %.2f false items expected in 64 GiB of random bytes\n",
                GetParam().file, static_cast<int>(types.size()), static_cast<int>(recordCount(records)),
                falseItemsIn64GiB(records));
    EXPECT_GE(types.size(), GetParam().leastTypes);
}

TEST_P(ShippedCatalogues, GeneralFilesExpectLessThanOneFalseItem) {
    if (GetParam().general) {
        EXPECT_LT(falseItemsIn64GiB(recordsOf(GetParam())), 1.0);
    } else {
        EXPECT_LT(falseItemsIn64GiB(recordsOf(GetParam())), 1000.0);
    }
}

// The record examined last decides the limit of a photo, so all records must carry the wanted one.
TEST(ShippedPhotoCatalogues, RecordsShareOneLimit) {
    for (const char* file : {kPhotoCatalogue, kPhotoThoroughCatalogue}) {
        const QStringList records = recordsOf({file, CatalogueUse::Photo, true, 0});
        EXPECT_EQ(valuesIn(records, Max_File_Size), std::set<QString>{QStringLiteral("134217728")}) << file;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Files, ShippedCatalogues,
    testing::Values(Shipped{kPhotoCatalogue, CatalogueUse::Photo, true, 65},
                    Shipped{kPhotoThoroughCatalogue, CatalogueUse::Photo, false, 10},
                    Shipped{kVideoCatalogue, CatalogueUse::Selectable, true, 45},
                    Shipped{kVideoThoroughCatalogue, CatalogueUse::Selectable, false, 12},
                    Shipped{kRawFileCatalogue, CatalogueUse::Selectable, true, 600},
                    Shipped{kRawFileThoroughCatalogue, CatalogueUse::Selectable, false, 120}),
    [](const auto& shipped) {
        return std::string(shipped.param.file).substr(1, std::strlen(shipped.param.file) - 5);
    });

}  // namespace vantor
