// What the program knows again when it is started anew, and how it forgets it.
#include <QFileInfo>
#include <QSettings>

#include "window/MyTableController.h"
#include "window/browser/DetailsHeader.h"
#include "window/saving/RememberedChoices.h"
#include "window/widgets/Alerts.h"

namespace vantor {

namespace {

const QString kGeometry = QStringLiteral("window/geometry");
const QString kDetails = QStringLiteral("results/details");
const QString kColumns = QStringLiteral("results/columns");
const QString kRawColumns = QStringLiteral("results/columnsOfFiles");
const QString kPhotoSplitter = QStringLiteral("results/photoSplitter");
const QString kSplitter = QStringLiteral("results/splitter");

}  // namespace

// What a file of settings holds is looked at before it counts: others may have written it.
void MyTableController::recall() {
    if (!m_settings) {
        return;
    }
    window->restoreGeometry(m_settings->value(kGeometry).toByteArray());
    rawSplitter->restoreState(m_settings->value(kSplitter).toByteArray());
    photoSplitter->restoreState(m_settings->value(kPhotoSplitter).toByteArray());
    for (const auto& [key, browser] :
         {std::pair{kColumns, imageBrowser}, std::pair{kRawColumns, imageBrowser_2}}) {
        browser->detailsHeader()->recall(m_settings->value(key).toByteArray());
    }
    showDetails(m_settings->value(kDetails).toBool());
    m_desk->choices() = recalledChoices(*m_settings);
}

void MyTableController::remember() {
    if (!m_settings) {
        return;
    }
    m_settings->setValue(kGeometry, window->saveGeometry());
    m_settings->setValue(kSplitter, rawSplitter->saveState());
    m_settings->setValue(kPhotoSplitter, photoSplitter->saveState());
    m_settings->setValue(kColumns, imageBrowser->detailsHeader()->saveState());
    m_settings->setValue(kRawColumns, imageBrowser_2->detailsHeader()->saveState());
    m_settings->setValue(kDetails, imageBrowser->detailsShown());
    rememberChoices(*m_settings, m_desk->choices());
    m_settings->sync();
}

// From now on nothing is remembered of this run either.
void MyTableController::forgetRemembered() {
    if (m_settings) {
        m_settings->clear();
        m_settings->sync();
        m_settings.reset();
    }
    m_desk->choices() = {};
    showItemCounts();
    runAlert({QStringLiteral("\n") + tr("The settings are forgotten."),
              tr("Window, saving options and folders are those of a first start when the program is started "
                 "again.")});
}

// "" where there is none, or none any more.
QString MyTableController::rememberedFolder(const QString& key) const {
    const QString folder = m_settings ? m_settings->value(key).toString() : QString();
    return QFileInfo(folder).isDir() ? folder : QString();
}

void MyTableController::rememberFolder(const QString& key, const QString& folder) {
    if (m_settings) {
        m_settings->setValue(key, folder);
    }
}

}  // namespace vantor
