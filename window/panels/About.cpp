// The words about the program.
#include "window/panels/About.h"

#include <QCoreApplication>
#include <QObject>
#include <QSysInfo>

#include "window/widgets/Alerts.h"

namespace vantor {

namespace {

// As this build links or loads them; the pictures' and movies' libraries run in the helpers.
const char* const kLibraries =
    "Qt %1, FFmpeg, LibRaw, libewf, libheif, libjxl, OpenJPEG, jxrlib, OpenSSL, liblzma, zlib";

}  // namespace

void showAbout(QWidget* over) {
    const QString version = QCoreApplication::applicationVersion();
    Alert about;
    about.message = QStringLiteral("\nVantor - Memory Card Recovery ") + version;
    about.informative =
        QObject::tr(
            "Copyright 2026 Vantor Recovery maintainers\n\n"
            "Free software under the GNU General Public License, version 3 or later: you may use, study, "
            "share and change it. It comes without any warranty.\n\n"
            "Made with %1.\n\nRunning on %2.")
            .arg(QString::fromLatin1(kLibraries).arg(QLatin1String(qVersion())),
                 QSysInfo::prettyProductName());
    about.picture = QStringLiteral("vantor-recovery");
    runAlert(about, over);
}

}  // namespace vantor
