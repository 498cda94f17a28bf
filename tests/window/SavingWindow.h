// The results screens with items to save, and a destination for them.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QPushButton>

#include "results/RecoveryMode.h"
#include "tests/window/WindowTest.h"

namespace vantor {

class Saving : public WindowTest {
  protected:
    void openPhotoResults() {
        openWithCard();
        toRange(kPhotoMode);
        scanToEnd();
    }
    void destinationIs(const QString& path) {
        controller->_path->setText(path);
        controller->_path_Sig->setText(path);
    }
    void saveAllAndAnswer(const QString& button = QStringLiteral("OK")) {
        answers.press(button);
        click(controller->saveAllButton);
    }
    void changeOptions(const std::function<void(QDialog*)>& change) {
        answers.then([change](QDialog* panel) {
            ASSERT_EQ(panel->objectName(), QStringLiteral("savingOptions"));
            change(panel);
            pressButton(panel, QStringLiteral("OK"));
        });
        click(controller->savingOptionsButton);
    }
    static void tick(QDialog* panel, const char* box) {
        panel->findChild<QCheckBox*>(QLatin1String(box))->click();
    }
    static void chooseFolders(QDialog* panel, SaveFolders folders) {
        auto* box = panel->findChild<QComboBox*>(QStringLiteral("foldersBox"));
        box->setCurrentIndex(box->findData(static_cast<int>(folders)));
    }
    QStringList savedFiles() const {
        QStringList files;
        const QDir root(destination.path());
        for (const QString& type : root.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
            for (const QString& name : QDir(root.filePath(type)).entryList(QDir::Files)) {
                files << type + u'/' + name;
            }
        }
        return files;
    }

    QTemporaryDir destination;
};

}  // namespace vantor
