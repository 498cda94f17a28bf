// The record of a recovery that lies beside the saved files: one page to read, one table for machines.
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <cstdint>
#include <functional>
#include <vector>

#include "saving/ItemSaver.h"

namespace vantor {

struct ReportedItem {
    QString name;  // as published
    QString type;
    std::uint64_t firstSector = 0;  // as published, half-open
    std::uint64_t endSector = 0;
    SaveOutcome outcome;
};

struct ReportHead {
    QString medium;
    std::uint64_t sectors = 0;  // of the medium; 0: not known
    QString mode;               // what was searched for, in words
    QDateTime begun;
    QDateTime ended;
    QString searchEnd;  // how the search ended, in words
};

// What a mode searches for: "photos", "videos" or "files".
QString wordsForMode(int mode);

// An encoded picture (JPEG or PNG) of a saved item, or nothing. Called for each item that was saved.
using ReportThumbnail = std::function<QByteArray(const ReportedItem&)>;

struct WrittenReport {
    QString html;   // path
    QString csv;    // path
    QString error;  // a sentence for the user when one of them could not be written
};

// Writes "Recovery report.html" and "Recovery report.csv" (RFC 4180, UTF-8, with a line of column names) into
// the folder; replaces nothing. Where one lies there already, the names tell when the saving ended:
// "Recovery report 2026-11-22 14.05.33.html".
WrittenReport writeReport(const QString& folder, const ReportHead& head,
                          const std::vector<ReportedItem>& items, const ReportThumbnail& thumbnail = {});

}  // namespace vantor
