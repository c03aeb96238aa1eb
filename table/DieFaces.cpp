#include "DieFaces.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace {
const QRgb LightGrey = qRgb(192, 192, 192);
const QRgb DarkGrey = qRgb(128, 128, 128);
const QRgb White = qRgb(255, 255, 255);
const QRgb Black = qRgb(0, 0, 0);

// Top-left corners (column, row) of the pip boxes of each face.
std::vector<std::pair<int, int>> PipBoxes(int face)
{
    const std::pair<int, int> centre{18, 18}, upperRight{29, 7}, lowerLeft{7, 29};
    const std::pair<int, int> upperLeft{7, 7}, lowerRight{29, 29}, midLeft{7, 18}, midRight{29, 18};
    switch (face) {
    case 1: return {centre};
    case 2: return {upperRight, lowerLeft};
    case 3: return {upperRight, lowerLeft, centre};
    case 4: return {upperLeft, upperRight, lowerLeft, lowerRight};
    case 5: return {upperLeft, upperRight, lowerLeft, lowerRight, centre};
    case 6: return {upperLeft, upperRight, lowerLeft, lowerRight, midLeft, midRight};
    default: return {};
    }
}

bool IsBoxCorner(int x, int y, int left, int top, int size)
{
    return (x == left || x == left + size - 1) && (y == top || y == top + size - 1);
}

void DrawPip(QImage& image, int left, int top, QRgb pip)
{
    for (int y = top - 1; y <= top + 6; ++y) {
        for (int x = left - 1; x <= left + 6; ++x) {
            const bool inBox = x >= left && x < left + 6 && y >= top && y < top + 6;
            const bool ringCorner = IsBoxCorner(x, y, left - 1, top - 1, 8);
            if (inBox && !IsBoxCorner(x, y, left, top, 6))
                image.setPixel(x, y, pip);
            else if (!ringCorner)
                image.setPixel(x, y, LightGrey);   // relief: cut corners and the ring around
        }
    }
}
}

namespace {
QImage DrawDieGrid(int face, ImageList list)
{
    const bool inverted = list == ImageList::ilsDieInv;
    QImage image(DieFacePixels, DieFacePixels, QImage::Format_RGB32);
    image.fill(LightGrey);
    for (int y = 1; y <= 38; ++y)
        for (int x = 1; x <= 38; ++x)
            if (!IsBoxCorner(x, y, 1, 1, 38))
                image.setPixel(x, y, inverted ? DarkGrey : White);
    for (int i = 1; i <= 39; ++i) {
        image.setPixel(40, i, DarkGrey);   // shadow outside the right edge
        image.setPixel(i, 40, DarkGrey);   // and outside the bottom edge
    }
    for (const auto& [left, top] : PipBoxes(face))
        DrawPip(image, left, top, inverted ? White : Black);
    return image;
}
}

// Each device pixel takes the colour of the described pixel under its centre, so every edge
// falls on a device pixel's edge: no resampling by the toolkit, no in-between grey.
QImage DrawDieFace(int face, ImageList list, qreal scale)
{
    const QImage grid = DrawDieGrid(face, list);
    if (scale == 1.0)
        return grid;
    const int size = qRound(DieFacePixels * scale);
    QImage image(size, size, QImage::Format_RGB32);
    for (int y = 0; y < size; ++y)
        for (int x = 0; x < size; ++x)
            image.setPixel(x, y, grid.pixel(std::min(DieFacePixels - 1, int((x + 0.5) / scale)),
                                            std::min(DieFacePixels - 1, int((y + 0.5) / scale))));
    image.setDevicePixelRatio(scale);
    return image;
}
