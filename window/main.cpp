// The program with its window.
#include <QApplication>
#include <QScreen>
#include <QStandardPaths>
#include <algorithm>
#include <atomic>
#include <cstdio>
#include <cstdlib>

#include "catalogue/Language.h"
#include "catalogue/ResourcesFolder.h"
#include "decode/DecodePool.h"
#include "decode/EvidenceHelper.h"
#include "filesystem/PresentVolumes.h"
#include "media/PathArgument.h"
#include "media/PlatformMedia.h"
#include "media/ProcessManners.h"
#include "media/UdisksEjector.h"
#include "saving/DestinationCheck.h"
#include "window/CommandLine.h"
#include "window/MyTableController.h"
#include "window/ProgramTitle.h"
#include "window/keeping/SearchMemory.h"
#include "window/preview/FilePreviewer.h"
#include "window/preview/SoundMovie.h"
#include "window/widgets/DesktopLook.h"
#include "window/widgets/DesktopTelling.h"
#include "window/widgets/OpenDocument.h"
#include "window/widgets/Theme.h"

namespace {

using namespace vantor;

// How long a device may take to let go when the program ends.
constexpr std::chrono::milliseconds kLastPatience{500};
// Frames larger than this are scaled down where they are decoded.
constexpr QSize kLargestFrame{960, 540};
constexpr QSize kLargestViewedFrame{1920, 1080};
constexpr int kExitBadUsage = 2;

ProgramParts platformParts(const std::shared_ptr<const std::atomic<const MyTableController*>>& controller,
                           const std::shared_ptr<const std::atomic<bool>>& leaving) {
    ProgramParts parts;
    parts.media = makePlatformMediaSource(presentFileSystems);
    const auto refusal = std::make_shared<LastRefusal>();
    const auto stopped = [controller] {
        const MyTableController* const running = controller->load();
        return running != nullptr && running->stop_now == 1;
    };
    parts.openMedium = makeMediumOpener(*parts.media, stopped, refusal);
    parts.openSource = makeSourceOpener(*parts.media, {}, refusal);
    parts.whyNotOpened = [refusal] { return wordsForRefusal(refusal->get()); };
    // What a scan is told to stop is no word for those who read beside it.
    parts.openBeside = makeMediumOpener(*parts.media, [leaving] { return leaving->load(); });
    const auto pool = std::make_shared<DecodePool>();
    parts.thumbnailer = [pool](const QByteArray& encoded, const QString& extension) {
        return pool->thumbnail(encoded, extension);
    };
    const auto desktop = std::make_shared<const DesktopThumbnailers>();
    parts.picture = makeFilePreviewer(pool, desktop);
    parts.look = makeFileLooker(pool, desktop);
    parts.obstacle = makePreviewObstacle(pool, desktop);
    const HelperMovieOptions playing{makeDesktopSoundDevice, {}};
    parts.sound = [playing](const QString& file) { return SoundMovie::open(file, {}, playing); };
    parts.movie = [playing](const QString& file) { return openMovieOrSound(file, kLargestFrame, playing); };
    parts.largeMovie = [playing](const QString& file) {
        return openMovieOrSound(file, kLargestViewedFrame, playing);
    };
    parts.resourcesFolder = resourcesFolder();
    parts.askCard = true;
    // On a disk: what is looked at may be as long as a movie.
    parts.privateFolder = QStandardPaths::writableLocation(QStandardPaths::CacheLocation);
    parts.settingsFile = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                         QStringLiteral("/vantor-recovery.conf");
    parts.stateFolder = stateFolder();
    parts.isOnMedium = [targets = parts.media->targets()](const QString& folder, const QString& devicePath) {
        const auto target = targets->find(devicePath.mid(QStringLiteral("/dev/r").size()));
        const QStringList nodes = target ? nodesOf(*target, mediaPresent) : QStringList();
        return std::any_of(nodes.begin(), nodes.end(),
                           [&folder](const QString& node) { return destinationIsOnMedium(folder, node); });
    };
    parts.wasWrittenTo = [targets = parts.media->targets()](const QString& devicePath) {
        const auto target = targets->find(devicePath.mid(QStringLiteral("/dev/r").size()));
        return target && target->image && target->image->wasWrittenTo();
    };
    const auto ejector = std::make_shared<UdisksEjector>();
    const auto nodeOf = [targets = parts.media->targets()](const QString& devicePath) {
        const auto target = targets->find(devicePath.mid(QStringLiteral("/dev/r").size()));
        return target ? target->path : QString();
    };
    parts.canEject = [ejector, nodeOf](const QString& device) { return ejector->canEject(nodeOf(device)); };
    parts.eject = [ejector, nodeOf](const QString& device) { return ejector->eject(nodeOf(device)); };
    parts.openDocument = [](const QString& path) { return openInDesktop(path); };
    parts.notify = [](const QString& title, const QString& text) { notifyDesktop(title, text); };
    parts.showTaskProgress = [](std::optional<double> share) { showTaskProgress(share); };
    parts.terminate = [] { QCoreApplication::exit(0); };
    return parts;
}

// Small screens get a window that fits; all others the size it was drawn at.
void fitToScreen(QWidget* window) {
    const QRect room = window->screen()->availableGeometry();
    window->resize(window->size().boundedTo(room.size() * 0.96));
}

// A process lives, and its windows stay, until the last of its threads is back from the device; nobody who
// has left the program wants to look at them.
void leaveTheScreen() {
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        window->hide();
    }
    QApplication::sync();
}

// The user's language, or the exit code where it is none of the program's.
std::optional<int> speakAsAsked(const AskedLanguage& arguments) {
    const auto refusal = speak(arguments.language, resourcesFolder());
    if (refusal) {
        std::fprintf(stderr, "%s\n", qPrintable(*refusal));
    }
    return refusal ? std::optional(kExitBadUsage) : std::nullopt;
}

int print(const CommandLine& line) {
    std::fprintf(*line.exitCode == 0 ? stdout : stderr, "%s\n", qPrintable(line.message));
    return *line.exitCode;
}

// Help and version need no display, which not everybody has who asks for them. What is no option may be one
// of the toolkit's, which takes its own away when there is a display.
std::optional<int> answerWithoutWindow(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const AskedLanguage arguments = takeLanguage(argumentsFromBytes(argc, argv));
    if (const auto code = speakAsAsked(arguments)) {
        return code;
    }
    const CommandLine line = readCommandLine(arguments.rest, QCoreApplication::applicationVersion());
    return line.exitCode == 0 ? std::optional(print(line)) : std::nullopt;
}

}  // namespace

int main(int argc, char** argv) {
    settleIntoTheProcess();
    QCoreApplication::setApplicationName(QStringLiteral("vantor-recovery"));
    QCoreApplication::setApplicationVersion(QStringLiteral(VANTOR_VERSION));
    if (const auto code = answerWithoutWindow(argc, argv)) {
        return *code;
    }
    QApplication application(argc, argv);
    QApplication::setApplicationDisplayName(kProgramTitle);
    // The desktop finds the window's icon and name by this.
    QApplication::setDesktopFileName(QStringLiteral("org.vantor.recovery"));
    // The window is closed by the exit routine alone.
    QApplication::setQuitOnLastWindowClosed(false);
    const AskedLanguage arguments = takeLanguage(argumentsFromBytes(argc, argv));
    if (const auto code = speakAsAsked(arguments)) {
        return *code;
    }
    endClearlyWithoutMemory(EXIT_FAILURE);
    const CommandLine line = readCommandLine(arguments.rest, QApplication::applicationVersion());
    if (line.exitCode) {
        return print(line);
    }
    applyTheme(application);
    const DesktopLook look(application);

    readEvidenceInHelpers();
    const auto running = std::make_shared<std::atomic<const MyTableController*>>(nullptr);
    const auto leaving = std::make_shared<std::atomic<bool>>(false);
    const auto controller = std::make_unique<MyTableController>(platformParts(running, leaving));
    running->store(controller.get());
    fitToScreen(controller->window);
    controller->awakeFromNib();
    controller->openImages(line.images);
    const int code = QApplication::exec();
    leaveTheScreen();
    *leaving = true;
    if (!controller->shutDown(kLastPatience)) {
        // A device that does not answer holds a thread; nothing of it is waited for.
        std::_Exit(code);
    }
    running->store(nullptr);
    return code;
}
