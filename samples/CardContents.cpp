// The whole of the card's contents.
#include "samples/CardContents.h"

namespace vantor::samples {

std::vector<CardFile> cardContents() {
    std::vector<CardFile> files;
    addPhotos(files);
    addPictures(files);
    addMovies(files);
    addSounds(files);
    addDocuments(files);
    addArchives(files);
    return files;
}

}  // namespace vantor::samples
