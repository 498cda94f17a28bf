// Copies of a card that is searched, how the card fares, and how often what is bad is asked for.
#include <QCheckBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <algorithm>
#include <map>
#include <mutex>

#include "media/WindowedReader.h"
#include "results/RecoveryMode.h"
#include "tests/support/ReadAheadMedium.h"
#include "tests/window/GatedWindow.h"
#include "window/keeping/CardStrip.h"

namespace vantor {
namespace {

// What the medium was asked for, by all who read it.
struct Asked {
    std::mutex lock;
    std::map<std::uint64_t, int> reads;     // of each sector, those that succeeded
    std::map<std::uint64_t, int> refusals;  // of each bad sector
    std::function<void(std::uint64_t sector)> before;
    std::atomic<bool> pulledOut{false};
};

class CountedCard : public BlockSource {
  public:
    CountedCard(const ScriptedMedium& card, Asked& asked) : m_bytes(card), m_card(card), m_asked(asked) {}

    std::int64_t readAt(std::uint64_t sector, std::span<std::uint8_t> into) override {
        if (m_asked.before) {
            m_asked.before(sector);
        }
        m_gone = m_gone || m_asked.pulledOut;
        if (m_gone) {
            return -1;
        }
        const auto bad = m_card.badForEver.lower_bound(sector);
        const std::uint64_t wanted = into.size() / kSectorBytes;
        const bool refused = bad != m_card.badForEver.end() && *bad < sector + wanted;
        const std::uint64_t good = refused ? *bad - sector : wanted;
        const std::int64_t got = good == 0 ? -1 : m_bytes.readAt(sector, into.first(good * kSectorBytes));
        const std::lock_guard lock(m_asked.lock);
        for (std::int64_t at = 0; at < got; at += kSectorBytes) {
            ++m_asked.reads[sector + static_cast<std::uint64_t>(at) / kSectorBytes];
        }
        if (refused) {
            ++m_asked.refusals[*bad];
        }
        return got;
    }
    bool usable() override { return !m_gone; }
    std::uint64_t sectors() const override { return m_card.bytes.size(); }

  private:
    ScriptedBytes m_bytes;
    const ScriptedMedium& m_card;
    Asked& m_asked;
    bool m_gone = false;  // for good, as a node is whose card was put back
};

class CardCopy : public GatedWindow {
  protected:
    CardCopy() {
        const auto open = [this](const QString&) -> std::unique_ptr<SectorReader> {
            ++opened;
            if (asked.pulledOut) {
                return nullptr;
            }
            return std::make_unique<WindowedReader>(std::make_unique<CountedCard>(card, asked),
                                                    WindowedReader::Fetching::WhenAsked, kSmallWindowSectors);
        };
        parts.openMedium = open;
        parts.openBeside = open;
        parts.openSource = [this](const QString&, const StopRequest&) -> std::unique_ptr<BlockSource> {
            return asked.pulledOut ? nullptr : std::make_unique<CountedCard>(card, asked);
        };
    }

    void chooseCopy(QWidget* by) {
        answers.then([this](QDialog* chooser) { chooseFolder(chooser, image); });
        click(by);
    }

    QStringList found() const {
        QStringList all;
        for (std::size_t i = 0; i < controller->itemCount(); ++i) {
            all << controller->itemAt(i)->imageTitle();
        }
        return all;
    }

    int most(const std::map<std::uint64_t, int>& counts) {
        const std::lock_guard lock(asked.lock);
        int most = 0;
        for (const auto& count : counts) {
            most = std::max(most, count.second);
        }
        return most;
    }

    void saveAll(const QTemporaryDir& destination) {
        controller->_path->setText(destination.path());
        controller->_path_Sig->setText(destination.path());
        answers.press(QStringLiteral("OK"));
        click(Recovery_MODE == kPhotoMode ? controller->saveAllButton : controller->saveAllButton_Sig);
        ASSERT_TRUE(waitFor([this] { return answers.allGiven(); }));
    }

    const QTemporaryDir copyFolder;
    const QString image = copyFolder.filePath(QStringLiteral("card.img"));
    Asked asked;
};

TEST_F(CardCopy, IsNotKeptUnlessItIsWanted) {
    openWithCard();
    toRange(kPhotoMode);
    EXPECT_FALSE(part<QCheckBox>("copyBox")->isChecked());
    scanToEnd();
    EXPECT_FALSE(QFile::exists(image));
    EXPECT_FALSE(part<QPushButton>("keepCopyButton")->isVisible());
}

TEST_F(CardCopy, IsReadByAllOthers_AndTheCardOnce) {
    const QTemporaryDir destination;
    openWithCard();
    toRange(kPhotoMode);
    chooseCopy(part<QCheckBox>("copyBox"));
    ASSERT_TRUE(part<QCheckBox>("copyBox")->isChecked());
    scanToEnd();
    EXPECT_EQ(found().size(), 3);
    saveAll(destination);
    EXPECT_EQ(opened, 0) << "somebody opened the card itself";
    EXPECT_EQ(most(asked.reads), 1);
    controller->shutDown(kPatience);
    QFile file(image);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray copied = file.readAll();
    ASSERT_EQ(copied.size(), 64 * 512);
    for (qsizetype sector = 0; sector < 64; ++sector) {
        const auto& bytes = card.bytes[static_cast<std::size_t>(sector)];
        ASSERT_TRUE(std::equal(bytes.begin(), bytes.end(),
                               reinterpret_cast<const std::uint8_t*>(copied.constData()) + sector * 512));
    }
}

TEST_F(CardCopy, AfterACancelledChoice_NoneIsWanted) {
    openWithCard();
    toRange(kPhotoMode);
    answers.then([](QDialog* chooser) { chooser->reject(); });
    click(part<QCheckBox>("copyBox"));
    EXPECT_FALSE(part<QCheckBox>("copyBox")->isChecked());
}

TEST_F(CardCopy, WithoutEnoughRoom_IsNotBegun) {
    parts.freeBytes = [](const QString&) { return std::optional<std::uint64_t>(64 * 512 - 1); };
    openWithCard();
    toRange(kPhotoMode);
    answers.then([this](QDialog* chooser) { chooseFolder(chooser, image); });
    answers.press(QStringLiteral("OK"));
    click(part<QCheckBox>("copyBox"));
    EXPECT_EQ(answers.seen().back().text, "\nThere is not enough room for a copy.");
    EXPECT_FALSE(part<QCheckBox>("copyBox")->isChecked());
    EXPECT_FALSE(QFile::exists(image));
}

TEST_F(CardCopy, OnTheCardItself_IsRefused) {
    parts.isOnMedium = [this](const QString& where, const QString&) { return where == copyFolder.path(); };
    openWithCard();
    toRange(kPhotoMode);
    answers.then([this](QDialog* chooser) { chooseFolder(chooser, image); });
    answers.press(QStringLiteral("OK"));
    click(part<QCheckBox>("copyBox"));
    EXPECT_EQ(answers.seen().back().text, "\nThe copy cannot be kept there.");
    EXPECT_FALSE(part<QCheckBox>("copyBox")->isChecked());
}

TEST_F(CardCopy, AFileThatIsNone_IsNeverWrittenOver) {
    QFile other(image);
    ASSERT_TRUE(other.open(QIODevice::WriteOnly));
    other.write("holiday");
    other.close();
    openWithCard();
    toRange(kPhotoMode);
    chooseCopy(part<QCheckBox>("copyBox"));
    answers.press(QStringLiteral("OK"));
    click(controller->nextButton);
    EXPECT_EQ(controller->screen_counter, 1) << "the search waits for a place that will do";
    EXPECT_EQ(answers.seen().back().text, "\nThe copy cannot be kept there.");
    ASSERT_TRUE(other.open(QIODevice::ReadOnly));
    EXPECT_EQ(other.readAll(), "holiday");
}

TEST_F(CardCopy, OfAFailingCard_IsOfferedInTheSearch_WhichGoesOnWithIt) {
    card.badForEver = {30};
    openWithCard();
    toRange(kPhotoMode);
    asked.before = [pass = gate.passage()](std::uint64_t sector) {
        if (sector >= 40) {
            pass();
        }
    };
    click(controller->nextButton);
    auto* const offer = part<QPushButton>("keepCopyButton");
    ASSERT_TRUE(waitFor([&] { return gate.someoneWaits() && offer->isVisible(); }));
    EXPECT_EQ(part<QLabel>("cardWords")->text(),
              "This card is failing: 1 bad sector. Keep a copy, so that every sector is read only once.");
    const auto* const strip = part<CardStrip>("cardStrip");
    EXPECT_EQ(strip->markAt(30), CardStrip::Mark::Bad);
    EXPECT_EQ(strip->markAt(2), CardStrip::Mark::Read);
    EXPECT_EQ(strip->markAt(60), CardStrip::Mark::ToCome);
    answers.then([this](QDialog* chooser) { chooseFolder(chooser, image); });
    when([this] { return controller->stop_now == 1; }, [this] { gate.open(); });
    answers.press(QStringLiteral("OK"));  // the end of the search that went on
    click(offer);
    ASSERT_TRUE(scanEnds());
    EXPECT_EQ(controller->searchEnd().outcome, PassOutcome::Completed);
    EXPECT_EQ(controller->searchEnd().unreadable, 1u);
    EXPECT_EQ(found().size(), 3);
    EXPECT_TRUE(QFile::exists(image));
}

// A search that lost its card at the sector, with the panel at its end answered.
class PulledOut : public CardCopy {
  protected:
    void searchUntilPulledOut(std::uint64_t sector) {
        asked.before = [this, sector](std::uint64_t at) {
            asked.pulledOut = asked.pulledOut || at >= sector;
        };
        answers.press(QStringLiteral("OK"));  // the read error
        answers.press(QStringLiteral("OK"));  // the panel
        click(controller->nextButton);
        ASSERT_TRUE(scanEnds());
        asked.before = nullptr;
        ASSERT_TRUE(controller->searchEnd().mediumGone);
    }
};

TEST_F(PulledOut, AndPutBack_TheSearchGoesOnByItself) {
    openWithCard();
    toRange(kPhotoMode);
    searchUntilPulledOut(16);
    EXPECT_LT(found().size(), 3);
    asked.pulledOut = false;
    answers.press(QStringLiteral("OK"));
    source->changed();
    ASSERT_TRUE(scanEnds());
    EXPECT_EQ(controller->searchEnd().outcome, PassOutcome::Completed);
    EXPECT_EQ(found().size(), 3);
}

TEST_F(PulledOut, AndPutBackWhileTheMediumIsAskedFor_TheSearchGoesOnBehindIt) {
    openWithCard();
    toRange(kPhotoMode);
    searchUntilPulledOut(16);
    asked.pulledOut = false;
    controller->session = true;
    source->changed();
    settle();
    ASSERT_FALSE(controller->scanShown());
    answers.press(QStringLiteral("OK"));
    controller->session = false;
    ASSERT_TRUE(waitFor([this] { return answers.allGiven() && !controller->scanShown(); }));
    EXPECT_EQ(controller->searchEnd().outcome, PassOutcome::Completed);
}

TEST_F(PulledOut, AndPutBackBeforeItsAlertIsAnswered_TheSearchGoesOnBehindIt) {
    openWithCard();
    toRange(kPhotoMode);
    asked.before = [this](std::uint64_t at) { asked.pulledOut = asked.pulledOut || at >= 16; };
    answers.then([this](QDialog* alert) {
        asked.before = nullptr;
        asked.pulledOut = false;
        source->changed();
        pressButton(alert, QStringLiteral("OK"));
    });
    answers.press(QStringLiteral("OK"));  // the panel of the search that lost its card
    answers.press(QStringLiteral("OK"));  // that of the one that went on
    click(controller->nextButton);
    ASSERT_TRUE(
        waitFor([this] { return answers.allGiven() && !controller->scanShown() && !controller->session; }));
    EXPECT_EQ(controller->searchEnd().outcome, PassOutcome::Completed);
    EXPECT_EQ(found().size(), 3);
}

TEST_F(PulledOut, AndAnotherPutIn_NothingHappens) {
    openWithCard();
    toRange(kPhotoMode);
    searchUntilPulledOut(16);
    const QStringList before = found();
    for (std::size_t sector = 0; sector < card.bytes.size(); ++sector) {
        card.fill(sector, static_cast<std::uint8_t>(sector + 3));
    }
    asked.pulledOut = false;
    source->changed();
    settle();
    EXPECT_FALSE(controller->scanShown());
    EXPECT_EQ(found(), before);
    answers.press(QStringLiteral("OK"));
    click(part<QPushButton>("goOnButton"));
    EXPECT_TRUE(answers.seen().back().informative.contains("not the medium that was searched"))
        << answers.seen().back().informative.toStdString();
    EXPECT_EQ(found(), before);
}

TEST_F(PulledOut, AndNotThere_TheListStaysWhereOneWantsToGoOn) {
    openWithCard();
    toRange(kPhotoMode);
    searchUntilPulledOut(16);
    const QStringList before = found();
    ASSERT_GT(before.size(), 0);
    answers.press(QStringLiteral("OK"));
    click(part<QPushButton>("goOnButton"));
    EXPECT_EQ(answers.seen().back().text, "\nThe search cannot go on.");
    EXPECT_EQ(found(), before);
    EXPECT_EQ(controller->screen_counter, 2);
}

TEST_F(PulledOut, WhatWasCopied_IsShownAndSavedWithoutIt) {
    const QTemporaryDir destination;
    openWithCard();
    toRange(kPhotoMode);
    chooseCopy(part<QCheckBox>("copyBox"));
    scanToEnd();
    asked.pulledOut = true;
    saveAll(destination);
    EXPECT_EQ(controller->savedLabel->text().left(1), "3") << controller->savedLabel->text().toStdString();
}

TEST_F(CardCopy, WithoutOne_NoBadSectorIsAskedForMoreThanTwice) {
    const QTemporaryDir destination;
    card.badForEver = {6, 7, 12, 26, 30, 45, 52};
    parts.picture = [](const QString&, const QSize&) { return QImage(); };
    openWithCard();
    toFileTypes(kRawFileMode);
    scanToEnd();
    ASSERT_GT(controller->itemCount(), 2u);
    for (int at = 0; at < static_cast<int>(controller->itemCount()); ++at) {
        controller->Prev_Index = ScanSession::kNoPreview;
        controller->imageBrowser_2->setCurrentIndex(controller->imageBrowser_2->model()->index(at, 0));
        ASSERT_TRUE(waitFor([&] {
            return controller->Prev_Index == static_cast<std::uint32_t>(at) && !controller->session;
        }));
    }
    saveAll(destination);
    ASSERT_TRUE(waitFor([this] {
        for (std::size_t at = 0; at < controller->itemCount(); ++at) {
            if (!controller->factsOfItem(static_cast<qsizetype>(at)).soundness) {
                return false;
            }
        }
        return true;
    })) << "badges";
    EXPECT_EQ(asked.refusals.size(), card.badForEver.size());
    for (const auto& [sector, times] : asked.refusals) {
        EXPECT_LE(times, 2) << sector;
    }
}

}  // namespace
}  // namespace vantor
