// What the window is given from outside: the real things in the program, scripted ones in the tests.
#pragma once

#include <QMimeData>
#include <QString>
#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

#include "media/MediaSource.h"
#include "saving/FreeSpace.h"
#include "scan/ScanSession.h"
#include "window/preview/FilePreviewer.h"
#include "window/preview/Movie.h"
#include "window/preview/PreviewObstacle.h"

namespace vantor {

struct ProgramParts {
    std::shared_ptr<MediaSource> media;
    MediumOpener openMedium;
    // The medium itself, for a copy of it; `also` ends the waits beside what ends those of openMedium. None:
    // media cannot be copied.
    std::function<std::unique_ptr<BlockSource>(const QString& devicePath, StopRequest also)> openSource;
    // Why it could not open the medium when it was last asked, and what helps; "" when that is not known.
    std::function<QString()> whyNotOpened;
    // To examine found items while others read the medium; none: nothing is examined.
    MediumOpener openBeside;
    Thumbnailer thumbnailer;
    PicturePreviewer picture;  // none: every preview is an icon
    FileLooker look;           // for the cells of the browsers; none: they show icons
    PreviewObstacle obstacle;  // none: nothing is said where a picture is missing
    MovieLoader movie;         // none: every preview is a picture
    MovieLoader largeMovie;    // for the whole window; none: `movie` does
    MovieLoader sound;         // what sounds of a file that is shown as a picture; none: nothing does
    QString resourcesFolder;
    // Where previews of true length may lie; none: where the other preview files do.
    QString privateFolder;

    // Where the program keeps what it remembers from one run to the next; none: it remembers nothing.
    QString settingsFile;
    // Where a search that is to be remembered is kept; none: no search can be.
    QString stateFolder;

    // True when files written into the folder would land on the medium behind "/dev/r" + identifier.
    std::function<bool(const QString& folder, const QString& devicePath)> isOnMedium;
    // Whether something wrote to the image file behind "/dev/r" + identifier since its search began.
    std::function<bool(const QString& devicePath)> wasWrittenTo;
    // Bytes that may still be written into the folder; nothing when that is not known.
    std::function<std::optional<std::uint64_t>(const QString& folder)> freeBytes = freeBytesAt;
    // Hands over files that the user drags out of the window; none: the toolkit does.
    std::function<void(std::unique_ptr<QMimeData> files)> drag;
    // Whether the medium behind "/dev/r" + identifier can be ejected, and ejecting it: "" or why that failed.
    // Both take seconds at most, the second as long as the user is asked for consent. None: it cannot.
    std::function<bool(const QString& devicePath)> canEject;
    std::function<QString(const QString& devicePath)> eject;
    // Shows a document or a folder in its default application; false when there is none.
    std::function<bool(const QString& path)> openDocument;
    // A word to a user who looks at something else while a long search ends; none: nothing is said.
    std::function<void(const QString& title, const QString& text)> notify;
    std::chrono::milliseconds longSearch{30'000};
    // How far a search is, from 0 to 1, for the desktop's task bar; nothing when none runs. None: not shown.
    std::function<void(std::optional<double> share)> showTaskProgress;
    // Whether searches read the card's own directories too.
    bool askCard = false;
    // Ends the program.
    std::function<void()> terminate;
};

}  // namespace vantor
