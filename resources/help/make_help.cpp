// Makes the help document: one HTML file with its pictures becomes a PDF.
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPageSize>
#include <QPdfWriter>
#include <QTextDocument>
#include <QUrl>
#include <cstdio>

int main(int argc, char** argv) {
    QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() != 3) {
        std::fputs("usage: make-help GUIDE.html HELP.pdf\n", stderr);
        return 2;
    }
    QFile source(arguments.at(1));
    if (!source.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "cannot read %s\n", qPrintable(arguments.at(1)));
        return 1;
    }
    constexpr int kDotsPerInch = 96;
    QPdfWriter writer(arguments.at(2));
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins(QMarginsF(18, 16, 18, 16), QPageLayout::Millimeter);
    writer.setResolution(kDotsPerInch);
    writer.setTitle(QStringLiteral("Vantor - Memory Card Recovery"));
    QTextDocument document;
    document.setMetaInformation(QTextDocument::DocumentUrl,
                                QUrl::fromLocalFile(QFileInfo(source).absoluteFilePath()).toString());
    document.setBaseUrl(QUrl::fromLocalFile(QFileInfo(source).absolutePath() + u'/'));
    document.setHtml(QString::fromUtf8(source.readAll()));
    document.setPageSize(QSizeF(writer.width(), writer.height()));
    document.print(&writer);
    return QFileInfo(arguments.at(2)).size() > 0 ? 0 : 1;
}
