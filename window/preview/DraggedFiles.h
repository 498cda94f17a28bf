// Found items as whole files in a private folder, to be dragged out of the window.
#pragma once

#include <QHash>
#include <QList>
#include <QObject>
#include <QStringList>
#include <atomic>
#include <memory>
#include <thread>

#include "saving/SaveJob.h"

namespace vantor {

struct PrivateFolder;

// Lives on the interface thread; a thread of its own writes. The files stay until the list begins anew, since
// nobody says when a file manager has done with them.
class DraggedFiles : public QObject {
    Q_OBJECT

  public:
    // `parent` holds the folder; made when it is missing.
    explicit DraggedFiles(QString parent);
    // Waits for the medium; see hasEnded().
    ~DraggedFiles() override;

    // The list begins anew.
    void begin();
    // Writes those of the request's items that are not there yet; its saver and destination are chosen here.
    // Not while it is running.
    void prepare(SaveRequest request);
    bool isRunning() const { return m_running; }
    // Of those that are there, in this order.
    QStringList pathsOf(const QList<qsizetype>& indexes);
    // Why the first that the last prepare() was to write is not there, in a sentence; empty where all are or
    // nobody tells.
    const QString& whyNot() const { return m_whyNot; }

    void requestEnd();
    bool hasEnded() const { return !m_running; }

  private:
    void take();

    const QString m_parent;
    std::unique_ptr<PrivateFolder> m_folder;
    std::shared_ptr<const ItemSaver> m_saver;
    std::shared_ptr<SaveJob> m_job;     // until what it wrote was taken
    QHash<qsizetype, QString> m_paths;  // by place in the list
    QString m_whyNot;
    bool m_forgotten = false;  // the list began anew while the job ran
    std::atomic<bool> m_running{false};
    std::thread m_thread;
};

}  // namespace vantor
