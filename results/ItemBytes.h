// Which bytes of the medium are an item's: those it was carved from, or those that the card's directory and
// its own structure agree on.
#pragma once

#include <QString>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "results/CardIndex.h"
#include "results/LaidOutReader.h"
#include "results/MediumBytes.h"
#include "results/TrueLength.h"

namespace vantor {

// What was found out about an item.
struct ItemTruth {
    TrueLength length;
    // Where the bytes lie; nothing: where they were carved.
    std::optional<Assembly> assembly;
    // What the card tells of the item; null where nothing certain does.
    std::shared_ptr<const CardFile> file;
    // The length is the directory's word, not that of the item's structure.
    bool lengthIsTold = false;
};

// A length that the directory tells makes a file complete whose own structure tells none.
Verdict verdictOf(const ItemTruth& truth);

// One thread. The source and the lent memory outlive it.
class ItemBytes {
  public:
    ItemBytes(const ItemSource& source, std::vector<std::uint8_t>& kept);
    // The bytes as another look at the item found them.
    ItemBytes(const ItemSource& source, std::vector<std::uint8_t>& kept, const ItemTruth& truth);

    // Follows the structure of the item as its type has it, first where it was carved, then where the
    // source's assemblies and the card's directory say that it lies. `mayGoBeyond` as for trueLengthOf().
    const ItemTruth& measure(const QString& type, bool mayGoBeyond);

    // The same where the length as it was carved is known already.
    const ItemTruth& measureFrom(const QString& type, const TrueLength& carved);

    const ItemTruth& truth() const { return m_truth; }
    // As measure() found them.
    MediumBytes& bytes() { return m_pieces ? m_pieces->bytes : m_carved; }

  private:
    struct Pieces {
        Pieces(const ItemSource& source, const Assembly& assembly, std::vector<std::uint8_t>& kept);

        const std::unique_ptr<LaidOutReader> laidOut;  // of a told file that is; else null
        const ItemSource source;
        MediumBytes bytes;
    };

    void askCard(const QString& type);
    bool takeMend(const QString& type);
    bool runsIntoOthers(const CardTable& card) const;
    bool lieAsCarved(const Assembly& assembly) const;
    void measureTold(const QString& type);
    bool tryPieces(const QString& type, const Assembly& assembly, bool placesAreKnown, bool believed);
    void take(const CardFile* file);
    bool takeLength(std::uint64_t bytes);

    const ItemSource& m_source;
    std::vector<std::uint8_t> m_keptOfPieces;
    MediumBytes m_carved;
    std::unique_ptr<Pieces> m_pieces;
    ItemTruth m_truth;
};

}  // namespace vantor
