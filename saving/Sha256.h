// SHA-256 at the speed of the processor's own instructions, on a thread beside the one that reads and writes.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <thread>

struct evp_md_ctx_st;

namespace vantor {

// One checksum under way; any one thread.
class Sha256 {
  public:
    Sha256();
    Sha256(const Sha256&) = delete;
    Sha256& operator=(const Sha256&) = delete;
    ~Sha256();

    void add(QByteArrayView bytes);
    QByteArray result();  // 32 bytes; begins anew

    static QByteArray of(QByteArrayView bytes);

  private:
    evp_md_ctx_st* m_context;
};

// The same, computed beside its owner.
class BackgroundSha256 {
  public:
    BackgroundSha256() = default;
    BackgroundSha256(const BackgroundSha256&) = delete;
    BackgroundSha256& operator=(const BackgroundSha256&) = delete;
    ~BackgroundSha256();

    // Borrows the bytes until the next call; waits for the bytes given before.
    void add(QByteArrayView bytes);
    QByteArray result();  // 32 bytes; begins anew

  private:
    void run();
    void waitUntilDone(std::unique_lock<std::mutex>& lock);

    Sha256 m_sum;  // the thread's while there are pending bytes
    std::mutex m_mutex;
    std::condition_variable m_changed;
    QByteArrayView m_pending;
    bool m_quit = false;
    std::thread m_thread;  // started with the first bytes
};

}  // namespace vantor
