// Saves a choice of found items one after the other, while somebody watches.
#pragma once

#include <QString>
#include <QStringList>
#include <atomic>
#include <functional>
#include <memory>
#include <vector>

#include "media/SectorReader.h"

namespace vantor {

class MyImageObject;

struct SaveRequest {
    std::vector<std::shared_ptr<MyImageObject>> items;
    QString destination;
    std::function<std::unique_ptr<SectorReader>()> openMedium;
};

// What became of the items.
struct SaveReport {
    bool mediumOpened = false;
    std::vector<std::shared_ptr<MyImageObject>> saved;
    std::size_t withUnreadableSectors = 0;  // of the saved ones
    std::size_t duplicates = 0;             // of the saved ones: the bytes of another, written once
    std::size_t failed = 0;
    QString firstError;  // of the failed ones
};

// run() belongs to one thread; the words may be read and set by any other meanwhile.
class SaveJob {
  public:
    explicit SaveJob(SaveRequest request) : m_request(std::move(request)) {}

    // Ends after the item at hand once cancelled.
    void run();

    std::size_t total() const { return m_request.items.size(); }
    std::atomic<std::size_t> done{0};
    std::atomic<bool> cancelled{false};
    std::atomic<bool> finished{false};

    // Once finished.
    const SaveReport& report() const { return m_report; }

  private:
    SaveRequest m_request;
    SaveReport m_report;
};

}  // namespace vantor
