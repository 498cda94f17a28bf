// Stopping, clearing and choosing movies.

#include "window/MyTableController.h"

namespace vantor {

bool MyTableController::isPlaying(const Movie* movie) const {
    // True as well for a rate that is not a number.
    return movie != nullptr && movie->rate() != 0.0F;
}

void MyTableController::stopPlayingMovie(Movie* movie) const {
    if (isPlaying(movie)) {
        movie->stop();
    }
}

void MyTableController::closemovie_Win() {
    stopPlayingMovie(mMovieView->movie());
    mMovieView->setMovie(nullptr);
}

std::unique_ptr<Movie> MyTableController::getAMovieFile() {
    QFileDialog chooser(window, tr("Choose a movie"));
    chooser.setObjectName(QStringLiteral("movieChooser"));
    chooser.setFileMode(QFileDialog::ExistingFile);
    if (chooser.exec() != QDialog::Accepted || chooser.selectedFiles().isEmpty() || !m_parts.movie) {
        return nullptr;
    }
    return m_parts.movie(chooser.selectedFiles().constFirst());
}

}  // namespace vantor
