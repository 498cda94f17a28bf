// The program with its window.
#include <QApplication>
#include <QDesktopServices>
#include <QUrl>
#include <cstdlib>

#include "app/MyTableController.h"
#include "catalogue/ResourcesFolder.h"
#include "media/RawDevice.h"
#include "wizard/Theme.h"

namespace {

using namespace vantor;

class NoMedia : public MediaSource {
  public:
    QStringList images;
    QStringList mountedRemovableMedia() override { return images; }
    MediaFacts diskInfo(const QString& path) override {
        const auto facts = probeMedium(path);
        if (!facts) {
            return {};
        }
        return {{QStringLiteral("DeviceIdentifier"),
                 QStringLiteral("image") + QString::number(images.indexOf(path))},
                {QStringLiteral("VolumeName"), path.section(u'/', -1)},
                {QStringLiteral("FilesystemUserVisibleName"), QStringLiteral("Disk image")},
                {QStringLiteral("IOKitSize"), QVariant::fromValue<quint64>(facts->sectors * 512)}};
    }
};

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("vantor-recovery"));
    QApplication::setApplicationDisplayName(QStringLiteral("Vantor - Memory Card Recovery"));
    QApplication::setApplicationVersion(QStringLiteral("0.1.0"));
    QApplication::setQuitOnLastWindowClosed(false);
    applyTheme(application);
    const auto media = std::make_shared<NoMedia>();
    ProgramParts parts;
    parts.media = media;
    parts.resourcesFolder = resourcesFolder();
    parts.openMedium = [media](const QString& device) {
        return openMedium(media->images.value(device.mid(QStringLiteral("/dev/rimage").size()).toInt()));
    };
    parts.openImage = [media](const QString& file, QString& why) {
        if (!probeMedium(file, &why)) {
            return QString();
        }
        media->images.append(file);
        return QStringLiteral("image") + QString::number(media->images.size() - 1);
    };
    parts.openDocument = [](const QString& path) {
        return QDesktopServices::openUrl(QUrl::fromLocalFile(path));
    };
    parts.terminate = [] { QCoreApplication::exit(0); };
    MyTableController controller(std::move(parts));
    controller.awakeFromNib();
    controller.openImages(QApplication::arguments().mid(1));
    const int code = QApplication::exec();
    if (!controller.shutDown(std::chrono::milliseconds(500))) {
        std::_Exit(code);
    }
    return code;
}
