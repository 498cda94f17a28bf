// The preview of the selected item: copy, then picture, icon or movie.
#include <QEventLoop>
#include <QFileInfo>

#include "catalogue/FileKind.h"
#include "catalogue/NumberText.h"
#include "results/ItemWords.h"
#include "results/RecoveryMode.h"
#include "results/SizeForPeople.h"
#include "saving/FreeSpace.h"
#include "window/MyTableController.h"
#include "window/preview/CellPictures.h"
#include "window/preview/DocumentFrame.h"
#include "window/preview/MovieControls.h"
#include "window/preview/PieceStrip.h"
#include "window/preview/PreviewFile.h"
#include "window/preview/ViewerDesk.h"
#include "window/preview/WholePreview.h"
#include "window/widgets/Sheet.h"

namespace vantor {

namespace {

constexpr QSize kPreviewSize{200, 200};
constexpr int kPollMilliseconds = 5;

// Through text, as the sectors travel: values beyond a signed 64-bit number come back as the largest one.
std::uint64_t sectorThroughText(const QVariant& sector) {
    return static_cast<std::uint64_t>(textToInt64(QString::number(sector.toULongLong())));
}

QString lastComponent(const QString& path) {
    return path.mid(path.lastIndexOf(u'/') + 1);
}

}  // namespace

// Runs the work on a thread of its own while the window lives on.
void MyTableController::runBeside(const std::function<void()>& work) {
    m_besideRunning = true;
    mPreviewThread = std::thread([this, work] {
        work();
        m_besideRunning = false;
    });
    QEventLoop loop;
    QTimer poll;
    connect(&poll, &QTimer::timeout, &loop, [&] {
        if (!m_besideRunning) {
            loop.quit();
        }
    });
    poll.start(kPollMilliseconds);
    loop.exec();
    // A loop that ended with the program leaves a thread that may hang; the end of the program sees to it.
    if (!m_besideRunning) {
        mPreviewThread.join();
    }
}

void MyTableController::CreateFile_QuickLook_View(const QVariantList& item) {
    const QString path = item.at(0).toString();
    const auto request = std::make_shared<PreviewFileRequest>();
    request->openMedium = [open = m_parts.openMedium, device = devicePath()] {
        return open ? open(device) : nullptr;
    };
    request->previousFile = Preview_Temp_File;
    request->newFile = previewFilePath(m_previewFolder, path);
    request->start = sectorThroughText(item.at(1));
    request->end = sectorThroughText(item.at(2));
    m_nextWhole = wholePreviewOf(*request);
    const auto mediumOpened = std::make_shared<bool>(false);

    bool wantedLarge = false;
    session = true;
    {
        const SheetSession sheet(ClearPreview_Window, controlPanel, exitButton);
        m_looks->rest(true);
        m_pictures->rest(true);
        runBeside([this, request, mediumOpened] { *mediumOpened = makePreviewFile(*request, stop_now); });
        if (m_ending) {
            return;
        }
        m_looks->rest(false);
        m_pictures->rest(false);
        if (*mediumOpened) {
            m_looks->tryAgain();
            m_pictures->tryAgain();
            Preview_Temp_File = request->newFile;
            takeWholePreview(m_nextWhole);
        }
        m_nextWhole.reset();
        QuickLook_Preview_Thread(path);
        if (m_ending) {
            return;
        }
        if (*mediumOpened) {
            m_previewedName = lastComponent(path);
            fillWholePreview();
        } else {
            showThatTheMediumIsGone();
        }
        // The copy began with the first of two clicks.
        wantedLarge = sheet.wasDoubleClicked(imageBrowser_2->viewport());
    }
    session = false;
    if (wantedLarge) {
        openInViewer(Prev_Index);
    }
    // A scan that still runs shows its end itself, once it has let the medium go.
    if (stop_now == 1 && stop_screen_already_show == 0 && !scanRunning()) {
        Final_or_Stop_Screen();
    }
}

// The true bytes of the item on preview, as the file behind the prescribed copy.
std::shared_ptr<WholePreview> MyTableController::wholePreviewOf(PreviewFileRequest& copy) {
    WholePreviewRequest request;
    if (const auto item = itemAt(Prev_Index); item && item->File_Start_Sector() == copy.start) {
        request.type = item->fileType();
        request.carved = item->carved();
        request.hints.card = card();
        request.hints.mend = m_mended->of(*item);
    }
    m_previewedMend = request.hints.mend;
    request.start = copy.start;
    request.previewFile = copy.newFile;
    request.folder = m_wholeFolder;
    request.freeBytes = freeBytesAt;
    auto whole = std::make_shared<WholePreview>();
    // What a scan is told to stop is no word for those who read on.
    copy.behind = [request, whole, open = m_parts.openBeside, device = devicePath()](
                      std::unique_ptr<SectorReader> medium, bool faithful) mutable {
        request.faithful = faithful;
        if (open) {
            medium = open(device);
        }
        whole->begin(request, std::move(medium));
    };
    return whole;
}

void MyTableController::takeWholePreview(std::shared_ptr<WholePreview> whole) {
    if (m_whole) {
        m_whole->cancel();
    }
    m_whole = std::move(whole);
}

// The rest of a long file comes while its beginning is looked at; what needed the rest for its picture is
// shown once more.
void MyTableController::fillWholePreview() {
    if (!m_whole->isToBeFilled()) {
        return;
    }
    ++m_filling;
    const PicturePreviewer read = mMovieView->movie() == nullptr ? m_parts.picture : nullptr;
    const auto work = [this, whole = m_whole, name = m_previewedName, read]() mutable {
        QImage picture;
        if (whole->fill() && read) {
            picture = read(whole->path(), kPreviewSize);
        }
        QMetaObject::invokeMethod(
            this,
            [this, picture, name, shown = std::weak_ptr(whole)] {
                if (!m_ending && !picture.isNull() && m_whole && shown.lock() == m_whole &&
                    mMovieView->movie() == nullptr) {
                    showPicture(QPixmap::fromImage(framedAsDocument(picture, kPreviewSize)), name);
                    m_obstacle.clear();
                    showPreviewFacts();
                }
            },
            Qt::QueuedConnection);
        whole.reset();
        --m_filling;
    };
    // A medium that hangs keeps it; the end of the program sees to it.
    std::thread(work).detach();
}

QString MyTableController::shownFileOf(const QString& file) const {
    const QString whole = m_whole && file == Preview_Temp_File ? m_whole->path() : QString();
    return whole.isEmpty() ? file : whole;
}

// Beside what stays in the pane of the item before.
void MyTableController::showThatTheMediumIsGone() {
    m_obstacle.clear();
    const QString gone = tr("The storage medium cannot be read.");
    previewFacts->setText(m_previewedName.isEmpty()
                              ? gone
                              : gone + u' ' + tr("This is still the preview of %1.").arg(m_previewedName));
}

// Nothing is on preview any more.
void MyTableController::emptyPreviewPane() {
    closemovie_Win();
    soundControls->setMovie(nullptr);
    _QuickLook_View->setText(tr("Select an item to preview it."));
    _QuickLook_View->setAccessibleName({});
    m_obstacle.clear();
    previewFacts->clear();
    m_previewedMend.reset();
    m_pieceStrip->setPieces({});
    takeWholePreview(nullptr);
}

void MyTableController::QuickLook_Preview_Thread(const QString& itemPath) {
    setQuickLook_View_File(Preview_Temp_File, lastComponent(itemPath));
    const bool isSound = kindOfExtension(pathExtension(Preview_Temp_File)) == FileKind::Sound;
    if (!m_ending && isSound && Recovery_MODE != kVideoMode) {
        soundControls->setMovie(openBeside(m_parts.sound, shownFileOf(Preview_Temp_File)));
    }
    if (!m_ending) {
        showPreviewFacts();
    }
}

// The size that saving would give the file, and how long sound is. An item without a picture may be a broken
// one: what is known of that is told as soon as it is.
void MyTableController::showPreviewFacts() {
    const QFileInfo file(Preview_Temp_File);
    if (!file.isFile()) {
        previewFacts->clear();
        return;
    }
    const Movie* const sound = soundControls->movie();
    const auto bytes = m_whole ? m_whole->bytes() : std::nullopt;
    QString size = sizeForPeople(bytes.value_or(static_cast<std::uint64_t>(file.size())));
    if (bytes && !m_whole->lengthIsKnown()) {
        size = tr("more than %1").arg(size);
    }
    QString facts = sound != nullptr && sound->durationMs() > 0
                        ? tr("%1, %2").arg(size, timeText(sound->durationMs()))
                        : size;
    if (!m_obstacle.isEmpty()) {
        if (const ItemFacts known = factsOfItem(Prev_Index); known.soundness) {
            facts = QObject::tr("%1 · %2").arg(facts, stateWords(known));
        }
        facts += u'\n' + m_obstacle;
    }
    previewFacts->setText(facts);
    showPieces();
}

// Null as well when the program ends meanwhile.
std::unique_ptr<Movie> MyTableController::openBeside(const MovieLoader& loader, const QString& file) {
    if (!loader || !QFileInfo(file).isFile()) {
        return nullptr;
    }
    // Shared with a thread that may be left behind when the program ends.
    const auto opened = std::make_shared<std::unique_ptr<Movie>>();
    runBeside([loader, file, opened] { *opened = loader(file); });
    return m_ending ? nullptr : std::move(*opened);
}

void MyTableController::setQuickLook_View_File(const QString& file, const QString& file_Name) {
    if (file_Name.isNull()) {
        return;
    }
    if (Recovery_MODE != kVideoMode) {
        Image_Preview(file, file_Name);
        return;
    }
    _QuickLook_View_Box->setTitle(file_Name);
    m_obstacle.clear();
    std::unique_ptr<Movie> movie = openBeside(m_parts.movie, shownFileOf(file));
    if (m_ending) {
        return;
    }
    _QuickLook_View->setHidden(movie != nullptr);
    mMovieView->setHidden(movie == nullptr);
    if (movie) {
        mMovieView->setMovie(std::move(movie));
    } else {
        Image_Preview(file, file_Name);
    }
}

void MyTableController::setQuickLook_View(const QString& file) {
    setQuickLook_View_File(file, lastComponent(file));
}

void MyTableController::Image_Preview(const QString& file, const QString& file_Name) {
    if (file.isEmpty()) {
        return;
    }
    const auto picture = std::make_shared<QImage>();
    if (m_parts.picture && QFileInfo(file).isFile()) {
        runBeside([read = m_parts.picture, shown = shownFileOf(file), picture] {
            *picture = read(shown, kPreviewSize);
        });
    }
    if (m_ending) {
        return;
    }
    m_obstacle = picture->isNull() ? obstacleFor(file) : QString();
    if (!picture->isNull()) {
        showPicture(QPixmap::fromImage(framedAsDocument(*picture, kPreviewSize)), file_Name);
        return;
    }
    const QString extension = pathExtension(file);
    QPixmap icon = iconForFileType(extension).pixmap(kPreviewSize);
    // The desktop's icons may end at a smaller size.
    if (!icon.isNull() && icon.size() != kPreviewSize) {
        icon = icon.scaled(kPreviewSize, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    }
    showPicture(icon, file_Name);
}

// Of a file of which a picture is expected, also where nothing but the file itself stands in the way.
QString MyTableController::obstacleFor(const QString& file) const {
    const QString obstacle = m_parts.obstacle ? m_parts.obstacle(file) : QString();
    const FileKind kind = kindOfExtension(pathExtension(file));
    const bool expected = kind == FileKind::Picture || kind == FileKind::Video;
    return obstacle.isEmpty() && expected ? ViewerDesk::tr("No picture of this file can be shown.")
                                          : obstacle;
}

void MyTableController::showPicture(const QPixmap& picture, const QString& title) {
    _QuickLook_View_Box->setTitle(title);
    _QuickLook_View->setPixmap(picture);
    _QuickLook_View->setAccessibleName(tr("Preview of %1").arg(title));
}

}  // namespace vantor
