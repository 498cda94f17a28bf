// The texts that are told by their first words: lists, subtitles, drawings, games, feeds.
#pragma once

#include <QByteArray>
#include <vector>

namespace vantor::samples {

struct TextSpecimen {
    const char* name;  // on the card
    QByteArray bytes;
};

// One small but whole file a kind.
std::vector<TextSpecimen> listedTexts();
std::vector<TextSpecimen> drawnTexts();
std::vector<TextSpecimen> markedUpTexts();

}  // namespace vantor::samples
