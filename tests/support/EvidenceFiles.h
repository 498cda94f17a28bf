// Evidence images (E01) as libewf's own writer makes them.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include "media/SectorRun.h"

namespace vantor {

struct EvidenceTerms {
    bool isPacked = false;
    std::uint64_t segmentBytes = 0;  // at most; 0: all in one, the least is 1 MiB
    SectorRun notAcquired = {};      // sectors told to have been unreadable
};

// A chunk of the images: so many sectors have one sum.
constexpr std::uint64_t kEvidenceChunkSectors = 64;

// Writes name.E01 and what follows it into the folder; the paths in their order, none when libewf says no.
QStringList writeEvidence(const QString& folder, const QString& name, const QByteArray& medium,
                          const EvidenceTerms& terms = {});

}  // namespace vantor
