// Why a medium could not be opened, for people.
#pragma once

#include <QString>
#include <atomic>

namespace vantor {

enum class OpenRefusal {
    None,
    Unknown,
    MayNotReadDevice,  // no permission, and no consent where it was asked for
    MayNotReadImage,
    NotThere,
    AnotherMedium,  // in the slot, since the list was made
};

// What is the case and what helps; empty where nothing is known beyond that it failed.
QString wordsForRefusal(OpenRefusal refusal);

// Of an image file that something wrote to while it was searched.
QString wordsForWrittenTo();

// How the last opening went. Any thread.
class LastRefusal {
  public:
    void note(OpenRefusal refusal) { m_refusal = refusal; }
    OpenRefusal get() const { return m_refusal; }

  private:
    std::atomic<OpenRefusal> m_refusal{OpenRefusal::None};
};

}  // namespace vantor
