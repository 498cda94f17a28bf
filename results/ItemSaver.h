// Writes found items into the destination folder.
#pragma once

#include <QByteArrayView>
#include <QString>

#include "media/SectorReader.h"
#include "results/CarvedRun.h"

namespace vantor {

struct SaveOutcome {
    bool saved = false;
    QString path;                         // of the saved file
    QString error;                        // a sentence for the user when it was not saved
    std::uint64_t sectorsUnreadable = 0;  // written as zeros
};

// One destination. An item becomes `<destination>/<type>/<name>`, whole or not at all; nothing is ever
// overwritten, and no type or name leads out of the destination. Any one thread.
class ItemSaver {
  public:
    explicit ItemSaver(const QString& destination) : m_destination(destination) {}

    SaveOutcome saveBytes(const QString& type, const QString& name, QByteArrayView bytes) const;

    // Reads the item's sectors from its medium.
    SaveOutcome saveRuns(const QString& type, const QString& name, const CarvedRun& item,
                         SectorReader& medium) const;

  private:
    QString m_destination;
};

// The text as one component of a path that every common file system takes; "_" for a text that would be
// empty, "." or
// "..".
QString safePathComponent(const QString& text);

}  // namespace vantor
