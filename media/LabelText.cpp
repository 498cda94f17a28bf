// Letter by letter.
#include "media/LabelText.h"

namespace vantor {

QString steeringSpeltOut(QStringView text) {
    QString shown;
    for (const QChar c : text) {
        const bool invisible = c.category() == QChar::Other_Control || c.category() == QChar::Other_Format ||
                               c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
        shown += invisible ? QStringLiteral("\\u%1").arg(c.unicode(), 4, 16, QLatin1Char('0')) : QString(c);
    }
    return shown;
}

QString shownLabel(const QString& text) {
    const QString shown = steeringSpeltOut(QStringView(text).left(kMostLabelLetters));
    return text.size() > kMostLabelLetters ? shown + u'…' : shown;
}

}  // namespace vantor
