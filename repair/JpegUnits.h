// The coded units of a JPEG picture one by one, with a look at how each joins the row above.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "repair/CodedBits.h"
#include "repair/JpegHead.h"

namespace vantor {

// How far apart the samples on both sides of a seam are, in doublings, and how far they would be if the row
// lay elsewhere; of a picture's own rows the first is far less.
struct SeamCost {
    float own = 0;
    float shifted = 0;
    unsigned seams = 0;

    void add(const SeamCost& other) {
        own += other.own;
        shifted += other.shifted;
        seams += other.seams;
    }
};

// Source: ITU-T T.81, annex F. Never fails by memory or time: a unit takes as many bytes as it has.
class JpegUnits {
  public:
    enum class Outcome {
        Unit,
        Complete,   // the picture has all its units
        Broken,     // no unit can be written so
        OutOfData,  // the supply has no further cluster
    };
    struct Place : BitPlace {
        std::uint64_t unit = 0;
        std::array<int, 4> dc{};
    };
    // Sample means along the lower edges of a row of blocks, two a block.
    using Edges = std::vector<std::int16_t>;
    struct Snapshot {
        Place place;
        Edges above;
        Edges current;
    };

    JpegUnits(const JpegHead& head, std::uint64_t clusterBytes, ClusterSupply& supply);

    // From the first unit on.
    void begin();
    void resume(const Snapshot& snapshot);
    Outcome next();

    const Place& place() const { return m_place; }
    // Before the unit that next() looked at last: what can be gone on from with another cluster than that
    // which the unit reached into.
    void snapshotBefore(Snapshot& into) const;
    // Of the unit read last.
    const SeamCost& cost() const { return m_cost; }
    // Behind the last unit: where the picture's end mark ends; 0 where none stands there.
    std::uint64_t end();

  private:
    struct Part {
        unsigned component = 0;
        unsigned across = 1;
        unsigned down = 1;
        std::size_t firstEdge = 0;
        std::size_t edges = 0;
        std::array<float, 64> weights{};
    };
    struct EdgePair {
        float top[2];
        float bottom[2];
    };

    bool block(const Part& part, EdgePair& edges);
    bool unit();
    bool restart();
    void judge();
    void keepEdges();

    const JpegHead& m_head;
    CodedBits m_in;
    std::vector<Part> m_parts;
    std::size_t m_edgeCount = 0;

    Place m_place;
    Place m_before;
    Edges m_above;
    Edges m_current;
    std::vector<EdgePair> m_unitEdges;  // of the unit read last
    bool m_pending = false;             // they are not among m_current yet
    SeamCost m_cost;
};

}  // namespace vantor
