// Writes a small whole file of every format into the folder named on the command line, as seeds for the
// harnesses.
#include <cstdio>
#include <filesystem>
#include <fstream>

#include "Samples.h"

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s FOLDER\n", argv[0]);
        return 2;
    }
    const std::filesystem::path folder = argv[1];
    std::filesystem::create_directories(folder);
    for (const auto& sample : vantor::test::allSamples()) {
        std::ofstream out(folder / ("sample." + sample.extension), std::ios::binary);
        out.write(reinterpret_cast<const char*>(sample.bytes.data()),
                  static_cast<std::streamsize>(sample.bytes.size()));
        if (!out)
            return 1;
    }
    return 0;
}
