// Files are known by their checksums; where there is none each is decoded for itself.
#include "saving/SavedContents.h"

#include "decode/RegularFile.h"

namespace vantor {

bool SavedContents::isDue(const SaveOutcome& outcome) {
    return outcome.saved && outcome.checked && outcome.framesOnly && outcome.sectorsUnreadable == 0;
}

void SavedContents::look(SaveOutcome& outcome, const StopRequest& stop) {
    if (!isDue(outcome)) {
        return;
    }
    if (const auto known = m_known.find(outcome.sha256); known != m_known.end()) {
        outcome.framesOnly = !known->second;
        return;
    }
    const decode::RegularFile file(outcome.path);
    const bool whole = file.isOpen() && (m_decodes ? m_decodes(file.descriptor(), stop)
                                                   : m_trials.decodes(file.descriptor(), stop));
    outcome.framesOnly = !whole;
    const bool isSettled = whole || !(stop && stop());
    if (isSettled && !outcome.sha256.isEmpty()) {
        m_known.emplace(outcome.sha256, whole);
    }
}

}  // namespace vantor
