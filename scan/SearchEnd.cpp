// The words for the ends of searches.
#include "scan/SearchEnd.h"

#include <QObject>
#include <QStringList>

#include "results/SizeForPeople.h"
#include "scan/ProgressText.h"

namespace vantor {

namespace {

QString place(const SearchEnd& end) {
    return QObject::tr("sector %1 of %2").arg(numberForPeople(end.sector), numberForPeople(end.end));
}

QString search(const SearchEnd& end) {
    return end.thorough ? QObject::tr("The thorough search") : QObject::tr("The search");
}

QString completed(const SearchEnd& end) {
    if (end.brokenOff()) {
        return QObject::tr("%1 was broken off at %2.").arg(search(end), place(end));
    }
    if (end.unreadable == 0) {
        return QObject::tr("The search has completed.");
    }
    return end.unreadable == 1 ? QObject::tr("The search has completed, but 1 sector could not be read.")
                               : QObject::tr("The search has completed, but %1 sectors could not be read.",
                                             nullptr, pluralOf(end.unreadable))
                                     .arg(numberForPeople(end.unreadable));
}

}  // namespace

bool SearchEnd::canGoOn() const {
    const bool ranIntoSomething = outcome == PassOutcome::Stopped || brokenOff() ||
                                  (outcome == PassOutcome::ReadError && !nothingToSearch);
    return ranIntoSomething && goOnAt < end;
}

QString searchEndHeadline(const SearchEnd& end) {
    switch (end.outcome) {
        case PassOutcome::Completed:
            return completed(end);
        case PassOutcome::Stopped:
            return QObject::tr("%1 was stopped at %2 % (%3).")
                .arg(search(end))
                .arg(percentDone(end.sector, end.start, end.end - end.start))
                .arg(place(end));
        case PassOutcome::OpenError:
            return end.thorough ? QObject::tr("The medium could not be opened again for the thorough search.")
                                : QObject::tr("The medium could not be opened.");
        case PassOutcome::ReadError:
            break;
        case PassOutcome::NotRun:
            return {};
    }
    if (end.nothingToSearch) {
        return QObject::tr("%1 had nothing to look for.").arg(search(end));
    }
    if (end.mediumGone) {
        return QObject::tr("The medium was taken out or stopped answering at %1.").arg(place(end));
    }
    return QObject::tr("%1 ended with a read error at %2.").arg(search(end), place(end));
}

QString unreadCardWords() {
    return QObject::tr("The medium's directories could not be read.") + u' ' +
           QObject::tr("Names of files, and files that only the directories tell of, may be missing.");
}

QString goOnWords() {
    return QObject::tr("Press “Go On” to search the rest.");
}

QString searchEndAdvice(const SearchEnd& end) {
    QStringList sentences;
    if (end.thorough && end.outcome != PassOutcome::Completed) {
        sentences << QObject::tr("The general search before it was complete.");
    }
    if (end.outcome == PassOutcome::ReadError && end.mediumGone) {
        sentences << QObject::tr("Put the medium back in.");
    }
    if (end.canGoOn()) {
        sentences << goOnWords();
    }
    return sentences.join(u' ');
}

}  // namespace vantor
