// What our image plugins share: the whole encoded picture in one piece, read once.
#pragma once

#include <QBuffer>
#include <QByteArray>
#include <QImageIOHandler>
#include <QImageIOPlugin>
#include <cstdint>

namespace vantor::decode {

// Far above any picture file, far below what memory there is.
constexpr qint64 kMostPluginBytes = qint64{512} * 1024 * 1024;

// Sides of a picture that a handler takes on: no camera's are larger, and the pixels fit the readers' own
// limit.
inline bool isReasonableSize(std::uint64_t width, std::uint64_t height) {
    constexpr std::uint64_t kMostSide = 65535;
    constexpr std::uint64_t kMostPixels = std::uint64_t{150} * 1000 * 1000;
    return width > 0 && height > 0 && width <= kMostSide && height <= kMostSide &&
           width * height <= kMostPixels;
}

// The bytes from the device's position on. The helper's devices are buffers already, whose bytes are not
// copied.
inline QByteArray bytesOf(QIODevice* device) {
    if (const auto* buffer = qobject_cast<QBuffer*>(device)) {
        return buffer->pos() == 0 ? buffer->data() : buffer->data().mid(buffer->pos());
    }
    return device->read(kMostPluginBytes);
}

// A handler that decodes the whole picture in one go and gives it out once.
class WholePictureHandler : public QImageIOHandler {
  public:
    bool canRead() const override { return device() && !m_given; }

    bool read(QImage* image) override {
        m_given = true;
        *image = decode(bytesOf(device()));
        return !image->isNull();
    }

  protected:
    virtual QImage decode(const QByteArray& bytes) = 0;

  private:
    bool m_given = false;
};

// The plugin for one handler; chosen by its own name only, never by a device's content.
template <typename Handler>
class HandlerPlugin : public QImageIOPlugin {
  public:
    Capabilities capabilities(QIODevice*, const QByteArray& format) const override {
        return format == Handler::kFormat ? Capabilities(CanRead) : Capabilities();
    }
    QImageIOHandler* create(QIODevice* device, const QByteArray& format) const override {
        auto* handler = new Handler;
        handler->setDevice(device);
        handler->setFormat(format);
        return handler;
    }
};

}  // namespace vantor::decode
