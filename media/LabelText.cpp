// Letter by letter.
#include "media/LabelText.h"

namespace vantor {

namespace {

template <class Is>
QString speltOut(QStringView text, const Is& isToBe) {
    QString shown;
    for (const QChar c : text) {
        shown += isToBe(c) ? QStringLiteral("\\u%1").arg(c.unicode(), 4, 16, QLatin1Char('0')) : QString(c);
    }
    return shown;
}

}  // namespace

QString steeringSpeltOut(QStringView text) {
    return speltOut(text, [](QChar c) {
        return c.category() == QChar::Other_Control || c.category() == QChar::Other_Format ||
               c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
    });
}

QString controlsSpeltOut(QStringView text) {
    return speltOut(text, [](QChar c) { return c.category() == QChar::Other_Control; });
}

QString shownLabel(const QString& text) {
    const QString shown = steeringSpeltOut(QStringView(text).left(kMostLabelLetters));
    return text.size() > kMostLabelLetters ? shown + u'…' : shown;
}

}  // namespace vantor
