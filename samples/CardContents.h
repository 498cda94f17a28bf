// What is on the sample card, in the order it lies there.
#pragma once

#include <QByteArray>
#include <QString>
#include <cstdint>
#include <vector>

namespace vantor::samples {

// What lies between the file before and this one.
enum class Gap { None, Zeros, Noise };
enum class Pieces { One, Two };

struct CardFile {
    QString folder;
    QString name;
    QByteArray bytes;
    Gap gap = Gap::None;
    std::int64_t gapClusters = 0;
    Pieces pieces = Pieces::One;
};

// Photos, other pictures, movies, sounds, documents, archives.
std::vector<CardFile> cardContents();

// The parts of the above; each appends its own.
void addPhotos(std::vector<CardFile>& files);
void addPictures(std::vector<CardFile>& files);
void addMovies(std::vector<CardFile>& files);
void addSounds(std::vector<CardFile>& files);
void addDocuments(std::vector<CardFile>& files);
void addArchives(std::vector<CardFile>& files);

}  // namespace vantor::samples
