// Writes the program's desktop icon, the game's own die face five:
//   zarvo_makeicons FOLDER SIZE...
// gives FOLDER/zarvo.svg, one rectangle for each run of equal pixels so that it stays sharp at
// any size, and FOLDER/zarvo-SIZE.png for each SIZE.
#include <QColor>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QTextStream>
#include <cstdio>
#include <cstdlib>

#include "DieFaces.h"

namespace {
bool WriteSvg(const QImage& face, const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    QTextStream svg(&file);
    const int n = face.width();
    svg << "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" << n << "\" height=\"" << n << "\" viewBox=\"0 0 "
        << n << ' ' << n << "\" shape-rendering=\"crispEdges\">\n";
    for (int y = 0; y < n; ++y) {
        for (int x = 0; x < n;) {
            const QRgb colour = face.pixel(x, y);
            int end = x + 1;
            while (end < n && face.pixel(end, y) == colour)
                ++end;
            svg << "<rect x=\"" << x << "\" y=\"" << y << "\" width=\"" << end - x << "\" height=\"1\" fill=\""
                << QColor(colour).name() << "\"/>\n";
            x = end;
        }
    }
    svg << "</svg>\n";
    return svg.status() == QTextStream::Ok;
}

// Small sizes come straight from the face; larger ones first double or triple its pixels, so
// that the smoothing on the way to the size keeps the edges sharp.
QImage Scaled(const QImage& face, int size)
{
    const int whole = (size + face.width() - 1) / face.width();
    return face.scaled(face.size() * whole, Qt::IgnoreAspectRatio, Qt::FastTransformation)
        .scaled(size, size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}
}

int main(int argc, char* argv[])
{
    if (argc < 3) {
        std::fprintf(stderr, "usage: zarvo_makeicons FOLDER SIZE...\n");
        return 2;
    }
    const QDir folder(argv[1]);
    const QImage face = DrawDieFace(5, ImageList::ilsDie);
    if (!folder.mkpath(".") || !WriteSvg(face, folder.filePath("zarvo.svg")))
        return 1;
    for (int i = 2; i < argc; ++i) {
        const int size = std::atoi(argv[i]);
        if (size <= 0 || !Scaled(face, size).save(folder.filePath(QString("zarvo-%1.png").arg(size))))
            return 1;
    }
    return 0;
}
