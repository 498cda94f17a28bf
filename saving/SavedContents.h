// What stands within saved movies, looked at behind the last saved file: decoding keeps no medium waiting.
#pragma once

#include <QByteArray>
#include <map>

#include "decode/ContentTrials.h"
#include "saving/ItemSaver.h"

namespace vantor {

// Remembers from choice to choice what was decoded. Any one thread.
class SavedContents {
  public:
    // Without a decoder of its own, by the movie helper as far as time allows.
    explicit SavedContents(ContentDecoder decodes = {}) : m_decodes(std::move(decodes)) {}

    // Whether no more than the frames' heads and lengths of the saved file were followed.
    static bool isDue(const SaveOutcome& outcome);

    // Before the files of a choice, all of which have the time for all.
    void begin() { m_trials = ContentTrials(); }
    // Decodes the file where that is due and notes it in the outcome where all of it decodes. The same bytes
    // are decoded once. Ends soon after `stop` says so.
    void look(SaveOutcome& outcome, const StopRequest& stop);

  private:
    ContentDecoder m_decodes;
    ContentTrials m_trials;
    std::map<QByteArray, bool> m_known;  // by checksum
};

}  // namespace vantor
