// The sample card: a card image full of deleted files, and the list of what is on it.
#pragma once

#include <QByteArray>
#include <QString>
#include <optional>
#include <vector>

#include "samples/FatCard.h"

namespace vantor::samples {

struct CardEntry {
    QString folder;
    QString name;
    QString type;  // the extension, in upper case
    std::int64_t bytes = 0;
    QByteArray sha256;            // of the whole file, in hexadecimal
    std::vector<SectorRun> runs;  // where its bytes lie; one run but for the file stored in two pieces
    QString note;
};

struct SampleCard {
    QByteArray image;
    std::vector<CardEntry> entries;  // in the order of their first sectors
};

// The card, the same at every call; empty when its contents outgrew it.
std::optional<SampleCard> buildSampleCard();

// The list as text: a header line, then one line an entry, fields separated by tabs.
QByteArray listText(const std::vector<CardEntry>& entries);

}  // namespace vantor::samples
