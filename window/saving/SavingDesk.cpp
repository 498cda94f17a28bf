// One job at a time, on a thread of its own, under a sheet.
#include "window/saving/SavingDesk.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <algorithm>
#include <map>
#include <utility>

#include "results/CardIndex.h"
#include "results/MyImageObject.h"
#include "results/SizeForPeople.h"
#include "saving/SaveJob.h"
#include "saving/SaveSummary.h"
#include "window/saving/SavingSheet.h"
#include "window/widgets/Alerts.h"

namespace vantor {

namespace {

constexpr int kMostNumbers = 10'000;

// Renaming never replaces a file; where the name is taken, it gets a number.
bool takeName(const QString& file, const QString& folder, const QString& name) {
    const QFileInfo wanted(name);
    const QString ending = wanted.suffix().isEmpty() ? QString() : u'.' + wanted.suffix();
    QString tried = name;
    for (int number = 2; number < kMostNumbers; ++number) {
        const QString path = folder + u'/' + tried;
        if (QFile::rename(file, path)) {
            return true;
        }
        if (!QFileInfo::exists(path)) {
            return false;
        }
        tried = QStringLiteral("%1 (%2)%3").arg(wanted.completeBaseName()).arg(number).arg(ending);
    }
    return false;
}

}  // namespace

SavingDesk::~SavingDesk() {
    join();
}

void SavingDesk::join() {
    if (m_thread.joinable()) {
        m_thread.join();
    }
}

void SavingDesk::save(QList<qsizetype> indexes, QString destination, ToldFiles told) {
    std::optional<Next> wish = Next{std::move(indexes), std::move(told), std::move(destination)};
    while (wish) {
        wish = saveOnce(*wish);
    }
}

std::optional<SavingDesk::Next> SavingDesk::saveOnce(const Next& wish) {
    const QString& destination = wish.destination;
    SaveRequest request;
    for (const qsizetype index : wish.indexes) {
        const auto at = static_cast<std::size_t>(index);
        if (auto item = m_parts.itemAt(at)) {
            request.items.push_back({at, std::move(item)});
        }
    }
    if (!m_choices.policy.asPublished) {
        request.told = wish.told;
    }
    const Room room = askForRoom(destination, roomNeeded(request));
    if (room != Room::Enough) {
        const QString other = room == Room::Elsewhere ? m_parts.chooseFolder() : QString();
        return other.isEmpty() ? std::nullopt : std::optional(Next{wish.indexes, wish.told, other});
    }
    request.saver = saverFor(destination);
    request.openMedium = m_parts.medium();
    request.card = m_parts.card ? m_parts.card() : nullptr;
    request.mended = m_parts.mended ? m_parts.mended() : nullptr;
    request.destination = destination;
    request.placeholder = m_parts.placeholder();
    if (m_choices.report) {
        request.report = m_parts.reportHead();
    }
    const auto job = std::make_shared<SaveJob>(std::move(request));
    return watch(job) ? tell(*job, destination) : std::nullopt;
}

// Written beside where it is to lie, so that it only has to take its name there.
void SavingDesk::saveAs(qsizetype index, const QString& folder, const QString& name) {
    const auto at = static_cast<std::size_t>(index);
    auto item = m_parts.itemAt(at);
    const QTemporaryDir beside(folder + QStringLiteral("/.vantor-recovery-XXXXXX"));
    if (!item) {
        return;
    }
    SaveRequest request;
    request.items.push_back({at, std::move(item)});
    if (askForRoom(folder, roomNeeded(request)) != Room::Enough) {
        return;
    }
    SavePolicy policy;
    policy.asPublished = m_choices.policy.asPublished;
    policy.folders = SaveFolders::Type;
    policy.parts = true;
    request.saver = std::make_shared<const ItemSaver>(
        beside.path(), policy, m_parts.liesOnMedium ? m_parts.liesOnMedium() : nullptr);
    request.openMedium = m_parts.medium();
    request.card = m_parts.card ? m_parts.card() : nullptr;
    request.destination = beside.path();
    request.placeholder = m_parts.placeholder();
    const auto job = std::make_shared<SaveJob>(std::move(request));
    if (!beside.isValid() || !watch(job) || job->isCancelled()) {
        return;
    }
    const SaveReport& report = job->report();
    const SaveOutcome outcome = report.items.empty() ? SaveOutcome() : report.items.front().outcome;
    if (outcome.saved && takeName(outcome.path, folder, name)) {
        note(*job);
        return;
    }
    tellFailure(tr("Nothing was saved."),
                outcome.error.isEmpty()
                    ? tr("The storage medium cannot be read any more. Put it back in and try "
                         "again.")
                    : outcome.error,
                m_parts.window);
}

void SavingDesk::forget() {
    m_marks.clear();
    m_saver.reset();
}

void SavingDesk::markSaved(const std::vector<std::uint64_t>& places) {
    for (const std::uint64_t place : places) {
        m_marks.noteSaved(static_cast<std::size_t>(place));
    }
    emit marksChanged();
}

// One saver as long as it writes the same way into the same folder, so that what was saved before is known.
std::shared_ptr<const ItemSaver> SavingDesk::saverFor(const QString& destination) {
    if (!m_saver || m_saverDestination != destination || m_saverPolicy != m_choices.policy) {
        m_saver = std::make_shared<const ItemSaver>(destination, m_choices.policy,
                                                    m_parts.liesOnMedium ? m_parts.liesOnMedium() : nullptr);
        m_saverDestination = destination;
        m_saverPolicy = m_choices.policy;
    }
    return m_saver;
}

// As far as it was found out how long the files are, else as long as they were found. Types that share a
// header find the same sectors; they are saved once.
SavingDesk::Need SavingDesk::roomNeeded(const SaveRequest& request) const {
    Need need;
    std::map<std::uint64_t, std::uint64_t> bytesAt;
    for (const ChosenItem& chosen : request.items) {
        const CarvedRun& carved = chosen.item->carved();
        if (!carved.runs.empty()) {
            const auto known = m_parts.bytesToWrite ? m_parts.bytesToWrite(chosen.index) : std::nullopt;
            std::uint64_t& most = bytesAt[carved.runs.front().first];
            need.isKnown = need.isKnown && known;
            most = std::max(most, known.value_or(carved.sectors() * kSectorBytes));
        }
    }
    for (const auto& place : bytesAt) {
        need.bytes += place.second;
    }
    for (const auto& file : request.told) {
        need.bytes += dataBytesOf(*file);
    }
    return need;
}

SavingDesk::Room SavingDesk::askForRoom(const QString& destination, const Need& need) const {
    const auto free = m_parts.freeBytes ? m_parts.freeBytes(destination) : std::nullopt;
    if (!free || *free >= need.bytes) {
        return Room::Enough;
    }
    const QString facts =
        need.isKnown
            ? tr("Some %1 are needed and %2 are free in %3.")
            : tr("As they were found, the files need some %1; once they are examined, they often turn out "
                 "shorter. %2 are free in %3.");
    const qsizetype answer =
        runAlert({QStringLiteral("\n") + tr("There may not be enough room in the destination."),
                  facts.arg(sizeForPeople(need.bytes), sizeForPeople(*free), destination) + u' ' +
                      tr("What fits is saved whole; the rest is left out and stays in the list."),
                  {tr("Save What Fits"), tr("Change Folder…"), tr("Cancel")},
                  2},
                 m_parts.window);
    return answer == 0 ? Room::Enough : answer == 1 ? Room::Elsewhere : Room::Cancelled;
}

// Runs the job beside the window under a sheet; false when the program ends meanwhile or the medium does not
// answer a cancel.
bool SavingDesk::watch(const std::shared_ptr<SaveJob>& job) {
    join();
    m_running = true;
    m_thread = std::thread([this, job] {
        job->run();
        m_running = false;
    });
    SavingSheet(m_parts.window, job).run(m_parts.ending);
    return job->isFinished() && !m_parts.ending();
}

void SavingDesk::note(const SaveJob& job) {
    const SaveReport& report = job.report();
    for (std::size_t i = 0; i < report.indexes.size(); ++i) {
        const SaveOutcome& outcome = report.items[i].outcome;
        m_marks.note(report.indexes[i], outcome);
        if (const auto soundness = soundnessOf(outcome)) {
            m_parts.examined(report.indexes[i], *soundness);
        }
    }
    emit marksChanged();
}

std::optional<SavingDesk::Next> SavingDesk::tell(const SaveJob& job, const QString& destination) {
    note(job);
    const SaveReport& report = job.report();
    const bool somethingThere = report.tally.saved + report.tally.duplicates > 0;
    if (!report.mediumOpened && !somethingThere) {
        tellFailure(tr("Nothing was saved."),
                    tr("The storage medium cannot be read any more. Put it back in and try again."),
                    m_parts.window);
        return std::nullopt;
    }
    const bool mediumGone = std::any_of(report.items.begin(), report.items.end(),
                                        [](const ReportedItem& item) { return item.outcome.mediumGone; });
    const SaveSummary summary{
        report.tally,         destination,
        job.isCancelled(),    report.written.error.isEmpty() ? report.written.html : QString(),
        report.written.error, mediumGone};
    Alert alert{QStringLiteral("\n") + summaryHeadline(summary), summaryDetails(summary), {}};
    if (somethingThere) {
        alert.buttons << tr("Open Folder");
        alert.picture = summary.cancelled ? QStringLiteral("info") : QStringLiteral("ok");
    }
    if (report.tally.failed > 0) {
        alert.picture = QStringLiteral("warning");
        alert.buttons << tr("Change Folder…");
    } else if (somethingThere && m_parts.canEject && m_parts.canEject()) {
        alert.buttons << tr("Eject Card");
    }
    alert.buttons << QStringLiteral("OK");
    alert.defaultButton = alert.buttons.size() - 1;
    const QString answer = alert.buttons.value(runAlert(alert, m_parts.window));
    if (answer == tr("Open Folder")) {
        m_parts.openFolder();
    }
    if (answer == tr("Eject Card")) {
        m_parts.eject();
    }
    const QString other = answer == tr("Change Folder…") ? m_parts.chooseFolder() : QString();
    if (other.isEmpty()) {
        return std::nullopt;
    }
    Next rest{{}, report.toldFailed, other};
    for (std::size_t i = 0; i < report.indexes.size(); ++i) {
        const SaveOutcome& outcome = report.items[i].outcome;
        if (!outcome.saved && outcome.leftOut == LeftOut::No) {
            rest.indexes.append(static_cast<qsizetype>(report.indexes[i]));
        }
    }
    return rest;
}

}  // namespace vantor
