#include "decode/SoundSplitter.h"

#include <cstring>

#include "decode/DecodePool.h"

namespace vantor {

std::vector<std::uint32_t> SoundSplitter::split(const std::array<char, 4>& coding,
                                                QByteArrayView configuration, QByteArrayView sound) {
    if (!m_process) {
        m_process = decode::HelperProcess::start(decode::movieHelperOf(m_options), m_options.startDeadline,
                                                 m_options.cancelDescriptor());
    }
    if (!m_process) {
        return {};
    }
    decode::SoundToSplit head;
    std::memcpy(head.coding, coding.data(), coding.size());
    head.configurationBytes = static_cast<std::uint32_t>(configuration.size());
    QByteArray input(reinterpret_cast<const char*>(&head), sizeof head);
    input += configuration;
    input += sound;
    decode::Request request;
    request.kind = decode::RequestKind::SplitSound;
    request.maxWidth = decode::kMaxAnswerSide;
    request.maxHeight = 1;
    decode::Answer answer;
    const auto outcome = m_process->ask(request, input, m_options.openDeadline, answer);
    if (outcome != decode::AskOutcome::Answered) {
        m_process.reset();
        return {};
    }
    if (answer.status != decode::AnswerStatus::Ok) {
        return {};
    }
    std::vector<std::uint32_t> lengths(answer.width);
    std::memcpy(lengths.data(), m_process->pixels(), lengths.size() * sizeof lengths[0]);
    // The helper may say what it likes.
    std::uint64_t sum = 0;
    for (std::size_t i = 0; i < lengths.size(); ++i) {
        sum += lengths[i];
        if (lengths[i] == 0 || sum > static_cast<std::uint64_t>(sound.size())) {
            lengths.resize(i);
            break;
        }
    }
    return lengths;
}

}  // namespace vantor
