// Every file of the sample card whose type a mode lists is found where it begins and as what it is.
#include <gtest/gtest.h>

#include <QFile>
#include <cstring>
#include <set>

#include "tests/catalogue/CorpusScan.h"
#include "tests/catalogue/KnownConfusions.h"

namespace vantor {
namespace {

struct CardLine {
    QString name;
    QString type;
    std::uint64_t sector = 0;
};

std::vector<CardLine> cardLines() {
    QFile list(QStringLiteral(SAMPLE_CARD_LIST));
    EXPECT_TRUE(list.open(QIODevice::ReadOnly));
    list.readLine();  // column names
    std::vector<CardLine> lines;
    while (!list.atEnd()) {
        const QList<QByteArray> fields = list.readLine().split('\t');
        lines.push_back({QString::fromUtf8(fields.at(0)), typeOfFormat(fields.at(1).toStdString()),
                         fields.at(2).toULongLong()});
    }
    return lines;
}

ScriptedMedium cardMedium() {
    QFile image(QStringLiteral(SAMPLE_CARD_IMAGE));
    EXPECT_TRUE(image.open(QIODevice::ReadOnly));
    const QByteArray bytes = image.readAll();
    ScriptedMedium card(static_cast<std::size_t>(bytes.size()) / kSectorBytes);
    std::memcpy(card.bytes.data(), bytes.constData(), card.bytes.size() * kSectorBytes);
    return card;
}

class SampleCardTruth : public testing::TestWithParam<RecoveryMode> {};

}  // namespace

TEST_P(SampleCardTruth, EachFileOfAListedTypeIsFoundUnderIt) {
    const RecoveryMode mode = GetParam();
    const ShippedRecords records;
    ScriptedMedium card = cardMedium();
    const auto items = scanCard(records, mode, card);
    std::set<QString> types;
    std::set<const KnownConfusion*> met;
    for (const CardLine& line : cardLines()) {
        if (!records.lists(mode, line.type)) {
            continue;
        }
        const QStringList found = typesFirstOpenedAt(items, line.sector);
        if (found.contains(line.type)) {
            types.insert(line.type);
        } else {
            const KnownConfusion* known = confusionOf(line.type, found.value(0));
            met.insert(known);
            EXPECT_NE(known, nullptr)
                << line.name.toStdString() << " is found as \"" << found.join('+').toStdString() << '"';
        }
    }
    for (const KnownConfusion& known : kSampleCardConfusions) {
        EXPECT_EQ(met.contains(&known), mode == kRawFileMode) << known.type;
    }
    std::printf("%s mode: %zu types of the sample card found under their own\n", nameOf(mode), types.size());
    constexpr std::size_t kLeast[] = {30, 12, 140};
    EXPECT_GE(types.size(), kLeast[mode]);
}

INSTANTIATE_TEST_SUITE_P(Modes, SampleCardTruth, testing::Values(kPhotoMode, kVideoMode, kRawFileMode),
                         [](const auto& mode) { return std::string(nameOf(mode.param)); });

}  // namespace vantor
