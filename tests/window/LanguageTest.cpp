// The window in another language: every screen says its words in it.
#include <QTranslator>

#include "results/RecoveryMode.h"
#include "tests/window/WindowTest.h"

namespace vantor {
namespace {

class InGerman : public WindowTest {
  protected:
    InGerman() {
        EXPECT_TRUE(m_texts.load(QStringLiteral("vantor_de"),
                                 QStringLiteral(VANTOR_BINARY_DIR "/share/vantor-recovery/languages")));
        QCoreApplication::installTranslator(&m_texts);
    }
    ~InGerman() override { QCoreApplication::removeTranslator(&m_texts); }

    QString heading(int column) const {
        return controller->idTableView->model()->headerData(column, Qt::Horizontal).toString();
    }

  private:
    QTranslator m_texts;
};

TEST_F(InGerman, TheMediaScreen) {
    openWithCard();
    EXPECT_EQ(controller->nextButton->text(), QStringLiteral("&Weiter ›"));
    EXPECT_EQ(controller->_rec_mode_Photo->text(), QStringLiteral("Fotos"));
    EXPECT_EQ(heading(0), QStringLiteral("Datenträger"));
    EXPECT_TRUE(controller->_help_info->text().startsWith(QStringLiteral("\nWählen Sie in der Liste")));
}

TEST_F(InGerman, BothRangeScreens) {
    openWithCard();
    toRange(kPhotoMode);
    EXPECT_EQ(controller->_entire_disk_rd->text(), QStringLiteral("Ganzer Datenträger"));
    EXPECT_EQ(controller->_disk->text(), QStringLiteral("Datenträger\t:"));
    EXPECT_EQ(controller->_Search_Type->text(), QStringLiteral("Suche: Fotos wiederherstellen"));
    click(controller->backButton);
    toRange(kVideoMode);
    EXPECT_EQ(controller->_entire_disk_rd_Sig->text(), QStringLiteral("Ganzer Datenträger"));
    EXPECT_EQ(controller->_Search_Type->text(), QStringLiteral("Suche: Videos wiederherstellen"));
}

TEST_F(InGerman, TheFileTypes) {
    openWithCard();
    toFileTypes(kRawFileMode);
    EXPECT_EQ(controller->_select_unselect_Chk->text(), QStringLiteral("&Alle auswählen"));
}

TEST_F(InGerman, AnAlertAndItsAnswers) {
    openWithCard();
    answers.then([](QDialog* dialog) { pressButton(dialog, QStringLiteral("Nein")); });
    click(controller->exitButton);
    ASSERT_EQ(answers.seen().size(), 1U);
    EXPECT_EQ(answers.seen().front().text,
              QStringLiteral("\nMöchten Sie „Vantor - Memory Card Recovery“ wirklich beenden?"));
    EXPECT_EQ(terminations, 0);
}

TEST_F(InGerman, TheResults) {
    openWithCard();
    toRange(kPhotoMode);
    scanToEnd();
    EXPECT_EQ(controller->searchEndLabel->text(), QStringLiteral("Die Suche ist abgeschlossen."));
    EXPECT_EQ(controller->photoCountLabel->text().section(u',', 0, 0), QStringLiteral("3 Funde"));
    EXPECT_EQ(controller->saveAllButton->text(), QStringLiteral("Alle sp&eichern …"));
}

}  // namespace
}  // namespace vantor
