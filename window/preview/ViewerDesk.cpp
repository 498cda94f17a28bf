// From an item to what the viewer shows of it.
#include "window/preview/ViewerDesk.h"

#include <QIcon>
#include <QPainter>
#include <algorithm>
#include <utility>

#include "catalogue/FileKind.h"
#include "decode/DecodeProtocol.h"
#include "results/MyImageObject.h"
#include "results/SizeForPeople.h"
#include "window/preview/DocumentFrame.h"
#include "window/preview/ItemViewer.h"
#include "window/preview/MendPane.h"
#include "window/preview/MovieView.h"
#include "window/preview/ZoomPicture.h"

namespace vantor {

namespace {

constexpr int kIconEdge = 128;
// A window that grows while a picture is decoded does not make it coarse at once.
constexpr int kLeastBound = 1600;
constexpr int kMostBound = static_cast<int>(decode::kMaxAnswerSide);

// Of a picture what is see-through lies on white; an icon is no picture of the item.
QImage iconOnGround(const QIcon& icon) {
    QImage drawn = icon.pixmap(kIconEdge).toImage();
    drawn.setDevicePixelRatio(1);
    QImage whole(drawn.size(), QImage::Format_RGB32);
    whole.fill(ItemViewer::kGround);
    QPainter(&whole).drawImage(0, 0, drawn);
    return whole;
}

bool plays(const QString& type) {
    const FileKind kind = kindOfExtension(type);
    return kind == FileKind::Video || kind == FileKind::Sound;
}

}  // namespace

ViewerDesk::ViewerDesk(ViewerParts parts, PicturePreviewer picture, MovieLoader movie)
    : m_parts(std::move(parts)),
      m_viewer(new ItemViewer(m_parts.over)),
      m_loader(std::move(picture), std::move(movie)) {
    m_loader.onLoaded = [this](ViewedThing thing) { take(std::move(thing)); };
    m_loader.onEnlarged = [this](const QImage& more) { takeMore(more); };
    connect(m_viewer, &ItemViewer::stepWanted, this, [this](int steps) {
        const int row = m_parts.placeOf(m_index).row;
        goTo((row >= 0 ? row : m_row) + steps);
    });
    connect(m_viewer, &ItemViewer::endWanted, this,
            [this](bool last) { goTo(last ? m_parts.placeOf(m_index).count - 1 : 0); });
    connect(m_viewer, &ItemViewer::tickWanted, this, [this](bool ticked) {
        m_parts.tick(m_index, ticked);
        refresh();
    });
    connect(m_viewer, &ItemViewer::morePixelsWanted, this, &ViewerDesk::askForMore);
    connect(m_viewer->mend(), &MendPane::sideChosen, this, &ViewerDesk::begin);
    connect(m_viewer, &ItemViewer::left, this, [this] {
        m_loader.forget();
        m_index = -1;
        m_parts.left();
    });
}

ViewerDesk::~ViewerDesk() = default;

bool ViewerDesk::isOpen() const {
    return m_viewer->isVisible();
}

void ViewerDesk::open(qsizetype index) {
    if (m_parts.itemAt(index)) {
        m_viewer->open();
        show(index);
    }
}

void ViewerDesk::leave() {
    m_viewer->leave();
}

void ViewerDesk::goTo(int row) {
    const int count = m_parts.placeOf(m_index).count;
    if (row < 0 || row >= count) {
        return;
    }
    if (const qsizetype index = m_parts.itemOfRow(row); index >= 0 && index != m_index) {
        m_parts.choose(index);
        show(index);
    }
}

void ViewerDesk::show(qsizetype index) {
    if (!m_parts.itemAt(index)) {
        return;
    }
    m_index = index;
    m_mend = m_parts.mendOf ? m_parts.mendOf(index) : nullptr;
    m_viewer->mend()->setMend(m_mend.get());
    begin();
}

// The item as it was found or as it was made.
void ViewerDesk::begin() {
    const auto item = m_parts.itemAt(m_index);
    if (!item) {
        return;
    }
    m_viewed = {};
    QImage standIn;
    const QVariant picture = item->imageRepresentation();
    m_isIcon = item->imageRepresentationType() != RepresentationType::EncodedData;
    if (m_isIcon) {
        standIn = iconOnGround(picture.value<QIcon>());
    } else {
        standIn.loadFromData(picture.toByteArray());  // made by this program
    }
    const QSize full = m_isIcon ? standIn.size() : toldSize(standIn);
    m_viewer->begin(item->imageTitle(), {}, standIn, full);
    m_viewer->setNote(tr("Loading…"));
    refresh();
    load();
}

void ViewerDesk::load() {
    const auto item = m_parts.itemAt(m_index);
    ViewOrder order = m_parts.order(*item);
    order.file.hints.mend = m_viewer->mend()->isAsFound() ? nullptr : m_mend;
    order.playable = plays(item->fileType());
    m_bound =
        m_viewer->stageSize().expandedTo({kLeastBound, kLeastBound}).boundedTo({kMostBound, kMostBound});
    order.bound = m_bound;
    m_loader.load(std::move(order));
}

// As told by the file, turned as the picture is.
QSize ViewerDesk::toldSize(const QImage& like) const {
    const auto soundness = m_parts.factsOf(m_index).soundness;
    if (!soundness || soundness->width == 0 || soundness->height == 0 || soundness->width > INT_MAX ||
        soundness->height > INT_MAX) {
        return {};
    }
    const QSize told(static_cast<int>(soundness->width), static_cast<int>(soundness->height));
    const bool turned = (told.width() > told.height()) != (like.width() > like.height());
    return turned ? told.transposed() : told;
}

// A picture that stays within its bound is whole; of others what the file tells counts, if it can be true.
QSize ViewerDesk::fullSizeOf(const QImage& picture, QSize bound) const {
    if (picture.width() < bound.width() && picture.height() < bound.height()) {
        return picture.size();
    }
    const QSize told = toldSize(picture);
    return told.width() >= picture.width() && told.height() >= picture.height() ? told : picture.size();
}

void ViewerDesk::take(ViewedThing thing) {
    m_viewed.bytes = thing.bytes;
    m_viewed.lengthIsKnown = thing.lengthIsKnown;
    m_viewer->setNote({});
    if (thing.movie) {
        m_viewed.durationMs = thing.movie->durationMs();
        m_viewer->setMovie(std::move(thing.movie));
    } else if (!thing.picture.isNull()) {
        takeMore(thing.picture);
    } else if (thing.file.isEmpty()) {
        m_viewer->setNote(tr("The storage medium cannot be read."));
    } else {
        const QString obstacle = m_parts.obstacle ? m_parts.obstacle(thing.file) : QString();
        m_viewer->setNote(obstacle.isEmpty() ? tr("No picture of this file can be shown.") : obstacle);
    }
    refresh();
}

void ViewerDesk::takeMore(const QImage& picture) {
    const bool reachesBound = picture.width() >= m_bound.width() || picture.height() >= m_bound.height();
    m_viewer->setNote({});
    m_viewer->setPicture(picture, fullSizeOf(picture, m_bound), reachesBound && toldSize(picture).isEmpty());
}

void ViewerDesk::askForMore() {
    if (!m_viewed.bytes || m_bound.width() >= kMostBound) {
        return;
    }
    m_bound = {kMostBound, kMostBound};
    m_loader.enlarge(m_bound);
}

void ViewerDesk::refresh() {
    const auto item = isOpen() ? m_parts.itemAt(m_index) : nullptr;
    if (!item) {
        return;
    }
    const ViewedPlace place = m_parts.placeOf(m_index);
    if (place.row >= 0) {
        m_row = place.row;
    }
    m_viewer->setPlace(place.row >= 0 ? tr("%1 of %2")
                                            .arg(numberForPeople(static_cast<std::uint64_t>(place.row) + 1),
                                                 numberForPeople(static_cast<std::uint64_t>(place.count)))
                                      : QString());
    m_viewer->setSteps(m_row > 0, m_row + 1 < place.count);
    ItemFacts known = m_parts.factsOf(m_index);
    m_viewer->setTicked(known.ticked);
    if (m_mend && m_viewer->mend()->isAsFound()) {
        // What is known is of the file that was made.
        known.soundness.reset();
        known.mend.reset();
    }
    m_viewer->setFacts(viewerFacts(*item, known, m_viewed));
    if (const auto mend = m_parts.mendOf ? m_parts.mendOf(m_index) : nullptr; mend != m_mend) {
        show(m_index);  // something was made of it just now
    }
}

}  // namespace vantor
