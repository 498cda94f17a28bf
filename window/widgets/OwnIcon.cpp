// The program's own icons: drawn for light ground, and for dark ground in the counterparts of their colours.
#include <QAbstractButton>
#include <QBuffer>
#include <QFile>
#include <QIconEngine>
#include <QImageReader>
#include <QPainter>
#include <QPixmapCache>
#include <utility>

#include "window/widgets/Theme.h"

namespace vantor {

namespace {

constexpr char kIconProperty[] = "ownIcon";
// Its own colours are those of the program, on any ground.
const QString kProgramIcon = QStringLiteral("vantor-recovery");

// Lines become lighter, paper and its tints darker.
constexpr std::pair<const char*, const char*> kDarkColours[] = {
    {"#3a4658", "#c3cddd"}, {"#505c72", "#aab4c5"}, {"#50607a", "#aab4c5"}, {"#1f5fd6", "#7aa7ff"},
    {"#1a7f4b", "#4cc38a"}, {"#b42318", "#ff8a7a"}, {"#7a3db8", "#c39bf5"}, {"#a15c07", "#e3a857"},
    {"#e3e9f4", "#3a4452"}, {"#eaf1fd", "#26344f"}, {"#e1f3e9", "#1f3d2f"}, {"#dfe5ef", "#465062"},
    {"#cfd7e4", "#465062"},
};
// Paper; what is white on an accent is written with six digits and stays.
const QByteArray kPaper = "\"#fff\"";
const QByteArray kDarkPaper = "\"#2a313c\"";

QByteArray drawing(const QString& name, Look look) {
    QFile file(QStringLiteral(":/icons/") + name + QStringLiteral(".svg"));
    QByteArray svg = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    if (look == Look::Dark && name != kProgramIcon) {
        for (const auto& [light, dark] : kDarkColours) {
            svg.replace(light, dark);
        }
        svg.replace(kPaper, kDarkPaper);
    }
    return svg;
}

class OwnIconEngine : public QIconEngine {
  public:
    explicit OwnIconEngine(QString name) : m_name(std::move(name)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
        const qreal ratio = painter->device()->devicePixelRatioF();
        QPixmap picture = pixmap(rect.size() * ratio, mode, state);
        picture.setDevicePixelRatio(ratio);
        QRectF place({}, QSizeF(picture.size()) / ratio);
        place.moveCenter(QRectF(rect).center());
        painter->drawPixmap(place.topLeft(), picture);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
        const QString key = QStringLiteral("%1 %2x%3 %4 %5")
                                .arg(m_name)
                                .arg(size.width())
                                .arg(size.height())
                                .arg(static_cast<int>(mode))
                                .arg(static_cast<int>(currentLook()));
        QPixmap picture;
        if (!QPixmapCache::find(key, &picture)) {
            picture = drawn(size, mode);
            QPixmapCache::insert(key, picture);
        }
        return picture;
    }
    QIconEngine* clone() const override { return new OwnIconEngine(m_name); }
    bool isNull() override { return false; }
    QString key() const override { return QStringLiteral("own"); }

  private:
    QPixmap drawn(const QSize& size, QIcon::Mode mode) const {
        QByteArray svg = drawing(m_name, currentLook());
        QBuffer bytes(&svg);
        QImageReader reader(&bytes, "svg");
        reader.setScaledSize(reader.size().scaled(size, Qt::KeepAspectRatio));
        QImage image = reader.read().convertToFormat(QImage::Format_ARGB32_Premultiplied);
        if (mode == QIcon::Disabled && !image.isNull()) {
            QImage faint(image.size(), QImage::Format_ARGB32_Premultiplied);
            faint.fill(Qt::transparent);
            QPainter painter(&faint);
            painter.setOpacity(0.4);
            painter.drawImage(0, 0, image);
            painter.end();
            image = faint;
        }
        return QPixmap::fromImage(image);
    }

    const QString m_name;
};

}  // namespace

QIcon ownIcon(const QString& name) {
    return QIcon(new OwnIconEngine(name));
}

void dressIcons(QWidget* root) {
    for (auto* const button : root->findChildren<QAbstractButton*>()) {
        if (const QString name = button->property(kIconProperty).toString(); !name.isEmpty()) {
            button->setIcon(ownIcon(name));
        }
    }
}

}  // namespace vantor
