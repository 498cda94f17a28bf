// The sample card: the image of a memory card full of deleted files, and the list of what is on it.
#pragma once

#include <QByteArray>
#include <QString>
#include <functional>
#include <vector>

namespace vantor::samples {

// What lies between the file before and this one.
enum class Gap { None, Zeros, Noise };

struct CardFile {
    QString folder;
    QString name;
    std::function<QByteArray()> content;  // called once, in any thread
    Gap gap = Gap::None;
    int gapClusters = 0;
    bool inTwoPieces = false;
};

// What is on the card, in the order it lies there.
std::vector<CardFile> cardContents();

struct SampleCard {
    QByteArray image;
    QByteArray list;  // a header line, then one line a file, fields separated by tabs
};

// Makes the card's files and lays them out as a camera would, then deletes them. Throws std::runtime_error
// when a tool that writes the file system is missing or fails.
SampleCard buildSampleCard(const std::vector<CardFile>& files);

}  // namespace vantor::samples
