// vantor-sample-card: makes the sample card, to try the program on and to test it with.
#include <QCommandLineParser>
#include <QGuiApplication>
#include <QSaveFile>
#include <cstdio>
#include <optional>
#include <stdexcept>

#include "samples/Card.h"

namespace {

// Opened before the card is made, which takes some seconds; leaves nothing behind when it cannot be written
// whole.
class Output {
  public:
    explicit Output(const QString& path) : m_file(path) {
        if (!m_file.open(QIODevice::WriteOnly))
            refuse();
    }
    void write(const QByteArray& bytes) {
        if (m_file.write(bytes) != bytes.size() || !m_file.flush() || !m_file.commit())
            refuse();
    }

  private:
    [[noreturn]] void refuse() const {
        throw std::runtime_error((m_file.fileName() + ": " + m_file.errorString()).toStdString());
    }

    QSaveFile m_file;
};

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
        Output image(parser.positionalArguments().at(0));
        std::optional<Output> list;
        if (parser.isSet("list"))
            list.emplace(parser.value("list"));
        const vantor::samples::SampleCard card =
            vantor::samples::buildSampleCard(vantor::samples::cardContents());
        if (list)
            list->write(card.list);
        image.write(card.image);
    } catch (const std::runtime_error& error) {
        std::fprintf(stderr, "vantor-sample-card: %s\n", error.what());
        return 1;
    }
    return 0;
}
