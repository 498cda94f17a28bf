// The destination folder and the help window.
#include <QFileInfo>
#include <algorithm>

#include "results/SizeForPeople.h"
#include "saving/DestinationCheck.h"
#include "window/MyTableController.h"
#include "window/widgets/Alerts.h"

namespace vantor {

namespace {

// The code of a folder chooser that was ended by its OK button.
constexpr int kChosen = 1;
const QString kLastDestination = QStringLiteral("folders/destination");

class FolderChooser : public QFileDialog {
  public:
    FolderChooser(QWidget* parent, const QString& folder)
        : QFileDialog(parent, QObject::tr("Choose the destination folder"), folder) {
        setObjectName(QStringLiteral("folderChooser"));
        setFileMode(Directory);
        setOption(ShowDirsOnly);
        setAcceptMode(AcceptOpen);
    }
};

// Empty where none is. Folders that a path passes through while it is typed stay selected, and stand first:
// the one that is meant lies deepest.
QString chosenFolder(const QFileDialog& chooser) {
    const QStringList folders = chooser.selectedFiles();
    const auto deepest = std::max_element(folders.cbegin(), folders.cend(),
                                          [](const auto& a, const auto& b) { return a.size() < b.size(); });
    return deepest == folders.cend() ? QString() : *deepest;
}

}  // namespace

QString MyTableController::devicePath() const {
    return QStringLiteral("/dev/r") + _disk_identifier->text();
}

void MyTableController::Browse_Path(QObject*) {
    browseForDestination();
}

void MyTableController::Browse_Path_Sig(QObject*) {
    browseForDestination();
}

void MyTableController::browseForDestination() {
    if (runModalForWindow(BrowseInfo_Window) != kButtonPressed) {
        return;
    }
    auto* chooser = new FolderChooser(window, folderToBeginWith());
    chooser->setAttribute(Qt::WA_DeleteOnClose);
    connect(chooser, &QDialog::finished, this, [this, chooser](int result) {
        const QString folder = chosenFolder(*chooser);
        if (result == QDialog::Accepted && !folder.isEmpty()) {
            acceptDestination(folder);
        }
    });
    chooser->open();
}

void MyTableController::openPanelDidEnd(QFileDialog* panel, int returnCode, void*) {
    panel->hide();
    const QString folder = chosenFolder(*panel);
    if (returnCode == kChosen && !folder.isEmpty()) {
        acceptDestination(folder);
    }
}

// That of the screen, or else the one chosen in an earlier run.
QString MyTableController::folderToBeginWith() const {
    const QString folder = pathInView()->text();
    return folder.isEmpty() ? rememberedFolder(kLastDestination) : folder;
}

// The folder that the user sees on the screens of the mode; the other field may hold that of an earlier
// search.
QLineEdit* MyTableController::pathInView() const {
    return activeSet() == ControlSet::Photo ? _path : _path_Sig;
}

// Both path fields get the folder, unless it lies on the medium that is to be recovered or nothing can be
// written into it.
bool MyTableController::acceptDestination(const QString& folder) {
    if (!mayBeDestination(folder)) {
        return false;
    }
    _path->setText(folder);
    _path_Sig->setText(folder);
    m_chosenFolder = folder;
    m_chosenFileSystem = fileSystemOf(folder);
    rememberFolder(kLastDestination, folder);
    showDestination();
    return true;
}

// Tells the user where it may not.
bool MyTableController::mayBeDestination(const QString& folder) {
    if (m_parts.isOnMedium && m_parts.isOnMedium(folder, devicePath())) {
        tellFailure(tr("This folder cannot be the destination."),
                    tr("It lies on the storage medium you are recovering from. Writing there would overwrite "
                       "the files you want back. Choose a folder on another disk."),
                    window);
        return false;
    }
    if (const auto refusal = refuseDestination(folder)) {
        tellFailure(tr("This folder cannot be the destination."),
                    *refusal + u' ' + tr("Choose another folder."), window);
        return false;
    }
    return true;
}

// Another disk may lie where that of the chosen folder was.
bool MyTableController::isStillThere(const QString& folder) const {
    return QFileInfo(folder).isDir() &&
           (folder != m_chosenFolder || fileSystemOf(folder) == m_chosenFileSystem);
}

// False, with a word to the user, when the destination has vanished or cannot be written any more.
bool MyTableController::destinationStillThere() {
    const QString folder = pathInView()->text();
    if (folder != m_chosenFolder || isStillThere(folder)) {
        return acceptDestination(folder);
    }
    showDestination();
    const QString why = QFileInfo(folder).isDir()
                            ? tr("The disk that held %1 was taken out. Put it back in, or change the folder.")
                            : tr("%1 was deleted or renamed, or its disk was taken out. Bring it back, or "
                                 "change the folder.");
    tellFailure(tr("The destination is no longer there."), why.arg(folder), window);
    return false;
}

// Where saved files go, and how much room is there.
void MyTableController::showDestination() {
    const QString folder = pathInView()->text();
    const auto free = m_parts.freeBytes ? m_parts.freeBytes(folder) : std::nullopt;
    QString text = tr("No folder for saved files is chosen yet");
    if (!folder.isEmpty()) {
        text = !isStillThere(folder) ? tr("Saved files go to %1, which is not there").arg(folder)
               : free                ? tr("Saved files go to %1 (%2 free)").arg(folder, sizeForPeople(*free))
                                     : tr("Saved files go to %1").arg(folder);
    }
    for (QLabel* label : {destinationLabel, destinationLabel_Sig}) {
        label->setText(text);
        label->setToolTip(text);
    }
    for (QPushButton* button : {_open_folder, _open_folder_Sig}) {
        button->setEnabled(!folder.isEmpty());
    }
}

// Asks for a destination at once; "" when the user did not choose one.
QString MyTableController::askDestination() {
    return runModalForWindow(BrowseInfo_Window) == kButtonPressed ? chooseDestination() : QString();
}

QString MyTableController::chooseDestination() {
    FolderChooser chooser(window, folderToBeginWith());
    if (chooser.exec() != QDialog::Accepted) {
        return {};
    }
    const QString folder = chosenFolder(chooser);
    return !folder.isEmpty() && acceptDestination(folder) ? folder : QString();
}

void MyTableController::openDestination() {
    const QString folder = pathInView()->text();
    if (folder.isEmpty() || (QFileInfo(folder).isDir() && m_parts.openDocument(folder))) {
        return;
    }
    const QString why = QFileInfo(folder).isDir() ? tr("This desktop has no program that shows folders.")
                                                  : tr("It is not there any more.");
    tellFailure(tr("The folder could not be opened."), why + u'\n' + folder, window);
}

void MyTableController::Help_btn(QObject*) {
    runModalForWindow(HelpWindow);
}

}  // namespace vantor
