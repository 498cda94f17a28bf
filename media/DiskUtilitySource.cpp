// Running the disk utility and reading what it prints.
#include "media/DiskUtilitySource.h"

#include <QDeadlineTimer>
#include <QProcess>
#include <QStorageInfo>
#include <utility>

#include "media/PropertyList.h"

namespace vantor {

namespace {

constexpr int kPatienceMs = 30'000;
constexpr qsizetype kMostOutput = 16 * 1024 * 1024;  // bytes; a real answer has some 5 KB

QStringList volumesOfTheDesktop() {
    QStringList paths;
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
        if (volume.rootPath().startsWith(u"/Volumes/")) {
            paths << volume.rootPath();
        }
    }
    return paths;
}

}  // namespace

DiskUtilitySource::DiskUtilitySource(QString executable, Enumerator volumes)
    : m_executable(std::move(executable)), m_volumes(volumes ? std::move(volumes) : volumesOfTheDesktop) {}

QStringList DiskUtilitySource::mountedRemovableMedia() {
    m_targets->replace({});
    return m_volumes();
}

MediaFacts DiskUtilitySource::diskInfo(const QString& path) {
    const MediaFacts facts = parsePropertyList(outputFor(path)).value_or(MediaFacts());
    const QString identifier = facts.value(QStringLiteral("DeviceIdentifier")).toString();
    if (!identifier.isEmpty()) {
        auto targets = m_targets->all();
        targets[identifier] = {QStringLiteral("/dev/r") + identifier, {}};
        m_targets->replace(targets);
    }
    return facts;
}

QByteArray DiskUtilitySource::outputFor(const QString& path) const {
    QProcess utility;
    utility.setStandardInputFile(QProcess::nullDevice());
    utility.setStandardErrorFile(QProcess::nullDevice());
    utility.start(m_executable, {QStringLiteral("info"), QStringLiteral("-plist"), path},
                  QIODevice::ReadOnly);
    QByteArray output;
    const QDeadlineTimer deadline(kPatienceMs);
    while (utility.state() != QProcess::NotRunning && !deadline.hasExpired() && output.size() < kMostOutput) {
        const auto rest = [&deadline] { return static_cast<int>(deadline.remainingTime()); };
        if (!utility.waitForReadyRead(rest())) {
            utility.waitForFinished(rest());
        }
        output += utility.readAllStandardOutput();
    }
    if (utility.state() != QProcess::NotRunning) {
        utility.kill();
        utility.waitForFinished();
        return {};
    }
    return output + utility.readAllStandardOutput();
}

}  // namespace vantor
