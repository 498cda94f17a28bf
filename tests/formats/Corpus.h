// Real files for the format tests, and sources that watch how much a walker reads of them.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "formats/ByteSource.h"

namespace vantor::test {

using Bytes = std::vector<std::uint8_t>;

struct CorpusFile {
    std::string path;       // as the manifest writes it
    std::string extension;  // upper case
    bool hostile = false;
    std::string format;  // as the manifest writes it
};

// The folder of real files: VANTOR_CORPUS, else ../shared/corpus beside the sources; empty where there is
// none.
std::filesystem::path corpusRoot();
// The single files the manifest lists (no media images).
std::vector<CorpusFile> corpusFiles(const std::filesystem::path& folder);
// Small files by other programs, listed in the folder's README.
std::filesystem::path foreignFolder();
// The type of a file by its name, upper case.
std::string typeByName(const std::filesystem::path& file);
Bytes readFile(const std::filesystem::path& path);

// `count` bytes of seeded noise, the same on every machine.
Bytes noise(std::size_t count, std::uint32_t seed);

// A large part of a file with what may have taken its place.
struct SpoiltPart {
    std::size_t from, to;
    Bytes foreign;
};
// The second half as noise, the middle third as noise and as zeros; without those that are so already.
std::vector<SpoiltPart> spoiltParts(const Bytes& file);
Bytes withPart(Bytes file, std::size_t from, const Bytes& foreign);

// Two borrowed stretches of bytes one after the other, counting the reading.
class JoinedSource final : public ByteSource {
  public:
    JoinedSource(const Bytes& first, const Bytes& second) : m_first(first), m_second(second) {}

    std::uint64_t size() const override { return m_first.size() + m_second.size(); }
    std::size_t read(std::uint64_t offset, std::span<std::uint8_t> into) override;

    std::uint64_t reads() const { return m_reads; }
    std::uint64_t bytesRead() const { return m_bytesRead; }

  private:
    const Bytes& m_first;
    const Bytes& m_second;
    std::uint64_t m_reads = 0;
    std::uint64_t m_bytesRead = 0;
};

// Borrowed bytes with one unreadable sector, counting the reading.
class HoledSource final : public ByteSource {
  public:
    HoledSource(const Bytes& bytes, std::uint64_t hole) : m_bytes(bytes), m_hole(hole) {}

    std::uint64_t size() const override { return m_bytes.size(); }
    std::size_t read(std::uint64_t offset, std::span<std::uint8_t> into) override;

    std::uint64_t reads() const { return m_reads; }

  private:
    const Bytes& m_bytes;
    const std::uint64_t m_hole;
    std::uint64_t m_reads = 0;
};

}  // namespace vantor::test
