// The way from a segment's path to a reading thread.
#include "media/EvidenceImage.h"

#include <QCoreApplication>
#include <chrono>
#include <future>
#include <utility>

namespace vantor {

namespace {

EvidenceOpener& opener() {
    static EvidenceOpener opener;
    return opener;
}

}  // namespace

void setEvidenceOpener(EvidenceOpener by) {
    opener() = std::move(by);
}

std::unique_ptr<BlockSource> openEvidenceImage(const HeldImage& image, StopRequest stop, QString* why) {
    auto segments = image.openApart();
    if (!segments) {
        return nullptr;
    }
    // The thread may be left behind by whoever waits for it.
    const auto failure = std::make_shared<std::promise<QString>>();
    auto told = failure->get_future();
    auto source = AbandonableSource::start(
        [open = opener(), failure,
         shared = std::make_shared<std::vector<FileDescriptor>>(std::move(*segments))] {
            QString sentence =
                QCoreApplication::translate("EvidenceImage", "Evidence images cannot be read here");
            auto opened = open ? open(std::move(*shared), &sentence) : nullptr;
            failure->set_value(sentence);
            return opened;
        },
        std::move(stop));
    if (!source && why != nullptr && told.wait_for(std::chrono::seconds(0)) == std::future_status::ready) {
        *why = told.get();
    }
    return source;
}

}  // namespace vantor
