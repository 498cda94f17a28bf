// The program's end: hands the segments over and asks for sectors.
#include "decode/EvidenceHelper.h"

#include <QCoreApplication>
#include <algorithm>
#include <cstring>
#include <utility>

#include "decode/DecodePool.h"
#include "decode/HelperProcess.h"
#include "media/EvidenceImage.h"
#include "media/SectorReader.h"
#include "media/SectorSet.h"

namespace vantor {

using namespace decode;

namespace {

// A broken helper costs its start and, where it hangs, its whole deadline.
constexpr int kMostRestarts = 6;
// More than any image has; what is calculated with sectors stays within its numbers.
constexpr std::uint64_t kMostSectors = std::uint64_t{1} << 48;
constexpr std::uint64_t kMostUnitSectors = std::uint64_t{1} << 20;

QString sentenceFor(StartFailure failure) {
    return failure == StartFailure::NotCaged
               ? QCoreApplication::translate("EvidenceImage",
                                             "Evidence images are only read shut in, which this system "
                                             "does not allow")
               : QCoreApplication::translate(
                     "EvidenceImage", "The part of the program that reads evidence images does not start");
}

class EvidenceSource final : public BlockSource {
  public:
    EvidenceSource(std::vector<FileDescriptor> segments, EvidenceHelperOptions options)
        : m_segments(std::move(segments)), m_options(std::move(options)) {}

    bool start(QString* why);
    std::int64_t readAt(std::uint64_t sector, std::span<std::uint8_t> into) override;
    bool usable() override { return m_process != nullptr; }
    std::uint64_t sectors() const override { return m_facts.sectors; }
    std::uint64_t blockSectors() const override { return m_facts.unitSectors; }

  private:
    std::unique_ptr<HelperProcess> startProcess(StartFailure* failure = nullptr) const;
    std::optional<EvidenceFacts> open(HelperProcess& process) const;
    AskOutcome ask(const EvidenceQuestion& question, std::span<std::uint8_t> into, std::size_t& got);
    void replaceHelper();

    const std::vector<FileDescriptor> m_segments;
    const EvidenceHelperOptions m_options;
    std::unique_ptr<HelperProcess> m_process;  // none: gone
    EvidenceFacts m_facts;
    int m_restarts = 0;
    SectorSet m_deadly;
};

std::unique_ptr<HelperProcess> EvidenceSource::startProcess(StartFailure* failure) const {
    return HelperProcess::start(m_options.helper, m_options.startDeadline, -1, failure);
}

std::optional<EvidenceFacts> EvidenceSource::open(HelperProcess& process) const {
    Answer answer;
    const auto answered = [&answer](AskOutcome outcome) {
        return outcome == AskOutcome::Answered && answer.status == AnswerStatus::Ok;
    };
    Request request;
    request.maxWidth = kEvidenceFactsWords;
    request.maxHeight = 1;
    request.kind = RequestKind::AddSegment;
    for (const FileDescriptor& segment : m_segments) {
        if (!answered(process.askFile(request, segment.get(), m_options.openDeadline, answer))) {
            return std::nullopt;
        }
    }
    request.kind = RequestKind::OpenEvidence;
    if (!answered(process.askFile(request, -1, m_options.openDeadline, answer)) ||
        answer.width != kEvidenceFactsWords) {
        return std::nullopt;
    }
    EvidenceFacts facts;
    std::memcpy(&facts, process.pixels(), sizeof facts);
    const bool sound = facts.sectors >= 1 && facts.sectors <= kMostSectors && facts.unitSectors >= 1 &&
                       facts.unitSectors <= kMostUnitSectors;
    return sound ? std::optional(facts) : std::nullopt;
}

bool EvidenceSource::start(QString* why) {
    StartFailure failure = StartFailure::None;
    m_process = startProcess(&failure);
    if (!m_process) {
        *why = sentenceFor(failure);
        return false;
    }
    const auto facts = open(*m_process);
    if (!facts) {
        *why = QCoreApplication::translate("EvidenceImage",
                                           "The evidence image is damaged or of a kind that cannot be read");
        return false;
    }
    m_facts = *facts;
    return true;
}

void EvidenceSource::replaceHelper() {
    m_process = nullptr;
    if (++m_restarts > kMostRestarts) {
        return;
    }
    auto process = startProcess();
    if (!process) {
        return;
    }
    const auto facts = open(*process);
    if (facts && facts->sectors == m_facts.sectors && facts->unitSectors == m_facts.unitSectors) {
        m_process = std::move(process);
    }
}

// `got` is the count of sectors.
AskOutcome EvidenceSource::ask(const EvidenceQuestion& question, std::span<std::uint8_t> into,
                               std::size_t& got) {
    Request request;
    request.kind = RequestKind::ReadEvidence;
    request.maxWidth = kSectorWidth;
    request.maxHeight = static_cast<std::uint32_t>(question.sectors);
    Answer answer;
    const AskOutcome outcome =
        m_process->ask(request, QByteArrayView(reinterpret_cast<const char*>(&question), sizeof question),
                       m_options.readDeadline, answer);
    got = 0;
    if (outcome == AskOutcome::Answered && answer.status == AnswerStatus::Ok) {
        if (answer.width != kSectorWidth) {
            return AskOutcome::BadAnswer;
        }
        got = answer.height;
        std::memcpy(into.data(), m_process->pixels(), got * kSectorBytes);
    }
    return outcome;
}

std::int64_t EvidenceSource::readAt(std::uint64_t sector, std::span<std::uint8_t> into) {
    if (!m_process || sector >= m_facts.sectors || m_deadly.contains(sector)) {
        return -1;
    }
    EvidenceQuestion question;
    question.first = sector;
    question.sectors =
        std::min({std::uint64_t{kMostEvidenceSectors}, into.size() / kSectorBytes, m_facts.sectors - sector});
    std::size_t got = 0;
    switch (ask(question, into, got)) {
        case AskOutcome::Answered:
            return got == 0 ? -1 : static_cast<std::int64_t>(got * kSectorBytes);
        case AskOutcome::NotPossible:
            return -1;
        default:
            break;
    }
    // Asked for more than a sector it may have stumbled over any of them; they come one by one then.
    if (question.sectors == 1) {
        const std::uint64_t begin = sector / m_facts.unitSectors * m_facts.unitSectors;
        for (std::uint64_t each = begin; each < begin + m_facts.unitSectors; ++each) {
            m_deadly.add(each);
        }
    }
    replaceHelper();
    return -1;
}

}  // namespace

std::unique_ptr<BlockSource> openEvidenceInHelper(std::vector<FileDescriptor> segments, QString* why,
                                                  const EvidenceHelperOptions& options) {
    EvidenceHelperOptions own = options;
    if (own.helper.isEmpty()) {
        own.helper = DecodePool::helperPath(QStringLiteral("vantor-read-evidence"));
    }
    QString sentence;
    auto source = std::make_unique<EvidenceSource>(std::move(segments), own);
    if (source->start(&sentence)) {
        return source;
    }
    if (why != nullptr) {
        *why = sentence;
    }
    return nullptr;
}

void readEvidenceInHelpers() {
    setEvidenceOpener([](std::vector<FileDescriptor> segments, QString* why) {
        return openEvidenceInHelper(std::move(segments), why);
    });
}

}  // namespace vantor
