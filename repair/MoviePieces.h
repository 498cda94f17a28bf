// A movie in pieces, put together by what its index promises of every place in it.
#pragma once

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <vector>

#include "formats/IsoFragments.h"
#include "repair/ClusterFile.h"
#include "repair/FreeClusters.h"
#include "repair/LaidClusters.h"
#include "repair/MediumBlocks.h"
#include "repair/MovieSamples.h"
#include "repair/WrittenInTurns.h"

namespace vantor {

// Where an index may stand on a medium: the first byte of something that begins as one.
std::vector<std::uint64_t> indexPlaces(MediumBlocks& medium, const std::atomic<int>& stop);

struct PiecedMovie {
    std::vector<std::uint64_t> clusters;  // in the order of the file
    std::uint64_t bytes = 0;
    std::size_t samples = 0;       // that could be looked at
    std::size_t wholeSamples = 0;  // of these
    bool decodable = false;        // a decoder would notice a foreign piece in its pictures
    bool faint = false;            // its samples show little of what they are
    bool telling = false;          // no other movie is likely to fit the index
    bool ownIndex = true;          // none of the index's pieces may be another's
    std::size_t guessed = 0;       // clusters for which there was more than one choice
};

// Finds where the clusters of one movie lie: an object a movie. Any one thread.
class MoviePieces {
  public:
    // `otherFiles`: whole ones of other types. One that is no larger than a picture may be a movie's own.
    MoviePieces(MediumBlocks& medium, const FreeClusters& free, const std::vector<std::uint64_t>& indexPlaces,
                const std::atomic<int>& stop, std::uint64_t searchBytes = kMostSearched,
                std::span<const SectorRun> otherFiles = {})
        : m_medium(medium),
          m_unexplained(free),
          m_otherFiles(otherFiles),
          m_free(free),
          m_left(free),
          m_indexPlaces(indexPlaces),
          m_stop(stop),
          m_searchLeft(searchBytes) {}

    // Bytes that may still be looked at where nothing says that a piece is near: without any left only what
    // is likely is tried.
    static constexpr std::uint64_t kMostSearched = std::uint64_t{32} << 30;
    std::uint64_t searchLeft() const { return m_searchLeft; }

    // The movie that begins in the cluster; nothing where no index of it or too little of its data is found.
    // `others`: clusters that belong to other movies.
    std::optional<PiecedMovie> assemble(std::uint64_t firstCluster,
                                        std::span<const std::uint64_t> others = {});
    // The clusters that are surely this movie's: in them a sample begins that tells its length.
    std::vector<std::uint64_t> anchorsOf(std::uint64_t firstCluster);

  private:
    struct Layout {
        DataPlace data;
        IsoBox index;
        std::uint64_t bytes = 0;
        bool chunks = false;     // an AVI movie; else one of boxes
        std::uint64_t told = 0;  // bytes of an AVI movie by its own account
        std::uint64_t mediaBytes = 0;
        bool endTold = true;  // nothing of the movie can follow
    };
    // What is known of a movie in fragments up to the one looked for.
    struct Fragments {
        std::vector<FragmentedTrack> tracks;
        std::uint32_t sequence = 0;  // of the one before
        std::uint32_t alikeLeft = kMostAlikeSamples;
        unsigned triesLeft = 0;  // for clusters of one fragment's head
    };

    void begin(std::span<const std::uint64_t> others);
    void leaveOut(std::uint64_t largest);
    bool holdsPhotos() const;
    bool read(std::uint64_t firstCluster);
    using TakeIndex = std::function<bool(const std::vector<std::uint64_t>& clusters)>;

    bool readHead(std::uint64_t firstCluster);
    std::vector<std::uint64_t> rowFrom(std::vector<std::uint64_t> row) const;
    bool takeData(const IsoBox& data, std::uint64_t bytes);
    bool findIndexInFront(std::uint64_t firstCluster, const IsoBox& index);
    bool takeIndexInFront(const std::vector<std::uint64_t>& clusters);
    bool readChunkHead(std::uint64_t firstCluster, ByteView& view);
    bool findIndexBehind();
    std::uint64_t indexBytes(ByteView& view, std::uint64_t at) const;
    bool takeChunkIndex(ByteSource& file);
    bool placeIndex(std::uint64_t firstOfIndex, std::uint64_t number);
    bool mayTryIndex(unsigned tries) const;
    bool tryIndex(const std::vector<std::uint64_t>& clusters, unsigned& tries, const TakeIndex& take);
    bool continueIndex(std::vector<std::uint64_t>& clusters, std::size_t wanted, unsigned& tries,
                       const TakeIndex& take);
    bool continueIndexElsewhere(std::vector<std::uint64_t>& clusters, std::size_t wanted,
                                const TakeIndex& take);
    bool findRestOfIndex(std::vector<std::uint64_t>& clusters, std::size_t wanted, const TakeIndex& take);
    void search(std::uint64_t bytes) { m_searchLeft -= std::min(m_searchLeft, bytes); }
    bool takeIndex(const std::vector<std::uint64_t>& clusters);

    bool readFragments(ByteView& head, const IsoBox& movie, std::uint64_t at);
    bool placeBox(std::uint64_t at, std::string_view name, Fragments& known,
                  const std::function<bool(ByteView& view)>& take);
    bool continueBox(std::uint64_t at, std::string_view name, Fragments& known,
                     const std::function<bool(ByteView& view)>& take);
    bool takeFragment(ByteView& view, std::uint64_t& at, Fragments& known);
    bool takeFragmentIndex(ByteView& view, std::uint64_t at);

    bool placeSamples();
    bool placeAnchors();
    bool isTelling() const;
    enum class IndexPart { Row, Cluster };
    bool tellsInEach(IndexPart part);
    Likeness likeness(std::uint64_t number, std::uint64_t cluster);
    bool placeAnchor(std::uint64_t number, std::uint64_t known);
    bool accept(std::uint64_t number, std::uint64_t cluster, Likeness least);
    void placeInTurns();
    void placeInTurns(const std::vector<KnownCluster>& known);
    void fillBetween();
    void passOverPhotos(std::uint64_t before, std::uint64_t end);
    void fillRow(std::uint64_t before, std::uint64_t end);
    std::optional<std::uint64_t> ifLeft(std::optional<std::uint64_t> cluster) const;
    bool lay(std::uint64_t before, std::uint64_t end, std::uint64_t ahead, std::uint64_t step);
    struct RowLook {
        std::size_t broken = 0;  // samples
        bool proved = true;      // a foreign cluster would have shown
    };
    RowLook lookAtRow(std::uint64_t before, std::uint64_t end);

    MediumBlocks& m_medium;
    const FreeClusters& m_unexplained;
    const std::span<const SectorRun> m_otherFiles;
    std::span<const std::uint64_t> m_others;  // clusters of other movies
    FreeClusters m_free;                      // of the unexplained, what no other file holds
    FreeClusters m_left;                      // of these, what is not known to belong elsewhere
    const std::vector<std::uint64_t>& m_indexPlaces;
    const std::atomic<int>& m_stop;

    Layout m_layout;
    std::vector<PromisedSample> m_samples;
    LaidClusters m_laid;
    std::uint64_t m_step = 1;  // free clusters from one piece to the next, where placed last
    bool m_stepKept = false;   // by the one placed last as well
    std::size_t m_guessed = 0;
    unsigned m_farSearches = 0;
    std::uint64_t m_searchLeft = 0;
    std::vector<std::uint64_t> m_indexRow;  // clusters of the file up to the index's last that are tried
};

}  // namespace vantor
