// The words for refusals.
#include "media/OpenRefusal.h"

#include <QObject>

namespace vantor {

QString wordsForRefusal(OpenRefusal refusal) {
    switch (refusal) {
        case OpenRefusal::MayNotReadDevice:
            return QObject::tr(
                "You may not read this card. Search again and allow it when you are asked for the password, "
                "or "
                "ask the administrator of this computer for the right to read storage media.");
        case OpenRefusal::MayNotReadImage:
            return QObject::tr(
                "You may not read this image file. Ask its owner for the right to read it, or for a copy.");
        case OpenRefusal::NotThere:
            return QObject::tr("The medium is not there any more. Put it back in and try again.");
        case OpenRefusal::AnotherMedium:
            return QObject::tr(
                "Another medium is in its place now. Go back to the list of media and choose again.");
        case OpenRefusal::None:
        case OpenRefusal::Unknown:
            break;
    }
    return {};
}

QString wordsForWrittenTo() {
    return QObject::tr(
        "The image file was changed during the search, so what was found may be damaged. Search again when "
        "nothing writes to it any more.");
}

}  // namespace vantor
