// Dragging found items out into a file manager, and saving one under a name of the user's.
//
// There are two ways, and only one of them is prescribed: imageBrowser_writeItemsAtIndexes() is what a
// browser asks that hands its items over itself, and it writes nothing and gives 0. What is here is the
// program's own: the browser tells that items are dragged, they are written as whole files into a private
// folder first, and then those files are what is dragged.
#include <QApplication>
#include <QCursor>
#include <QDrag>
#include <QEventLoop>
#include <QFileDialog>
#include <QMimeData>
#include <QToolTip>
#include <QUrl>

#include "results/CardIndex.h"
#include "results/MyImageObject.h"
#include "results/SizeForPeople.h"
#include "saving/SaveJob.h"
#include "saving/SavedName.h"
#include "window/MyTableController.h"
#include "window/preview/DraggedFiles.h"

namespace vantor {

namespace {

constexpr int kLookMilliseconds = 20;
constexpr int kLooksBehindWords = 25;  // a preview begins sooner
// Left free where the files lie.
constexpr std::uint64_t kLeastFreeBytes = std::uint64_t{256} << 20;

// Near the pointer, where the user looks; a dialog would end the drag.
void tell(QWidget* over, const QString& words) {
    QToolTip::showText(QCursor::pos(), words, over);
}

bool isHeld() {
    return (QGuiApplication::mouseButtons() & Qt::LeftButton) != 0;
}

}  // namespace

void MyTableController::dragOut(ImageBrowserView* browser, const QList<qsizetype>& indexes) {
    if (session || m_ending || indexes.isEmpty()) {
        return;
    }
    if (m_dragged->isRunning() || m_desk->isRunning()) {
        tellOfDragging(browser, tr("Other files are being written. Drag again in a moment."));
        return;
    }
    SaveRequest request;
    std::uint64_t bytes = 0;
    for (const qsizetype index : indexes) {
        const auto at = static_cast<std::size_t>(index);
        if (auto item = itemAt(at)) {
            bytes += m_looks->facets().bytesOf(at);
            request.items.push_back({at, std::move(item)});
        }
    }
    const auto free = m_parts.freeBytes ? m_parts.freeBytes(m_wholeFolder) : std::nullopt;
    if (free && *free < bytes + kLeastFreeBytes) {
        tellOfDragging(browser,
                       tr("There is not enough room to get %1 ready for dragging. Save the files instead.")
                           .arg(sizeForPeople(bytes)));
        return;
    }
    request.card = card();
    request.openMedium = [open = m_parts.openBeside ? m_parts.openBeside : m_parts.openMedium,
                          device = devicePath()] { return open ? open(device) : nullptr; };
    m_dragged->prepare(std::move(request));
    if (!waitForDraggedFiles(browser)) {
        return;
    }
    const QStringList paths = m_dragged->pathsOf(indexes);
    if (paths.isEmpty()) {
        const QString why = m_dragged->whyNot();
        tellOfDragging(browser,
                       why.isEmpty() ? tr("These files cannot be read from the storage medium.") : why);
        return;
    }
    auto mime = std::make_unique<QMimeData>();
    QList<QUrl> urls;
    for (const QString& path : paths) {
        urls.append(QUrl::fromLocalFile(path));
    }
    mime->setUrls(urls);
    QToolTip::hideText();
    if (m_parts.drag) {
        m_parts.drag(std::move(mime));
    } else {
        auto* const drag = new QDrag(browser);
        drag->setMimeData(mime.release());
        drag->exec(Qt::CopyAction);
    }
    // Who dropped them need not count them.
    if (const qsizetype missing = indexes.size() - paths.size(); missing > 0 && !m_ending) {
        const auto number = [](qsizetype count) {
            return numberForPeople(static_cast<std::uint64_t>(count));
        };
        tellOfDragging(browser, tr("%1 of the %2 files could not be dragged.", nullptr,
                                   pluralOf(static_cast<std::uint64_t>(missing)))
                                        .arg(number(missing), number(indexes.size())) +
                                    u'\n' + m_dragged->whyNot());
    }
}

// The toolkit takes the words away when the button is let go, which is when there is time to read them, and
// when a sheet opens, as it does for the preview of what was just selected.
void MyTableController::tellOfDragging(QWidget* over, const QString& words) {
    tell(over, words);
    delete m_dragWords;
    m_dragWords = new QTimer(over);
    m_dragWords->setObjectName(QStringLiteral("dragWords"));
    connect(m_dragWords, &QTimer::timeout, over, [this, over, words, looks = 0]() mutable {
        if (isHeld() || session) {
            looks = 0;
        } else if (looks++ == 0) {
            tell(over, words);
        } else if (looks == kLooksBehindWords) {
            m_dragWords->deleteLater();
        }
    });
    m_dragWords->start(kLookMilliseconds);
}

// Until they are there, as long as the button is held; who lets go early finds them ready the next time.
bool MyTableController::waitForDraggedFiles(QWidget* browser) {
    if (!m_dragged->isRunning()) {
        return true;
    }
    tell(browser, tr("Getting the files ready…"));
    QEventLoop loop;
    QTimer look;
    connect(&look, &QTimer::timeout, &loop, [&] {
        if (!m_dragged->isRunning() || !isHeld() || m_ending) {
            loop.quit();
        }
    });
    look.start(kLookMilliseconds);
    loop.exec();
    if (m_ending || !isHeld()) {
        if (m_dragged->isRunning() && !m_ending) {
            tellOfDragging(browser, tr("The files are still being written. Drag them again in a moment."));
        }
        return false;
    }
    return true;
}

// One item, into a folder and under a name of its own.
void MyTableController::saveItemAs(qsizetype index) {
    const auto item = itemAt(static_cast<std::size_t>(index));
    if (!item || session || m_desk->isRunning()) {
        return;
    }
    const ItemFacts facts = factsOfItem(index);
    const QString name = facts.original ? safeCardName(facts.original->name) : item->imageTitle();
    QFileDialog chooser(window, tr("Save as"), folderToBeginWith());
    chooser.setAcceptMode(QFileDialog::AcceptSave);
    // What is there stays: a name that is taken gets a number.
    chooser.setOption(QFileDialog::DontConfirmOverwrite);
    chooser.selectFile(name);
    if (chooser.exec() != QDialog::Accepted || chooser.selectedFiles().isEmpty()) {
        return;
    }
    const QFileInfo wanted(chooser.selectedFiles().constFirst());
    if (mayBeDestination(wanted.absolutePath())) {
        m_desk->saveAs(index, wanted.absolutePath(), wanted.fileName());
        m_looks->tryAgain();
    }
}

}  // namespace vantor
