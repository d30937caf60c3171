// Paints the icon of the program in the sizes that desktops ask for.
//
//     rendericon packaging/varn.svg packaging/icons

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

int main(int argc, char* argv[])
{
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    QSvgRenderer icon(arguments.value(1));
    if (arguments.size() != 3 || !icon.isValid()) {
        std::fputs("usage: rendericon ICON.svg FOLDER\n", stderr);
        return 2;
    }
    for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
        QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        icon.render(&painter);
        painter.end();
        const QString path = QDir(arguments[2]).filePath(QStringLiteral("varn-%1.png").arg(size));
        if (!image.save(path)) {
            std::fprintf(stderr, "%s cannot be written\n", qPrintable(path));
            return 1;
        }
    }
    return 0;
}
