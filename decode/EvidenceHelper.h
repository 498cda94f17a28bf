// The way to the medium in an evidence image: what others packed is hostile input, so a helper unpacks it.
#pragma once

#include <QString>
#include <chrono>
#include <memory>
#include <vector>

#include "media/BlockSource.h"
#include "media/FileDescriptor.h"

namespace vantor {

struct EvidenceHelperOptions {
    QString helper;  // path of the helper executable; empty = beside the program
    std::chrono::milliseconds startDeadline{10000};
    std::chrono::milliseconds openDeadline{60000};
    std::chrono::milliseconds readDeadline{30000};
};

// As EvidenceOpener. A helper that crashes or hangs costs the sectors it was asked for and is started again;
// what it fails at twice is refused without it, and after some failures the medium counts as gone.
std::unique_ptr<BlockSource> openEvidenceInHelper(std::vector<FileDescriptor> segments, QString* why,
                                                  const EvidenceHelperOptions& options = {});

// Has evidence images opened so in the whole program.
void readEvidenceInHelpers();

}  // namespace vantor
