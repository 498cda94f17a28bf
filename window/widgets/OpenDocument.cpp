// The desktop's opener says by its exit code whether there was a program; the toolkit does not wait for it.
#include "window/widgets/OpenDocument.h"

#include <QDesktopServices>
#include <QEventLoop>
#include <QProcess>
#include <QStandardPaths>
#include <QTimer>
#include <QUrl>

namespace vantor {

bool openInDesktop(const QString& path, std::chrono::milliseconds patience) {
    const QString opener = QStandardPaths::findExecutable(QStringLiteral("xdg-open"));
    if (opener.isEmpty()) {
        return QDesktopServices::openUrl(QUrl::fromLocalFile(path));
    }
    // Where the opener becomes the viewer, it outlives this program.
    auto* const process = new QProcess;
    process->setStandardOutputFile(QProcess::nullDevice());
    process->setStandardErrorFile(QProcess::nullDevice());
    bool ended = false, failed = false;
    QEventLoop loop;
    const auto watch =
        QObject::connect(process, &QProcess::finished, &loop, [&](int code, QProcess::ExitStatus status) {
            ended = true;
            failed = code != 0 || status != QProcess::NormalExit;
            loop.quit();
        });
    const auto watchStart =
        QObject::connect(process, &QProcess::errorOccurred, &loop, [&](QProcess::ProcessError error) {
            failed = failed || error == QProcess::FailedToStart;
            loop.quit();
        });
    process->start(opener, {path});
    QTimer::singleShot(patience, &loop, &QEventLoop::quit);
    if (!ended && !failed) {
        loop.exec(QEventLoop::ExcludeUserInputEvents);
    }
    QObject::disconnect(watch);
    QObject::disconnect(watchStart);
    if (ended || failed) {
        process->deleteLater();
    } else {
        QObject::connect(process, &QProcess::finished, process, &QObject::deleteLater);
    }
    return !failed;
}

}  // namespace vantor
