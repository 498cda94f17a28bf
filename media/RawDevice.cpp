// The descriptor side of a medium; nothing here can write.
#include "media/RawDevice.h"

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <cerrno>
#include <cstring>
#include <limits>
#include <utility>

#include "media/WindowedReader.h"

namespace vantor {

namespace {

class Descriptor {
  public:
    explicit Descriptor(int fd) : m_fd(fd) {}
    Descriptor(Descriptor&& other) noexcept : m_fd(std::exchange(other.m_fd, -1)) {}
    Descriptor& operator=(Descriptor&&) = delete;
    ~Descriptor() {
        if (m_fd >= 0) {
            ::close(m_fd);
        }
    }
    int get() const { return m_fd; }

  private:
    int m_fd;
};

struct OpenedMedium {
    Descriptor descriptor;
    MediumFacts facts;
};

std::optional<MediumFacts> factsOf(int fd) {
    struct stat info {};
    if (::fstat(fd, &info) != 0) {
        return std::nullopt;
    }
    if (S_ISREG(info.st_mode)) {
        return MediumFacts{true, static_cast<std::uint64_t>(info.st_size) / kSectorBytes};
    }
    if (S_ISBLK(info.st_mode)) {
        std::uint64_t bytes = 0;
        if (::ioctl(fd, BLKGETSIZE64, &bytes) == 0) {
            return MediumFacts{false, bytes / kSectorBytes};
        }
    }
    return std::nullopt;
}

std::optional<OpenedMedium> openForReading(const QString& path, QString* why) {
    // Not blocking: a pipe of that name would otherwise wait for a writer for ever.
    Descriptor descriptor(
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    if (descriptor.get() < 0) {
        if (why != nullptr) {
            *why = QString::fromLocal8Bit(std::strerror(errno));
        }
        return std::nullopt;
    }
    const auto facts = factsOf(descriptor.get());
    if (!facts) {
        if (why != nullptr) {
            *why = QStringLiteral("Neither a storage medium nor an image file");
        }
        return std::nullopt;
    }
    return OpenedMedium{std::move(descriptor), *facts};
}

class DescriptorSource : public BlockSource {
  public:
    explicit DescriptorSource(OpenedMedium medium) : m_medium(std::move(medium)) {
        ::posix_fadvise(m_medium.descriptor.get(), 0, 0, POSIX_FADV_SEQUENTIAL);
    }

    std::int64_t readAt(std::uint64_t sector, std::span<std::uint8_t> into) override {
        if (sector >= static_cast<std::uint64_t>(std::numeric_limits<off_t>::max()) / kSectorBytes) {
            return -1;
        }
        std::size_t done = 0;
        while (done < into.size()) {
            const auto offset = static_cast<off_t>(sector * kSectorBytes + done);
            const ssize_t n =
                ::pread(m_medium.descriptor.get(), into.data() + done, into.size() - done, offset);
            if (n < 0 && errno == EINTR) {
                continue;
            }
            if (n <= 0) {
                break;
            }
            done += static_cast<std::size_t>(n);
        }
        return done == 0 ? -1 : static_cast<std::int64_t>(done);
    }

    bool usable() override { return true; }

  private:
    OpenedMedium m_medium;
};

}  // namespace

std::optional<MediumFacts> probeMedium(const QString& path, QString* why) {
    const auto medium = openForReading(path, why);
    return medium ? std::optional(medium->facts) : std::nullopt;
}

std::unique_ptr<SectorReader> openMedium(const QString& path) {
    auto medium = openForReading(path, nullptr);
    if (!medium) {
        return nullptr;
    }
    return std::make_unique<WindowedReader>(std::make_unique<DescriptorSource>(std::move(*medium)));
}

}  // namespace vantor
