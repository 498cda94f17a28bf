// The words beside a picture.
#include <gtest/gtest.h>

#include "results/Mend.h"
#include "results/MyImageObject.h"
#include "window/preview/ViewerFacts.h"

namespace vantor {
namespace {

QString valueOf(const QList<ViewerFact>& facts, const char* name) {
    for (const ViewerFact& fact : facts) {
        if (fact.name == QLatin1String(name)) {
            return fact.value;
        }
    }
    return QStringLiteral("-");
}

struct Found {
    std::unique_ptr<MyImageObject> item = MyImageObject::initWithImage(
        {}, QStringLiteral("GND00001.JPG"), QStringLiteral("GND00001.JPG"), 5000, 5010);
    ItemFacts known;
    ViewedFacts viewed;
    QList<ViewerFact> facts() const { return viewerFacts(*item, known, viewed); }
};

TEST(ViewerFacts, OfAnItemThatNobodyLookedAt_ThePlaceIsTold) {
    const auto facts = Found().facts();
    EXPECT_EQ(facts.constFirst().value, QStringLiteral("GND00001.JPG"));
    EXPECT_EQ(valueOf(facts, "On the card"), QStringLiteral("sectors 5,000 to 5,009"));
    EXPECT_EQ(valueOf(facts, "State"), QStringLiteral("not examined yet"));
    EXPECT_EQ(valueOf(facts, "Saved"), QStringLiteral("not yet"));
    for (const char* const unknown :
         {"Name on the card", "Date", "Size", "Pixels", "Camera", "Length", "Pieces"}) {
        EXPECT_EQ(valueOf(facts, unknown), QStringLiteral("-")) << unknown;
    }
}

TEST(ViewerFacts, WhatIsKnown_IsTold) {
    Found found;
    Soundness sound;
    sound.verdict = Verdict::Complete;
    sound.checked = true;
    sound.bytes = 5000;
    sound.width = 4000;
    sound.height = 3000;
    sound.taken = CivilTime{2026, 5, 7, 9, 4, 0};
    sound.pieces = 3;
    sound.camera = QStringLiteral("Canon EOS 80D");
    found.known.soundness = sound;
    const auto card = std::make_shared<CardFile>();
    card->folder = QStringLiteral("DCIM/100CANON");
    card->name = QStringLiteral("IMG_0412.JPG");
    found.known.original = card;
    found.known.saved = true;
    found.viewed = {5300, true, 65'000};
    found.item->setOrigin(QStringLiteral("JPG"), {{{5000, 5004}, {5006, 5007}}, true}, {5000, 5010});
    const auto facts = found.facts();
    EXPECT_EQ(valueOf(facts, "Name on the card"), QStringLiteral("DCIM/100CANON/IMG_0412.JPG"));
    EXPECT_EQ(valueOf(facts, "Date"), QStringLiteral("2026-05-07 09:04"));
    EXPECT_EQ(valueOf(facts, "Size"), QStringLiteral("5.3 kB")) << "as it was looked at";
    EXPECT_EQ(valueOf(facts, "Pixels"), QStringLiteral("4,000 × 3,000"));
    EXPECT_EQ(valueOf(facts, "Camera"), QStringLiteral("Canon EOS 80D"));
    EXPECT_EQ(valueOf(facts, "Length"), QStringLiteral("1:05"));
    EXPECT_EQ(valueOf(facts, "On the card"), QStringLiteral("from sector 5,000, in pieces"));
    EXPECT_EQ(valueOf(facts, "Pieces"), QStringLiteral("3"));
    EXPECT_EQ(valueOf(facts, "Unreadable sectors"), QStringLiteral("2"));
    EXPECT_EQ(valueOf(facts, "State"), soundnessWords(Verdict::Complete, true));
    EXPECT_EQ(valueOf(facts, "Saved"), QStringLiteral("yes"));
}

TEST(ViewerFacts, ThePlaceIsThatOfTheFile_NotOfAllThatWasFound) {
    Found found;
    found.item->setOrigin(QStringLiteral("JPG"), {{{5000, 5004}, {5006, 5009}}, true}, {5000, 5010});
    EXPECT_EQ(valueOf(found.facts(), "On the card"), QStringLiteral("sectors 5,000 to 5,008"));
    found.known.soundness = Soundness{};
    found.known.soundness->bytes = 1025;
    EXPECT_EQ(valueOf(found.facts(), "On the card"), QStringLiteral("sectors 5,000 to 5,002"));
    found.known.soundness->bytes = 512;
    EXPECT_EQ(valueOf(found.facts(), "On the card"), QStringLiteral("sector 5,000"));
}

TEST(ViewerFacts, PiecesAreThoseOfWhatWasPutTogether_AndTheLengthThatOfTheHead_UntilItPlays) {
    Found found;
    found.known.soundness = Soundness{};
    found.known.soundness->durationMs = 65'000;
    EXPECT_EQ(valueOf(found.facts(), "Pieces"), QStringLiteral("1"));
    EXPECT_EQ(valueOf(found.facts(), "Length"), QStringLiteral("1:05"));
    found.viewed.durationMs = 10'000;
    EXPECT_EQ(valueOf(found.facts(), "Length"), QStringLiteral("0:10"));
    auto mend = std::make_shared<Mend>();
    found.known.mend = mend;
    EXPECT_EQ(valueOf(found.facts(), "Pieces"), QStringLiteral("1")) << "one that was only repaired";
    mend->assembly.runs = {{100, 200}, {300, 400}};
    EXPECT_EQ(valueOf(found.facts(), "Pieces"), QStringLiteral("2"));
}

TEST(ViewerFacts, WhoseLengthIsOpen_SaysSo_AndWhatCouldNotBeRead) {
    Found found;
    found.viewed = {5300, false, 0};
    found.known.readFailed = true;
    EXPECT_EQ(valueOf(found.facts(), "Size"), QStringLiteral("more than 5.3 kB"));
    EXPECT_EQ(valueOf(found.facts(), "Unreadable sectors"), QStringLiteral("some"));
    found.known = {};
    found.known.soundness = Soundness{};
    EXPECT_EQ(valueOf(found.facts(), "Unreadable sectors"), QStringLiteral("none"));
    found.known.soundness->notOfItsType = true;
    EXPECT_EQ(valueOf(found.facts(), "State"), QStringLiteral("no file of its type"));
}

}  // namespace
}  // namespace vantor
