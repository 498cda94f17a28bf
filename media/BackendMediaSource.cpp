// Choosing the backend that answers, and looking facts up in its listing.
#include "media/BackendMediaSource.h"

#include <QSet>
#include <utility>

namespace vantor {

BackendMediaSource::BackendMediaSource(std::vector<std::unique_ptr<MediaBackend>> backends)
    : m_backends(std::move(backends)) {
    for (const auto& backend : m_backends) {
        backend->changed = [this] {
            if (changed) {
                changed();
            }
        };
    }
}

BackendMediaSource::~BackendMediaSource() = default;

QStringList BackendMediaSource::mountedRemovableMedia() {
    listAnew();
    QStringList paths;
    for (const MediumRecord& medium : m_media) {
        paths << medium.path;
    }
    return paths;
}

void BackendMediaSource::listAnew() {
    m_listed = true;
    std::optional<QList<MediumRecord>> media;
    for (const auto& backend : m_backends) {
        if (media) {
            backend->rest();
        } else {
            media = backend->list();
        }
    }
    m_media = media.value_or(QList<MediumRecord>());
    // Of media that are mounted at one place, one over the other, each is told by a path of its own.
    QSet<QString> paths;
    for (MediumRecord& medium : m_media) {
        if (paths.contains(medium.path)) {
            medium.path = medium.target.path;
        }
        paths.insert(medium.path);
    }
    QHash<QString, MediumTarget> targets;
    for (const MediumRecord& medium : m_media) {
        targets[medium.facts.value(QStringLiteral("DeviceIdentifier")).toString()] = medium.target;
    }
    m_targets->replace(targets);
}

MediaFacts BackendMediaSource::diskInfo(const QString& path) {
    if (!m_listed) {
        listAnew();
    }
    for (const MediumRecord& medium : m_media) {
        if (path == medium.path || path == medium.target.path ||
            path == medium.facts.value(QStringLiteral("DeviceIdentifier")).toString()) {
            return medium.facts;
        }
    }
    return {};
}

DescriptorRequest BackendMediaSource::descriptorRequest() const {
    for (const auto& backend : m_backends) {
        if (DescriptorRequest request = backend->descriptorRequest()) {
            return request;
        }
    }
    return {};
}

}  // namespace vantor
