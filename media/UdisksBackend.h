// Media as the desktop's disk service knows them.
#pragma once

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <memory>
#include <optional>

#include "media/MediaBackend.h"
#include "media/UdisksBus.h"

namespace vantor {

// Answers within some seconds whatever state the bus is in: once late, a call is not waited for again, and
// changed() tells when its answer came after all.
class UdisksBackend : public QObject, public MediaBackend {
    Q_OBJECT

  public:
    // `busAddress` and `root` (of /sys) are empty but in tests.
    explicit UdisksBackend(const QString& busAddress = {}, const QString& root = {});
    ~UdisksBackend() override;

    std::optional<QList<MediumRecord>> list() override;
    DescriptorRequest descriptorRequest() const override;

  private slots:
    void onSignal();
    void onRetry();

  private:
    std::optional<QDBusMessage> answerWithinPatience();
    void listen();
    void tell();

    const QString m_root;
    std::unique_ptr<UdisksBus> m_bus;
    std::shared_ptr<DescriptorDesk> m_desk;           // shared with those who ask for descriptors
    QString m_listeningOn;                            // name of the connection whose signals arrive
    std::unique_ptr<QDBusPendingCallWatcher> m_late;  // a call that is still waited for
    QTimer m_settle;                                  // many signals, one change
    QElapsedTimer m_unsettled;                        // since the first of them
    QTimer m_retry;                                   // while there is no bus
};

}  // namespace vantor
