// What the card itself tells, in the window: files that no signature finds, and that it was erased.
#include <QLineEdit>
#include <QTreeWidget>

#include "results/RecoveryMode.h"
#include "tests/filesystem/CardImage.h"
#include "tests/support/Gate.h"
#include "tests/support/SmallFiles.h"
#include "tests/window/WindowTest.h"
#include "window/browser/FoundPane.h"

namespace vantor {
namespace {

class CardInWindow : public WindowTest {
  protected:
    // A search for sounds on a card, through the helper that reads directories.
    void openWith(const MemoryCard& image) {
        card.bytes.resize(image.sectors());
        for (std::size_t sector = 0; sector < image.sectors(); ++sector) {
            std::memcpy(card.bytes[sector].data(), image.bytes.data() + sector * kSectorBytes, kSectorBytes);
        }
        parts.askCard = true;
        source->add(QStringLiteral("sdb1"), QStringLiteral("CANON_DC"), card.bytes.size());
        writeCatalogue("ZelRaw.dll", record("WAV", "52494646", "Sound"));
        open();
    }
    QTreeWidgetItem* rowOf(const QString& text) const {
        const auto* tree = controller->foundPane_Sig->findChild<QTreeWidget*>();
        const auto rows = tree->findItems(text, Qt::MatchExactly);
        return rows.isEmpty() ? nullptr : rows.constFirst();
    }
};

TEST_F(CardInWindow, FilesOnlyTheDirectoryTellsOf_HaveALineAndTheirPartInSaveAll) {
    FatPlaces fat;
    fat.bits = 12;
    fat.clusterSectors = 1;
    fat.clusters = 400;
    MemoryCard image(fat.end());
    formatFat(image, fat);
    const QByteArray sound = wavFile(5000);
    std::memcpy(image.bytes.data() + fat.sectorOf(10) * 512, sound.constData(),
                static_cast<std::size_t>(sound.size()));
    std::memset(image.bytes.data() + fat.sectorOf(40) * 512, 't', 1024);
    putBytes(image, fat.root(), fatRow("VOICE   WAV", 10, 5000) + fatRow("NOTES   TXT", 40, 700));
    chainFat(image, fat, {10, 11, 12, 13, 14, 15, 16, 17, 18, 19});
    chainFat(image, fat, {40, 41});
    openWith(image);
    toFileTypes(kRawFileMode);
    scanToEnd();
    ASSERT_EQ(controller->itemCount(), 1U);
    ASSERT_TRUE(waitFor([this] { return rowOf(QStringLiteral("Only named on the card")) != nullptr; }));
    const QTreeWidgetItem* row = rowOf(QStringLiteral("Only named on the card"));
    EXPECT_EQ(row->text(1), QStringLiteral("1"));
    ASSERT_EQ(row->childCount(), 1);
    EXPECT_EQ(row->child(0)->text(0), QStringLiteral("NOTES.TXT"));
    EXPECT_EQ(row->data(0, Qt::AccessibleTextRole).toString(),
              QStringLiteral("1 more file that only the card's directory tells of"));

    // The item is found by the name it had, once the card has told it.
    auto* search = controller->foundPane_Sig->findChild<QLineEdit*>();
    const QAbstractItemModel* const shown = controller->imageBrowser_2->model();
    search->setText(QStringLiteral("no such name"));
    EXPECT_TRUE(waitFor([shown] { return shown->rowCount() == 0; }));
    search->setText(QStringLiteral("voice"));
    EXPECT_TRUE(waitFor([shown] { return shown->rowCount() == 1; }));
    search->clear();

    // In another order they are still all.
    controller->sortBox_Sig->setCurrentText(QStringLiteral("By name"));
    const QTemporaryDir destination;
    controller->_path_Sig->setText(destination.path());
    answers.press(QStringLiteral("OK"));
    click(controller->saveAllButton_Sig);
    EXPECT_EQ(contentsOf(destination.filePath(QStringLiteral("NOTES.TXT"))), QByteArray(700, 't'));
    EXPECT_EQ(contentsOf(destination.filePath(QStringLiteral("VOICE.WAV"))), sound);
    ASSERT_FALSE(answers.seen().empty());
    EXPECT_TRUE(answers.seen().back().text.contains(QStringLiteral("2 files were saved")))
        << answers.seen().back().text.toStdString();
}

TEST_F(CardInWindow, AnErasedCardIsSaidToBeSo_AndTheSearchGoesOn) {
    FatPlaces fat;
    MemoryCard image(fat.end());
    formatFat(image, fat);
    openWith(image);
    toFileTypes(kRawFileMode);
    Gate gate;
    card.beforeRead = gate.atRead(15'000);  // in the midst of the search
    bool offersToGoOn = true;
    when([this] { return controller->searchEndBar->isVisible(); },
         [&] {
             EXPECT_TRUE(controller->scanShown());
             offersToGoOn =
                 controller->searchEndBar->findChild<QPushButton*>(QStringLiteral("goOnButton"))->isVisible();
             gate.open();
         });
    bool goesOnBehindThePanel = true;
    answers.then([&](QDialog* panel) {
        goesOnBehindThePanel = controller->searchEndBar->isVisible();
        pressButton(panel, QStringLiteral("OK"));
    });
    click(controller->nextButton);
    ASSERT_TRUE(scanEnds());
    EXPECT_FALSE(offersToGoOn) << "with what goes on already";
    EXPECT_FALSE(goesOnBehindThePanel) << "a search that is over is neither stopped nor let go on";
    EXPECT_TRUE(controller->searchEndBar->isVisible());
    EXPECT_TRUE(controller->searchEndLabel->text().contains(QStringLiteral("This card reads as erased")))
        << controller->searchEndLabel->text().toStdString();
    EXPECT_TRUE(controller->searchEndLabel->text().startsWith(QStringLiteral("The search has completed")));
}

TEST_F(CardInWindow, OnceSomethingIsFound_NobodyIsToldThatNothingCanBe) {
    FatPlaces fat;
    MemoryCard image(fat.end());
    formatFat(image, fat);
    const QByteArray sound = wavFile(400);
    const std::size_t between = image.sectors() / 256 * 200 + 1;  // of the places that are looked at
    std::memcpy(image.bytes.data() + between * 512, sound.constData(),
                static_cast<std::size_t>(sound.size()));
    openWith(image);
    toFileTypes(kRawFileMode);
    scanToEnd();
    EXPECT_EQ(controller->itemCount(), 1U);
    EXPECT_FALSE(controller->searchEndLabel->text().contains(QStringLiteral("erased")))
        << controller->searchEndLabel->text().toStdString();
}

TEST_F(CardInWindow, ACardWithFilesIsNotSaidToBeErased) {
    FatPlaces fat;
    MemoryCard image(fat.end());
    formatFat(image, fat);
    for (std::size_t sector = fat.firstCluster(); sector < fat.end(); ++sector) {
        image.bytes[sector * 512] = 0x7A;
    }
    openWith(image);
    toFileTypes(kRawFileMode);
    scanToEnd();
    EXPECT_FALSE(controller->searchEndLabel->text().contains(QStringLiteral("erased")));
}

}  // namespace
}  // namespace vantor
