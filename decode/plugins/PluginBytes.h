// What our image plugins share: the whole encoded picture in one piece, read once.
#pragma once

#include <QBuffer>
#include <QByteArray>
#include <QImageIOHandler>
#include <QImageIOPlugin>

#include "decode/DecodeProtocol.h"
#include "decode/helper/PictureLimits.h"

namespace vantor::decode {

// The bytes from the device's position on. The helper's devices are buffers already, whose bytes are not
// copied.
inline QByteArray bytesOf(QIODevice* device) {
    if (const auto* buffer = qobject_cast<QBuffer*>(device)) {
        return buffer->pos() == 0 ? buffer->data() : buffer->data().mid(buffer->pos());
    }
    return device->read(static_cast<qint64>(kMaxInputBytes));
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
