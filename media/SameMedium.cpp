// First where it was; then, by its identity and its bytes, where it may be now.
#include "media/SameMedium.h"

#include <utility>

namespace vantor {

namespace {

// Remembers a little of what passes.
class RememberedSource : public BlockSource {
  public:
    RememberedSource(std::unique_ptr<BlockSource> source, std::shared_ptr<MediumMemory> memory)
        : m_source(std::move(source)), m_memory(std::move(memory)) {}

    std::int64_t readAt(std::uint64_t sector, std::span<std::uint8_t> into) override {
        const std::int64_t got = m_source->readAt(sector, into);
        if (got > 0) {
            m_memory->note(sector, into.first(static_cast<std::size_t>(got)));
        }
        return got;
    }
    bool usable() override { return m_source->usable(); }
    std::uint64_t sectors() const override { return m_source->sectors(); }
    std::uint64_t blockSectors() const override { return m_source->blockSectors(); }

  private:
    const std::unique_ptr<BlockSource> m_source;
    const std::shared_ptr<MediumMemory> m_memory;
};

bool agrees(const MediumMemory* memory, BlockSource& source) {
    return memory == nullptr || memory->isEmpty() || memory->agreesWith(source);
}

std::unique_ptr<BlockSource> remembered(std::unique_ptr<BlockSource> source, const MediumTarget& medium) {
    if (!medium.memory) {
        return source;
    }
    return std::make_unique<RememberedSource>(std::move(source), medium.memory);
}

MediumPlace placeOf(const MediumTarget& medium) {
    const auto moved = medium.memory ? medium.memory->place() : std::nullopt;
    return moved.value_or(MediumPlace{medium.path, medium.identity.diskSequence});
}

bool sizeFits(const MediumTarget& wanted, const BlockDeviceFacts& facts) {
    return facts.sectors != 0 && (wanted.identity.sectors == 0 || wanted.identity.sectors == facts.sectors);
}

}  // namespace

std::unique_ptr<BlockSource> openSameMedium(const MediumTarget& wanted, const PresentMedia& present,
                                            const NodeOpener& open) {
    const MediumPlace place = placeOf(wanted);
    if (auto node = open(place.node); node && sizeFits(wanted, node->facts)) {
        const std::uint64_t now = node->facts.diskSequence;
        const bool proved = place.diskSequence != 0 && now != 0;
        // Where the kernel keeps no numbers the bytes have to do.
        const bool same = proved ? place.diskSequence == now : agrees(wanted.memory.get(), *node->source);
        if (same) {
            return remembered(std::move(node->source), wanted);
        }
    }
    const bool mayMove = wanted.memory && present;
    for (const MediumTarget& found : mayMove ? present() : QList<MediumTarget>()) {
        // Without a byte read so far the name of the file system must do, where it has one.
        if (!couldBeSame(wanted.identity, found.identity) ||
            (wanted.memory->isEmpty() && wanted.identity.fileSystemId.isEmpty())) {
            continue;
        }
        auto node = open(found.path);
        if (node && sizeFits(wanted, node->facts) && agrees(wanted.memory.get(), *node->source)) {
            wanted.memory->setPlace({found.path, node->facts.diskSequence});
            return remembered(std::move(node->source), wanted);
        }
    }
    return nullptr;
}

QStringList nodesOf(const MediumTarget& medium, const PresentMedia& present) {
    QStringList nodes{medium.path};
    if (medium.memory) {
        nodes << placeOf(medium).node;
        for (const MediumTarget& found : present ? present() : QList<MediumTarget>()) {
            if (couldBeSame(medium.identity, found.identity)) {
                nodes << found.path;
            }
        }
    }
    nodes.removeDuplicates();
    return nodes;
}

}  // namespace vantor
