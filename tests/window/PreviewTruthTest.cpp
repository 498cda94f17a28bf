// What the preview shows and tells of items that a search found: their true bytes, their true length.
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <atomic>
#include <mutex>

#include "results/RecoveryMode.h"
#include "tests/support/Gate.h"
#include "tests/support/SmallFiles.h"
#include "tests/window/PreviewWindow.h"
#include "tests/window/ScriptedMovie.h"

namespace vantor {
namespace {

constexpr std::size_t kAt = 4;

class PreviewTruth : public Preview {
  protected:
    PreviewTruth() {
        parts.picture = [this](const QString& file, QSize) {
            note(file);
            return hasPictures ? QImage(40, 30, QImage::Format_RGB32) : QImage();
        };
        parts.movie = [this](const QString& file) {
            note(file);
            return std::make_unique<ScriptedMovie>(log);
        };
    }
    void note(const QString& path) {
        QFile file(path);
        const std::lock_guard guard(lock);
        shownPath = path;
        shown = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("absent");
    }
    // A search finds the file at its sector, and what begins with the header of an archive at others.
    void find(const QByteArray& file, std::initializer_list<std::size_t> archives, int mode = kRawFileMode,
              std::initializer_list<std::uint64_t> bad = {}) {
        card.bytes.resize(128);
        std::memcpy(card.bytes.at(kAt).data(), file.constData(), static_cast<std::size_t>(file.size()));
        for (const std::size_t sector : archives) {
            card.put(sector, "PK\x03\x04");
        }
        card.badForEver = bad;
        source->add(QStringLiteral("sdb1"), QStringLiteral("CANON_DC"), card.bytes.size());
        const QByteArray catalogue = record("WAV", "52494646", "Sound") +
                                     record("ZIP", "504B0304", "ZIP archive") +
                                     record("TIF", "49492A00", "Picture");
        writeCatalogue("ZelRaw.dll", catalogue);
        writeCatalogue("ZelVideo.dll", catalogue);
        cardToExamine = card;
        open();
        toFileTypes(mode);
        scanToEnd();
        opened = 0;
    }
    QByteArray trueBytes(qsizetype bytes) const {
        return {reinterpret_cast<const char*>(card.bytes.at(kAt).data()), bytes};
    }
    QStringList privateFolders() const {
        return QDir(folder.path()).entryList({QStringLiteral("shown-*")}, QDir::Dirs);
    }

    MovieLog log;
    ScriptedMedium cardToExamine{64};  // what those read who examine items, where they may
    std::atomic<bool> hasPictures{false};
    std::mutex lock;
    QString shownPath;
    QByteArray shown;
};

TEST_F(PreviewTruth, AnItemIsToldAndShownAtItsOwnLength) {
    const QByteArray file = wavFile(5000);
    find(file, {40});
    const auto item = controller->itemAt(0);
    select(0);
    EXPECT_EQ(previewBytes("dprv.WAV").size(),
              static_cast<qsizetype>((item->File_End_Sector() - item->File_Start_Sector()) * 512))
        << "the copy is the one that was agreed upon";
    EXPECT_EQ(controller->Preview_Temp_File, folder.filePath(QStringLiteral("dprv.WAV")));
    EXPECT_EQ(shown, file);
    EXPECT_EQ(controller->previewFacts->text(), QStringLiteral("5.0 kB"));
    EXPECT_EQ(opened, 1) << "one look at the medium";
}

TEST_F(PreviewTruth, AnItemThatWasFoundTooShort_IsShownToItsEnd) {
    find(wavFile(12'000), {10, 60});
    select(0);
    EXPECT_LT(previewBytes("dprv.WAV").size(), 5000);
    EXPECT_EQ(shown, trueBytes(12'000));
    EXPECT_EQ(controller->previewFacts->text(), QStringLiteral("12.0 kB"));
}

TEST_F(PreviewTruth, BehindABadSector_StandsWhatStandsThere) {
    const QByteArray file = wavFile(12'000);
    find(file, {60}, kRawFileMode, {8});
    select(0);
    QByteArray expected = file;
    expected.replace((8 - kAt) * 512, 512, QByteArray(512, '\0'));
    EXPECT_EQ(shown, expected);
    EXPECT_NE(previewBytes("dprv.WAV").first(6000), expected.first(6000)) << "the copy lags behind";
}

TEST_F(PreviewTruth, APictureThatCannotBeShown_IsToldWithHowSoundItIs) {
    parts.openBeside = [this](const QString&) { return std::make_unique<ScriptedReader>(cardToExamine); };
    find(tiffFile(400, 400, "2026:05:17 14:03:22").first(20'000), {60});
    const auto facts = [this] { return controller->previewFacts->text().split(u'\n'); };
    select(0);
    EXPECT_TRUE(waitFor([&] { return facts().constFirst().endsWith(QStringLiteral(" · cut off")); }))
        << facts().constFirst().toStdString();
    EXPECT_EQ(facts().constLast(), QStringLiteral("No picture of this file can be shown."));
    select(1);
    EXPECT_EQ(facts().size(), 1) << "nobody expects one of an archive";
    hasPictures = true;
    select(0);
    EXPECT_EQ(facts().size(), 1) << "there is one";
}

TEST_F(PreviewTruth, AMovieIsPlayedFromItsTrueBytes) {
    find(wavFile(12'000), {10, 60}, kVideoMode);
    select(0);
    EXPECT_NE(controller->mMovieView->movie(), nullptr);
    EXPECT_EQ(shown, trueBytes(12'000));
    EXPECT_EQ(controller->previewFacts->text(), QStringLiteral("12.0 kB"));
}

TEST_F(PreviewTruth, SoundIsHeardFromItsTrueBytes) {
    parts.sound = parts.movie;
    parts.picture = nullptr;
    find(wavFile(12'000), {10, 60});
    select(0);
    EXPECT_NE(controller->soundControls->movie(), nullptr);
    EXPECT_EQ(shown, trueBytes(12'000));
}

TEST_F(PreviewTruth, OnePrivateFileAtATime_AndNoneBehindAnotherScreen) {
    find(wavFile(5000), {40, 60});
    select(0);
    EXPECT_EQ(privateFolders().size(), 1);
    EXPECT_TRUE(shownPath.startsWith(folder.filePath(privateFolders().constFirst())));
    select(1);
    EXPECT_LE(privateFolders().size(), 1);
    EXPECT_FALSE(QFileInfo::exists(shownPath) && shownPath.endsWith(QStringLiteral("WAV")));
    select(0);
    answers.press(QStringLiteral("Go Back Without Saving"));
    click(controller->backButton);
    EXPECT_EQ(privateFolders(), QStringList());
}

TEST_F(PreviewTruth, AMediumThatHasGone_IsSaidBesideWhatIsLeft) {
    find(wavFile(5000), {40});
    select(0);
    refuseOpen = true;
    shown.clear();
    select(1);
    EXPECT_EQ(title(), controller->itemAt(1)->imageTitle());
    EXPECT_EQ(shown, wavFile(5000)) << "what was there before";
    EXPECT_EQ(
        controller->previewFacts->text(),
        QStringLiteral("The storage medium cannot be read. This is still the preview of WAV00001.WAV."));
    refuseOpen = false;
    select(0);
    EXPECT_EQ(controller->previewFacts->text(), QStringLiteral("5.0 kB"));
}

TEST_F(PreviewTruth, AMediumThatWasNeverThere_IsSaidToo) {
    find(wavFile(5000), {40});
    refuseOpen = true;
    select(0);
    EXPECT_EQ(controller->previewFacts->text(), QStringLiteral("The storage medium cannot be read."));
}

TEST_F(PreviewTruth, APassThatBegins_EmptiesThePaneWithItsTitle) {
    Gate firstPass, secondPass;
    ScriptedMedium searchedFirst{128}, searchedSecond{128};
    int openings = 0;
    parts.openMedium = [&](const QString&) -> std::unique_ptr<SectorReader> {
        ++openings;
        return std::make_unique<ScriptedReader>(openings == 1   ? searchedFirst
                                                : openings == 3 ? searchedSecond
                                                                : card);
    };
    card.bytes.resize(128);
    const QByteArray file = wavFile(5000);
    std::memcpy(card.bytes.at(kAt).data(), file.constData(), static_cast<std::size_t>(file.size()));
    card.put(40, "PK\x03\x04");
    searchedFirst = searchedSecond = card;
    searchedFirst.beforeRead = firstPass.atRead(100);
    searchedSecond.beforeRead = secondPass.atRead(0);
    source->add(QStringLiteral("sdb1"), QStringLiteral("CANON_DC"), card.bytes.size());
    writeCatalogue("ZelRaw.dll", record("WAV", "52494646", "Sound") + record("ZIP", "504B0304", "Archive"));
    writeCatalogue("ZelRawAdv.dll", record("TXT", "54455854", "Text"));
    open();
    toFileTypes(kRawFileMode);
    click(controller->nextButton);
    ASSERT_TRUE(waitFor(
        [&] { return firstPass.someoneWaits() && controller->imageBrowser_2->model()->rowCount() >= 1; }));
    select(0);
    ASSERT_FALSE(controller->_QuickLook_View->pixmap().isNull());
    ASSERT_EQ(controller->previewFacts->text(), QStringLiteral("5.0 kB"));
    firstPass.open();
    ASSERT_TRUE(waitFor([&] {
        return secondPass.someoneWaits() && title() == QStringLiteral("No file is selected to preview");
    }));
    EXPECT_TRUE(controller->_QuickLook_View->pixmap().isNull());
    EXPECT_EQ(controller->previewFacts->text(), QString());
    select(0);
    EXPECT_EQ(title(), QStringLiteral("WAV00001.WAV")) << "what is selected already can be looked at again";
    answers.press(QStringLiteral("OK"));
    secondPass.open();
    EXPECT_TRUE(scanEnds());
}

TEST_F(PreviewTruth, WhileAPreviewIsCopied_NothingIsExamined) {
    Gate copying, examining;
    ScriptedMedium beside{128};
    parts.openBeside = [&, pass = examining.passage()](const QString&) {
        pass();
        return std::make_unique<ScriptedReader>(beside);
    };
    find(wavFile(5000), {40});
    beside.bytes = card.bytes;
    ASSERT_TRUE(waitFor([&] { return examining.someoneWaits(); })) << "about to read";
    card.beforeRead = copying.atEveryRead();
    std::uint64_t readMeanwhile = 1;
    when([&] { return copying.someoneWaits(); },
         [&] {
             examining.open();
             controller->sortBox_Sig->setCurrentIndex(1);  // asks for all of them
             for (int round = 0; round < 20; ++round) {
                 settle();
             }
             readMeanwhile = beside.reads;
             copying.open();
         });
    select(0);
    EXPECT_EQ(readMeanwhile, 0U);
    EXPECT_TRUE(waitFor([&] { return controller->factsOfItem(0).soundness.has_value(); })) << "afterwards";
}

TEST_F(PreviewTruth, WhatSavingNeeds_IsWhatItWillWrite) {
    QTemporaryDir destination;
    parts.openBeside = [&](const QString&) { return std::make_unique<ScriptedReader>(card); };
    parts.freeBytes = [](const QString&) { return std::optional<std::uint64_t>(4000); };
    find(wavFile(5000), {40});
    ASSERT_TRUE(waitFor([&] { return controller->factsOfItem(0).soundness.has_value(); }));
    controller->_path_Sig->setText(destination.path());
    select(0);
    answers.press(QStringLiteral("Cancel"));
    click(controller->saveSelectedButton_Sig);
    ASSERT_FALSE(answers.seen().empty());
    const QString& words = answers.seen().back().informative;
    EXPECT_TRUE(words.startsWith(QStringLiteral("Some 5.0 kB are needed and 4.0 kB are free")))
        << words.toStdString();
}

}  // namespace
}  // namespace vantor
