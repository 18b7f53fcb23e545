// draw_icon DRAWING.svg SIZE ICON.png draws the icon as a square of SIZE pixels.
#include <cstdio>
#include <cstdlib>

#include <QImage>
#include <QPainter>
#include <QString>
#include <QSvgRenderer>

int main(int argc, char** argv) {
    if (argc != 4) {
        std::fputs("usage: draw_icon DRAWING.svg SIZE ICON.png\n", stderr);
        return 2;
    }
    QSvgRenderer drawing{QString::fromLocal8Bit(argv[1])};
    const int size = std::atoi(argv[2]);
    QImage icon(size, size, QImage::Format_ARGB32_Premultiplied);
    icon.fill(Qt::transparent);
    {
        QPainter painter(&icon);
        painter.setRenderHint(QPainter::Antialiasing);
        drawing.render(&painter);
    }
    if (!drawing.isValid() || !icon.save(QString::fromLocal8Bit(argv[3]))) {
        std::fprintf(stderr, "draw_icon: cannot draw \"%s\" into \"%s\"\n", argv[1], argv[3]);
        return 1;
    }
    return 0;
}
