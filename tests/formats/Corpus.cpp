// Finding and reading the real files.
#include "Corpus.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <random>
#include <sstream>

namespace vantor::test {

std::filesystem::path corpusRoot() {
    const char* told = std::getenv("VANTOR_CORPUS");
    const std::filesystem::path folder =
        told != nullptr && *told != '\0'
            ? std::filesystem::path(told)
            : std::filesystem::path(VANTOR_SOURCE_DIR) / ".." / "shared" / "corpus";
    return std::filesystem::exists(folder / "MANIFEST.tsv") ? folder : std::filesystem::path();
}

std::string typeByName(const std::filesystem::path& file) {
    std::string type = file.extension().string();
    type.erase(0, 1);
    std::transform(type.begin(), type.end(), type.begin(),
                   [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    return type;
}

std::vector<CorpusFile> corpusFiles(const std::filesystem::path& folder) {
    std::vector<CorpusFile> files;
    std::ifstream manifest(folder / "MANIFEST.tsv");
    std::string line;
    std::getline(manifest, line);  // column names
    while (std::getline(manifest, line)) {
        std::istringstream columns(line);
        std::string path, format;
        std::getline(columns, path, '\t');
        std::getline(columns, format, '\t');
        if (format == "disk image")
            continue;
        files.push_back({path, typeByName(path), format == "hostile", format});
    }
    return files;
}

std::filesystem::path foreignFolder() {
    return std::filesystem::path(VANTOR_SOURCE_DIR) / "tests/data/foreign";
}

Bytes readFile(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

Bytes noise(std::size_t count, std::uint32_t seed) {
    std::mt19937 random(seed);
    Bytes bytes(count);
    for (auto& byte : bytes)
        byte = static_cast<std::uint8_t>(random() >> 24);
    return bytes;
}

Bytes withPart(Bytes file, std::size_t from, const Bytes& foreign) {
    std::copy(foreign.begin(), foreign.end(), file.begin() + static_cast<std::ptrdiff_t>(from));
    return file;
}

std::vector<SpoiltPart> spoiltParts(const Bytes& file) {
    const std::size_t half = file.size() / 2, third = file.size() / 3;
    std::vector<SpoiltPart> parts{{half, file.size(), noise(file.size() - half, 11)},
                                  {third, 2 * third, noise(third, 13)},
                                  {third, 2 * third, Bytes(third, 0)}};
    std::erase_if(parts,
                  [&](const SpoiltPart& part) { return withPart(file, part.from, part.foreign) == file; });
    return parts;
}

std::size_t JoinedSource::read(std::uint64_t offset, std::span<std::uint8_t> into) {
    ++m_reads;
    std::size_t done = 0;
    for (const auto* part : {&m_first, &m_second}) {
        if (offset >= part->size()) {
            offset -= part->size();
            continue;
        }
        const auto count = std::min<std::uint64_t>(into.size() - done, part->size() - offset);
        std::copy_n(part->begin() + static_cast<std::ptrdiff_t>(offset), count,
                    into.begin() + static_cast<std::ptrdiff_t>(done));
        done += static_cast<std::size_t>(count);
        offset = 0;
    }
    m_bytesRead += done;
    return done;
}

std::size_t HoledSource::read(std::uint64_t offset, std::span<std::uint8_t> into) {
    constexpr std::uint64_t kSector = 512;
    ++m_reads;
    if (offset >= m_hole && offset < m_hole + kSector)
        return 0;
    if (offset < m_hole)
        into = into.first(static_cast<std::size_t>(std::min<std::uint64_t>(into.size(), m_hole - offset)));
    return SpanSource(m_bytes).read(offset, into);
}

}  // namespace vantor::test
