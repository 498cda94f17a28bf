// A bar with boxes in it, and a frame around what is chosen.
#include "window/panels/CardPicture.h"

#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPainterPath>
#include <QRadioButton>
#include <QStorageInfo>
#include <algorithm>

#include "catalogue/NumberText.h"
#include "media/KernelPartitions.h"
#include "media/SectorReader.h"
#include "results/SizeForPeople.h"
#include "window/widgets/Theme.h"

namespace vantor {

namespace {

constexpr int kBarHeight = 24;
constexpr int kPictureRadius = 6;
constexpr int kUsedHeight = 4;
constexpr int kFileSystem = 2;  // places among the facts

// A part that is not all is never told as 100 %.
QString percent(double share) {
    constexpr double kMostOfAPart = 0.99;
    if (share < 1) {
        share = std::min(share, kMostOfAPart);
    }
    return localeOfTexts().toString(share * 100, 'f', share < 0.1 ? 1 : 0) + QStringLiteral(" %");
}

// "" where it is not mounted. Only this one is asked then how full it is: another, on a network, may not
// answer.
QString placeOfMount(const QString& partition) {
    QFile mounts(QStringLiteral("/proc/self/mounts"));
    if (!mounts.open(QIODevice::ReadOnly)) {
        return {};
    }
    for (const QByteArray& line : mounts.readAll().split('\n')) {
        const QList<QByteArray> fields = line.split(' ');
        if (fields.size() > 1 && fields[0] == "/dev/" + partition.toLocal8Bit()) {
            QByteArray place = fields[1];
            return QString::fromLocal8Bit(place.replace("\\040", " "));
        }
    }
    return {};
}

}  // namespace

std::vector<CardPart> partsOnThisMachine(const QString& identifier) {
    std::vector<CardPart> parts;
    for (const KernelPartition& partition : kernelPartitionsOf(identifier)) {
        CardPart part{partition.name, partition.sectors, std::nullopt};
        if (const QString place = placeOfMount(partition.name); !place.isEmpty()) {
            const QStorageInfo volume(place);
            part.words += QStringLiteral(", ") + QString::fromLatin1(volume.fileSystemType());
            if (volume.bytesTotal() > 0) {
                part.used =
                    1 - static_cast<double>(volume.bytesFree()) / static_cast<double>(volume.bytesTotal());
            }
        }
        parts.push_back(std::move(part));
    }
    return parts;
}

CardPicture::CardPicture(const RangeOutlets& range, CardParts parts, QWidget* parent)
    : QWidget(parent), m_range(range), m_partsOf(std::move(parts)) {
    setObjectName(QStringLiteral("cardPicture"));
    setAccessibleName(tr("Picture of the card"));
    const auto changed = [this] { describe(); };
    for (const QLineEdit* field : {range.start.value, range.end.value}) {
        connect(field, &QLineEdit::textChanged, this, changed);
    }
    connect(range.sectorRange, &QRadioButton::toggled, this, changed);
}

QSize CardPicture::sizeHint() const {
    return {200, kBarHeight + fontMetrics().height() + theme::kUnit};
}

std::uint64_t CardPicture::sectors() const {
    return static_cast<std::uint64_t>(std::max<std::int64_t>(0, textToInt64(m_range.sectors->text())));
}

std::optional<RangeRefusal> CardPicture::refusal() const {
    return m_range.sectorRange->isChecked()
               ? refuseRange(m_range.start.value->text(), m_range.end.value->text(), m_range.sectors->text())
               : std::nullopt;
}

// Half-open, within the card; empty for a range that no search would take.
SectorRun CardPicture::chosen() const {
    const std::uint64_t all = sectors();
    if (!m_range.sectorRange->isChecked()) {
        return {0, all};
    }
    const std::int64_t first = textToInt64(m_range.start.value->text());
    const std::int64_t end = textToInt64(m_range.end.value->text());
    if (refusal() || static_cast<std::uint64_t>(first) >= all) {
        return {0, 0};
    }
    return {static_cast<std::uint64_t>(first), std::min(all, static_cast<std::uint64_t>(end))};
}

void CardPicture::learn() {
    m_parts = m_partsOf ? m_partsOf(m_range.diskIdentifier->text()) : std::vector<CardPart>();
    const std::uint64_t all = sectors();
    std::erase_if(m_parts, [all](const CardPart& part) { return part.sectors.first >= all; });
    describe();
}

void CardPicture::describe() {
    setAccessibleDescription(words());
    setToolTip(words());
    update();
}

QString CardPicture::words() const {
    // The capacity above counts in steps of 1,024 and all else of the program in steps of 1,000.
    QStringList all{tr("%1 as makers count").arg(sizeForPeople(sectors() * kSectorBytes))};
    for (const CardPart& part : m_parts) {
        all << (part.used ? tr("%1 (%2 used)").arg(part.words, percent(*part.used)) : part.words);
    }
    if (m_parts.empty()) {
        const QString fileSystem = m_range.values.at(kFileSystem)->text();
        all << (fileSystem.isEmpty() || fileSystem == noFact() ? tr("No file system is known") : fileSystem);
    }
    const SectorRun range = chosen();
    if (range.end == range.first) {
        all << tr("nothing of it would be searched");
        // The slider stays where it was, which alone does not tell what is wrong with the text beside it.
        if (const auto refused = refusal()) {
            all << refused->message.trimmed();
        }
    } else if (range.first == 0 && range.end == sectors()) {
        all << tr("all of it is searched");
    } else {
        const double share = static_cast<double>(range.end - range.first) / static_cast<double>(sectors());
        all << tr("%1 of it is searched").arg(percent(share));
    }
    return all.join(QStringLiteral(" · "));
}

void CardPicture::showEvent(QShowEvent* event) {
    learn();
    QWidget::showEvent(event);
}

void CardPicture::paintParts(QPainter& painter, const QRect& bar) const {
    const auto at = [&](std::uint64_t sector) {
        return bar.left() + static_cast<double>(std::min(sector, sectors())) /
                                static_cast<double>(sectors()) * bar.width();
    };
    for (const CardPart& part : m_parts) {
        const QRectF box(QPointF(at(part.sectors.first), bar.top()),
                         QPointF(at(part.sectors.end), bar.bottom() + 1));
        painter.fillRect(box, QColor(theme::kAccentWash));
        if (part.used) {
            painter.fillRect(
                QRectF(box.left(), box.bottom() - kUsedHeight, box.width() * *part.used, kUsedHeight),
                QColor(theme::kDisabledInk));
        }
        painter.setPen(theme::kRule);
        painter.drawLine(box.topRight(), box.bottomRight());
        painter.drawLine(box.topLeft(), box.bottomLeft());
        painter.setPen(theme::kInk);
        const QRectF words = box.adjusted(6, 0, -6, -kUsedHeight);
        painter.drawText(
            words, Qt::AlignCenter,
            fontMetrics().elidedText(part.words, Qt::ElideRight, static_cast<int>(words.width())));
    }
    if (m_parts.empty()) {
        painter.setPen(theme::kQuietInk);
        const QString fileSystem = m_range.values.at(kFileSystem)->text();
        painter.drawText(bar, Qt::AlignCenter,
                         fileSystem.isEmpty() ? sizeForPeople(sectors() * kSectorBytes) : fileSystem);
    }
    // What is left out.
    const SectorRun range = chosen();
    QColor veil = commonBackground();
    veil.setAlpha(200);
    painter.fillRect(QRectF(QPointF(bar.left(), bar.top()), QPointF(at(range.first), bar.bottom() + 1)),
                     veil);
    painter.fillRect(QRectF(QPointF(at(range.end), bar.top()), QPointF(bar.right() + 1, bar.bottom() + 1)),
                     veil);
    if (range.end > range.first) {
        painter.setPen(QPen(theme::kAccent, 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(
            QRectF(QPointF(at(range.first), bar.top()), QPointF(at(range.end), bar.bottom() + 1))
                .adjusted(1, 1, -1, -1),
            kPictureRadius - 1, kPictureRadius - 1);
    }
}

void CardPicture::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRect bar(0, 0, width(), kBarHeight);
    QPainterPath outline;
    outline.addRoundedRect(bar, kPictureRadius, kPictureRadius);
    painter.fillPath(outline, QColor(theme::kOtherRow));
    if (sectors() > 0) {
        painter.save();
        painter.setClipPath(outline);
        paintParts(painter, bar);
        painter.restore();
    }
    painter.setPen(theme::kRule);
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(bar).adjusted(0.5, 0.5, -0.5, -0.5), kPictureRadius, kPictureRadius);
    painter.setPen(theme::kQuietInk);
    const QRect below(0, kBarHeight, width(), height() - kBarHeight);
    painter.drawText(below, Qt::AlignLeft | Qt::AlignVCenter,
                     fontMetrics().elidedText(words(), Qt::ElideRight, below.width()));
}

}  // namespace vantor
