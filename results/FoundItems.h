// The list of found items, lean: a card may be written so that ten million are found.
#pragma once

#include <QHash>
#include <QIcon>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <map>
#include <memory>
#include <vector>

#include "results/ByteSpool.h"
#include "results/MyImageObject.h"

namespace vantor {

// An item takes eight bytes and its record in a spool: name, type, places and picture, packed. It is unpacked
// anew for everyone who asks. Any one thread at a time.
class FoundItems {
  public:
    explicit FoundItems(std::size_t mostChunksInMemory = ByteSpool::kMostChunksInMemory)
        : m_spool(mostChunksInMemory) {}

    // See ByteSpool: where the records of very many items may go.
    void setSpillFolder(ByteSpool::Folder folder) { m_spool.setFolder(std::move(folder)); }
    // The picture that many of the items appended from now on have, kept once.
    void setPlaceholder(const QByteArray& picture) {
        if (m_placeholders.empty() || m_placeholders.back() != picture) {
            m_placeholders.push_back(picture);
        }
    }

    void append(const MyImageObject& item);
    std::size_t size() const { return m_places.size(); }
    // Null beyond the end, and where the record cannot be read any more.
    std::shared_ptr<MyImageObject> at(std::size_t index) const;
    void setPicture(std::size_t index, const QByteArray& picture);
    void clear();

    std::uint64_t bytesInMemory() const {
        return m_spool.bytesInMemory() + m_places.size() * sizeof(quint64);
    }

  private:
    std::uint64_t store(const MyImageObject& item);

    ByteSpool m_spool;
    std::deque<std::uint64_t> m_places;  // of the records in the spool
    std::vector<QByteArray> m_placeholders;
    std::vector<QIcon> m_icons;  // all there are; the first is none
    QHash<qint64, quint32> m_iconNumbers;
    std::vector<QString> m_types;
    QHash<QString, quint32> m_typeNumbers;
    std::map<std::size_t, QByteArray> m_heldBytes;  // of the few items that hold some
};

}  // namespace vantor
