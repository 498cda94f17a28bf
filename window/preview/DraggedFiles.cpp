// The saving of this program, into a folder of this program.
#include "window/preview/DraggedFiles.h"

#include <QDir>
#include <QFileInfo>
#include <utility>

#include "saving/DestinationCheck.h"
#include "window/preview/PrivateFolder.h"

namespace vantor {

namespace {

// Whatever the user dragged is wanted, and under the name that it had.
SavePolicy policyOfDragging() {
    SavePolicy policy;
    policy.folders = SaveFolders::Type;
    policy.skipDuplicates = false;
    policy.checksums = false;
    policy.parts = true;
    return policy;
}

}  // namespace

DraggedFiles::DraggedFiles(QString parent) : m_parent(std::move(parent)) {}

DraggedFiles::~DraggedFiles() {
    requestEnd();
    if (m_thread.joinable()) {
        m_thread.join();
    }
}

void DraggedFiles::begin() {
    requestEnd();
    m_paths.clear();
    m_whyNot.clear();
    if (m_job) {
        m_forgotten = true;
    } else {
        m_saver.reset();
        m_folder.reset();
    }
}

void DraggedFiles::prepare(SaveRequest request) {
    take();
    std::erase_if(request.items, [this](const ChosenItem& chosen) {
        return QFileInfo(m_paths.value(static_cast<qsizetype>(chosen.index))).isFile();
    });
    if (m_running || request.items.empty()) {
        return;
    }
    m_whyNot.clear();
    if (!m_folder) {
        QDir().mkpath(m_parent);
        m_folder = std::make_unique<PrivateFolder>(m_parent);
        m_saver = std::make_shared<const ItemSaver>(m_folder->folder.path(), policyOfDragging());
    }
    if (!m_folder->held) {
        m_folder.reset();
        m_whyNot = refuseDestination(m_parent).value_or(QString());
        return;
    }
    request.saver = m_saver;
    request.destination = m_folder->folder.path();
    m_job = std::make_shared<SaveJob>(std::move(request));
    m_running = true;
    m_thread = std::thread([this, job = m_job] {
        job->run();
        m_running = false;
    });
}

// What the last job wrote, once it has ended.
void DraggedFiles::take() {
    if (m_running || !m_job) {
        return;
    }
    m_thread.join();
    const SaveReport& report = m_job->report();
    for (std::size_t i = 0; i < report.indexes.size(); ++i) {
        const SaveOutcome& outcome = report.items[i].outcome;
        if (outcome.saved && !m_forgotten) {
            m_paths.insert(static_cast<qsizetype>(report.indexes[i]), outcome.path);
        } else if (m_whyNot.isEmpty()) {
            m_whyNot = outcome.error;
        }
    }
    m_job.reset();
    if (std::exchange(m_forgotten, false)) {
        m_saver.reset();
        m_folder.reset();
    }
}

QStringList DraggedFiles::pathsOf(const QList<qsizetype>& indexes) {
    take();
    QStringList paths;
    for (const qsizetype index : indexes) {
        if (const QString path = m_paths.value(index); QFileInfo(path).isFile()) {
            paths.append(path);
        }
    }
    return paths;
}

void DraggedFiles::requestEnd() {
    if (m_job) {
        m_job->cancel();
    }
}

}  // namespace vantor
