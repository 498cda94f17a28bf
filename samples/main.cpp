// vantor-sample-card: makes the sample card, to try the program on and to test it with.
#include <QCommandLineParser>
#include <QGuiApplication>
#include <QSaveFile>
#include <cstdio>
#include <stdexcept>

#include "samples/Card.h"

namespace {

// Leaves nothing behind when the file cannot be written whole.
void write(const QString& path, const QByteArray& bytes) {
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit())
        throw std::runtime_error((path + ": " + file.errorString()).toStdString());
}

}  // namespace

int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addPositionalArgument("image", "The card's image.", "OUTPUT.img");
    parser.addOption({"list", "The list of what is on it.", "OUTPUT.tsv"});
    if (!parser.parse(QGuiApplication::arguments()) || parser.positionalArguments().size() != 1) {
        std::fputs("usage: vantor-sample-card OUTPUT.img [--list OUTPUT.tsv]\n", stderr);
        return 2;
    }
    try {
        const vantor::samples::SampleCard card =
            vantor::samples::buildSampleCard(vantor::samples::cardContents());
        if (parser.isSet("list"))
            write(parser.value("list"), card.list);
        write(parser.positionalArguments().at(0), card.image);
    } catch (const std::runtime_error& error) {
        std::fprintf(stderr, "vantor-sample-card: %s\n", error.what());
        return 1;
    }
    return 0;
}
