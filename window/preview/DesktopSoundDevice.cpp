// The desktop's sound output, on a thread of its own that waits for nothing of ours: no work in the window
// and no slow decoder can make it stutter.
#include <QAudioDevice>
#include <QAudioSink>
#include <QIODevice>
#include <QMediaDevices>
#include <QThread>
#include <QTimer>
#include <algorithm>
#include <atomic>
#include <mutex>
#include <utility>
#include <vector>

#include "decode/SoundReader.h"
#include "window/preview/SoundDevice.h"

namespace vantor {

namespace {

constexpr int kFrameBytes = kSoundChannels * static_cast<int>(sizeof(std::int16_t));
// What the device holds at a time: enough for a busy machine, little enough to fall silent soon.
constexpr int kBufferBytes = kSoundFramesPerSecond / 8 * kFrameBytes;
constexpr int kReportMilliseconds = 10;
constexpr unsigned long kLastPatienceMilliseconds = 500;

// The bytes as the sink asks for them; never runs dry, so that the sink never goes idle.
class FilledBytes : public QIODevice {
  public:
    explicit FilledBytes(QObject* parent) : QIODevice(parent) {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }

    void setFill(SoundDevice::Fill fill) {
        const std::lock_guard lock(m_lock);
        m_fill = std::move(fill);
    }

    bool isSequential() const override { return true; }
    qint64 bytesAvailable() const override { return kBufferBytes; }

  protected:
    qint64 readData(char* data, qint64 most) override {
        const qint64 bytes = most / kFrameBytes * kFrameBytes;
        m_samples.resize(static_cast<std::size_t>(bytes) / sizeof(std::int16_t));
        std::fill(m_samples.begin(), m_samples.end(), std::int16_t{0});
        {
            const std::lock_guard lock(m_lock);
            if (m_fill) {
                m_fill(m_samples);
            }
        }
        std::copy_n(reinterpret_cast<const char*>(m_samples.data()), bytes, data);
        return bytes;
    }
    qint64 writeData(const char*, qint64) override { return -1; }

  private:
    std::mutex m_lock;
    SoundDevice::Fill m_fill;
    std::vector<std::int16_t> m_samples;
};

// Lives on the device's thread.
class SinkKeeper : public QObject {
  public:
    void start(int ofTurn) {
        QAudioFormat format;
        format.setSampleRate(kSoundFramesPerSecond);
        format.setChannelCount(kSoundChannels);
        format.setSampleFormat(QAudioFormat::Int16);
        const QAudioDevice output = QMediaDevices::defaultAudioOutput();
        if (output.isNull() || !output.isFormatSupported(format)) {
            failed = true;
            return;
        }
        m_turn = ofTurn;
        m_sink = std::make_unique<QAudioSink>(output, format);
        m_sink->setBufferSize(kBufferBytes);
        m_sink->start(&bytes);
        connect(&m_report, &QTimer::timeout, this, [this] { report(); });
        m_report.start(kReportMilliseconds);
    }
    void stop() {
        m_report.disconnect(this);
        m_report.stop();
        if (m_sink) {
            m_sink->reset();
            m_sink.reset();
        }
    }

    FilledBytes bytes{this};  // a child, so that it lives on the same thread
    std::atomic<std::int64_t> played{0};
    std::atomic<int> turn{0};  // of the start or stop called last; reports of an earlier one come too late
    std::atomic<bool> failed{false};

  private:
    void report() {
        failed = m_sink->error() == QAudio::OpenError || m_sink->error() == QAudio::FatalError ||
                 m_sink->error() == QAudio::IOError;
        if (turn == m_turn) {
            played = m_sink->processedUSecs() * kSoundFramesPerSecond / 1'000'000;
        }
    }

    std::unique_ptr<QAudioSink> m_sink;
    QTimer m_report{this};
    int m_turn = 0;
};

class DesktopSoundDevice : public SoundDevice {
  public:
    DesktopSoundDevice() : m_thread(new QThread), m_keeper(new SinkKeeper) {
        m_keeper->moveToThread(m_thread);
        QObject::connect(m_thread, &QThread::finished, m_keeper, &QObject::deleteLater);
        m_thread->start();
    }
    ~DesktopSoundDevice() override {
        stop();
        m_thread->quit();
        if (m_thread->wait(kLastPatienceMilliseconds)) {
            delete m_thread;
        }
        // A sound system that does not answer keeps the thread and what it uses.
    }

    void start(Fill fill) override {
        const int turn = ++m_keeper->turn;
        m_keeper->played = 0;
        m_keeper->failed = false;
        m_keeper->bytes.setFill(std::move(fill));
        QMetaObject::invokeMethod(m_keeper, [keeper = m_keeper, turn] { keeper->start(turn); });
    }
    void stop() override {
        ++m_keeper->turn;
        m_keeper->bytes.setFill(nullptr);
        QMetaObject::invokeMethod(m_keeper, [keeper = m_keeper] { keeper->stop(); });
    }
    std::int64_t playedFrames() const override { return m_keeper->played; }
    bool hasFailed() const override { return m_keeper->failed; }

  private:
    QThread* m_thread;
    SinkKeeper* m_keeper;
};

}  // namespace

std::unique_ptr<SoundDevice> makeDesktopSoundDevice() {
    return std::make_unique<DesktopSoundDevice>();
}

}  // namespace vantor
