// Draws one icon size from its SVG drawing, for the icon folders of the desktop.
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QImageReader>
#include <QTextStream>

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    QTextStream complaint(stderr);
    const QStringList arguments = QGuiApplication::arguments();
    const int size = arguments.size() == 4 ? arguments.at(2).toInt() : 0;
    if (size <= 0) {
        complaint << "usage: make-icons DRAWING.svg PIXELS ICON.png\n";
        return 2;
    }
    QImageReader reader(arguments.at(1));
    reader.setScaledSize({size, size});
    const QImage image = reader.read();
    if (image.isNull()) {
        complaint << arguments.at(1) << ": " << reader.errorString()
                  << " (Qt's SVG plugin is needed to draw icons)\n";
        return 1;
    }
    QDir().mkpath(QFileInfo(arguments.at(3)).absolutePath());
    if (!image.save(arguments.at(3))) {
        complaint << "cannot write " << arguments.at(3) << '\n';
        return 1;
    }
    return 0;
}
