// Runs the built command as a user would.
#pragma once

#include <QByteArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QList>
#include <QProcess>
#include <QProcessEnvironment>
#include <QStringList>

namespace vantor {

struct CommandRun {
    int exitCode = -1;
    QByteArray out;
    QByteArray err;

    QList<QJsonObject> json() const {
        QList<QJsonObject> lines;
        for (const QByteArray& line : out.split('\n')) {
            if (!line.isEmpty()) {
                lines.append(QJsonDocument::fromJson(line).object());
            }
        }
        return lines;
    }
};

// `desktop` is the language that the desktop would tell, "C" for none.
inline CommandRun runCommand(const QStringList& arguments,
                             const QString& program = QStringLiteral(VANTOR_CLI),
                             const QString& desktop = QStringLiteral("C.UTF-8")) {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LC_ALL"), desktop);
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    CommandRun run;
    if (process.waitForFinished(600000) && process.exitStatus() == QProcess::NormalExit) {
        run.exitCode = process.exitCode();
    }
    run.out = process.readAllStandardOutput();
    run.err = process.readAllStandardError();
    return run;
}

}  // namespace vantor
