// The library's checksum, and a thread that is given one stretch of bytes at a time.
#include "saving/Sha256.h"

#include <openssl/evp.h>

namespace vantor {

namespace {

constexpr qsizetype kSha256Bytes = 32;
// Shorter stretches are not worth waking a thread.
constexpr qsizetype kSmall = 64 * 1024;

}  // namespace

Sha256::Sha256() : m_context(EVP_MD_CTX_new()) {
    EVP_DigestInit_ex(m_context, EVP_sha256(), nullptr);
}

Sha256::~Sha256() {
    EVP_MD_CTX_free(m_context);
}

void Sha256::add(QByteArrayView bytes) {
    EVP_DigestUpdate(m_context, bytes.data(), static_cast<std::size_t>(bytes.size()));
}

QByteArray Sha256::result() {
    QByteArray sum(kSha256Bytes, '\0');
    EVP_DigestFinal_ex(m_context, reinterpret_cast<unsigned char*>(sum.data()), nullptr);
    EVP_DigestInit_ex(m_context, EVP_sha256(), nullptr);
    return sum;
}

QByteArray Sha256::of(QByteArrayView bytes) {
    Sha256 sum;
    sum.add(bytes);
    return sum.result();
}

BackgroundSha256::~BackgroundSha256() {
    if (!m_thread.joinable()) {
        return;
    }
    {
        const std::lock_guard lock(m_mutex);
        m_quit = true;
    }
    m_changed.notify_all();
    m_thread.join();
}

void BackgroundSha256::waitUntilDone(std::unique_lock<std::mutex>& lock) {
    m_changed.wait(lock, [this] { return m_pending.isEmpty(); });
}

void BackgroundSha256::add(QByteArrayView bytes) {
    if (bytes.isEmpty()) {
        return;
    }
    std::unique_lock lock(m_mutex);
    waitUntilDone(lock);
    if (bytes.size() < kSmall) {
        m_sum.add(bytes);
        return;
    }
    if (!m_thread.joinable()) {
        m_thread = std::thread([this] { run(); });
    }
    m_pending = bytes;
    m_changed.notify_all();
}

QByteArray BackgroundSha256::result() {
    std::unique_lock lock(m_mutex);
    waitUntilDone(lock);
    return m_sum.result();
}

void BackgroundSha256::run() {
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_changed.wait(lock, [this] { return m_quit || !m_pending.isEmpty(); });
        if (m_quit) {
            return;
        }
        const QByteArrayView bytes = m_pending;
        lock.unlock();
        m_sum.add(bytes);
        lock.lock();
        m_pending = {};
        m_changed.notify_all();
    }
}

}  // namespace vantor
