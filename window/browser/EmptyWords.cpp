// The words, by situation.
#include "window/browser/EmptyWords.h"

#include <QObject>
#include <QStringList>

#include "saving/SaveSummary.h"

namespace vantor {

namespace {

// What has not been tried yet.
QStringList untried(const SearchWish& wish) {
    QStringList steps;
    if (!wish.entireDisk) {
        steps << QObject::tr("search the entire disk");
    }
    if (!wish.allTypes) {
        steps << QObject::tr("select more file types");
    }
    if (wish.photo && !wish.thorough) {
        steps << QObject::tr("switch the thorough search on");
    }
    if (wish.photo) {
        steps << QObject::tr("look for Video or Raw File types");
    }
    return steps;
}

}  // namespace

EmptyWords nothingYet(bool photo) {
    return photo ? EmptyWords{QObject::tr("No photos found yet"),
                              QObject::tr("They appear here as the search goes on.")}
                 : EmptyWords{QObject::tr("Nothing found yet"),
                              QObject::tr("Items appear here as the search goes on.")};
}

EmptyWords nothingFound(const SearchWish& wish, const SearchEnd& end) {
    EmptyWords words{wish.photo ? QObject::tr("No photos were found") : QObject::tr("Nothing was found"), {}};
    QStringList sentences;
    if (end.canGoOn()) {
        sentences << goOnWords();
    }
    if (QStringList steps = untried(wish); !steps.isEmpty()) {
        const QString last = steps.takeLast();
        sentences << (steps.isEmpty() ? QObject::tr("You can go back and %1.").arg(last)
                                      : QObject::tr("You can go back and %1, or %2.")
                                            .arg(steps.join(QStringLiteral(", ")), last));
    }
    words.advice = sentences.isEmpty()
                       ? QObject::tr("All of it was searched for all types. Try another medium.")
                       : sentences.join(u' ');
    return words;
}

EmptyWords nothingShown(std::size_t found, const ShownChoice& choice) {
    const QString all = countOfItems(found);
    if (choice.picked) {
        return {QObject::tr("None of the found items is like that"),
                QObject::tr("Click “All items” on the left and clear the search field to see all that was "
                            "found: %1.")
                    .arg(all)};
    }
    if (!choice.oneType) {
        return {QObject::tr("None of the found items is of this kind"),
                QObject::tr("Choose “All items” above to see all that was found: %1.").arg(all)};
    }
    if (!choice.someKind) {
        return {QObject::tr("None of the found items is of this type"),
                QObject::tr("Press “Show All Types” to see all that was found: %1.").arg(all)};
    }
    return {QObject::tr("None of the found items is of this type and kind"),
            QObject::tr("Press “Show All Types” and choose “All items” above to see all that was found: %1.")
                .arg(all)};
}

}  // namespace vantor
