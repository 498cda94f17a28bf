// vantor-sample-card: makes the sample card, to try the program on and to test it with.
#include <QCoreApplication>
#include <QFile>
#include <QStringList>
#include <cstdio>

#include "samples/CardOutput.h"
#include "samples/SampleCard.h"

namespace {

using namespace vantor::samples;

constexpr int kDone = 0;
constexpr int kWrongUse = 2;
constexpr int kFailed = 1;

struct Request {
    QString image;
    QString list;  // empty for none
};

std::optional<Request> requestFrom(const QStringList& arguments) {
    Request request;
    for (qsizetype i = 1; i < arguments.size(); ++i) {
        if (arguments[i] == QLatin1String("--list")) {
            if (!request.list.isEmpty() || ++i >= arguments.size())
                return std::nullopt;
            request.list = arguments[i];
        } else if (request.image.isEmpty() && !arguments[i].startsWith(QLatin1Char('-'))) {
            request.image = arguments[i];
        } else {
            return std::nullopt;
        }
    }
    return request.image.isEmpty() ? std::nullopt : std::optional(request);
}

int fail(const QString& why) {
    std::fprintf(stderr, "vantor-sample-card: %s\n", qPrintable(why));
    return kFailed;
}

}  // namespace

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    const std::optional<Request> request = requestFrom(QCoreApplication::arguments());
    if (!request) {
        std::fputs("usage: vantor-sample-card OUTPUT.img [--list OUTPUT.tsv]\n", stderr);
        return kWrongUse;
    }
    const std::optional<SampleCard> card = buildSampleCard();
    if (!card)
        return fail(QStringLiteral("the contents do not fit the card"));
    if (const QString why = writeWhole(request->image, card->image, Writing::Sparse); !why.isEmpty())
        return fail(why);
    if (request->list.isEmpty())
        return kDone;
    if (const QString why = writeWhole(request->list, listText(card->entries), Writing::Plain);
        !why.isEmpty()) {
        QFile::remove(request->image);
        return fail(why);
    }
    return kDone;
}
