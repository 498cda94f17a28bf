// What is seen by who reads a scripted drive in windows, and by who reads it sector by sector.
#pragma once

#include "media/WindowedReader.h"
#include "tests/media/ScriptedDrive.h"

namespace vantor::test {

inline constexpr std::uint64_t kWindow = WindowedReader::kWindowSectors;

inline std::vector<ScanStep> windowedSteps(ScriptedDrive& medium, std::uint64_t start, std::uint64_t end) {
    WindowedReader reader(std::make_unique<ScriptedSource>(medium));
    return scanSteps(reader, start, end);
}

template <class Reader>
std::vector<ScanStep> plainSteps(ScriptedDrive medium, std::uint64_t start, std::uint64_t end) {
    Reader reader(medium);
    return scanSteps(reader, start, end);
}

}  // namespace vantor::test
