// The drive answers, and the plain readers read, sector by sector.
#include "tests/media/ScriptedDrive.h"

namespace vantor::test {

void ScriptedDrive::fill(std::uint64_t sector, std::uint8_t* bytes) {
    std::memset(bytes, 0, kSectorBytes);
    std::memcpy(bytes, &sector, sizeof(sector));
}

std::int64_t ScriptedDrive::request(std::uint64_t first, std::span<std::uint8_t> into) {
    ++requests;
    std::size_t done = 0;
    for (std::uint64_t s = first; done < into.size() && s < sectors; ++s, done += kSectorBytes) {
        if (s >= goneFrom) {
            gone = true;
            break;
        }
        if (s >= refusesFrom) {
            return done == 0 || wholeRequestFails ? -1 : static_cast<std::int64_t>(done);
        }
        const auto fault = refusals.find(s);
        if (fault != refusals.end() && fault->second > 0) {
            --fault->second;
            ++refused[s];
            const bool nothingArrives = wholeRequestFails || done == 0;
            refusedRequests.emplace_back(nothingArrives ? first : s,
                                         nothingArrives ? first + into.size() / kSectorBytes : s + 1);
            if (wholeRequestFails) {
                return -1;
            }
            break;
        }
        fill(s, into.data() + done);
    }
    return done == 0 ? -1 : static_cast<std::int64_t>(done);
}

std::int64_t ScriptedSource::readAt(std::uint64_t sector, std::span<std::uint8_t> into) {
    const std::lock_guard lock(m_mutex);
    return m_medium.request(sector, into);
}

bool ScriptedSource::usable() {
    const std::lock_guard lock(m_mutex);
    return !m_medium.gone;
}

bool PlainReader::ask() {
    std::uint8_t bytes[kSectorBytes];
    if (m_medium.gone || m_medium.request(position(), bytes) != std::int64_t{kSectorBytes}) {
        return false;
    }
    std::memcpy(m_bytes, bytes, kSectorBytes);
    handOver(m_bytes, 1);
    return true;
}

bool PlainReaderWithRetry::fetch() {
    if (m_refused.contains(position()) || (!ask() && !ask())) {
        m_refused.add(position());
        return false;
    }
    return true;
}

std::vector<ScanStep> scanSteps(SectorReader& reader, std::uint64_t start, std::uint64_t end) {
    if (start != 0) {
        reader.seek(start);
    }
    std::vector<ScanStep> steps;
    steps.reserve(end - start);
    for (std::uint64_t index = start; index < end; ++index) {
        ScanStep step;
        step.readSucceeded = reader.read();
        if (!step.readSucceeded) {
            step.seekSucceeded = reader.seek(index);
        }
        step.position = reader.position();
        std::memcpy(&step.bytesOf, reader.current(), sizeof(step.bytesOf));
        steps.push_back(step);
    }
    return steps;
}

}  // namespace vantor::test
