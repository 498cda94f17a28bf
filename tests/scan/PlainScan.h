// The scans written out step by step, without any cleverness, to compare the real ones with.
#pragma once

#include <QStringList>
#include <map>
#include <optional>
#include <vector>

#include "tests/support/ScriptedMedium.h"

namespace vantor::plain {

// Whether the record's header stands in the sector by its position rule.
bool headerMatches(const QStringList& records, qsizetype record, const ScriptedMedium::Sector& sector);

// The first record that matches.
std::optional<qsizetype> firstMatch(const QStringList& records, const ScriptedMedium::Sector& sector);

struct Item {
    QString pass, name, uid;
    std::uint64_t first = 0;
    std::uint64_t end = 0;
    QByteArray data;  // of photo items

    bool operator==(const Item&) const = default;
};

struct Result {
    std::vector<Item> items;  // as handed over, empty photo items left out
    bool returned = false;
    bool stopped = false;
    std::uint64_t forIndex = 0;
    std::map<std::uint64_t, int> badTimesLeft;  // of the medium, for the pass behind this one
};

// One pass over [start, end). `stopAt`: the stop request stands when the pass is about to read that sector.
struct Pass {
    QString name;
    QStringList records;
    std::uint64_t start = 0;
    std::uint64_t end = 0;
    std::optional<std::uint64_t> stopAt;
};

Result photoPass(ScriptedMedium medium, const Pass& pass, std::uint64_t itemsNumberedBefore);
Result rawPass(ScriptedMedium medium, const Pass& pass, std::map<QString, std::uint64_t>& counts);

}  // namespace vantor::plain
