// The die pictures, pixel by pixel, against their description.
#include <gtest/gtest.h>
#include <vector>

#include "DieFaces.h"

namespace {
const QRgb LightGrey = qRgb(192, 192, 192), DarkGrey = qRgb(128, 128, 128);
const QRgb White = qRgb(255, 255, 255), Black = qRgb(0, 0, 0);

struct Box { int x, y; };
const std::vector<Box> Pips[7] = {
    {}, {{18, 18}}, {{29, 7}, {7, 29}}, {{29, 7}, {7, 29}, {18, 18}}, {{7, 7}, {29, 7}, {7, 29}, {29, 29}},
    {{7, 7}, {29, 7}, {7, 29}, {29, 29}, {18, 18}}, {{7, 7}, {29, 7}, {7, 29}, {29, 29}, {7, 18}, {29, 18}}};

bool Corner(int x, int y, int left, int top, int size)
{
    return (x == left || x == left + size - 1) && (y == top || y == top + size - 1);
}

// The described colour of pixel (x, y): a pip of 6 x 6 with cut corners inside a light grey ring
// (itself without corners), the field over 1..38 with cut corners, a light grey edge round it,
// and a dark grey shadow outside the right and bottom edges with light grey outer corners.
QRgb Described(int x, int y, int face, bool inverted)
{
    for (Box b : Pips[face]) {
        if (x >= b.x && x < b.x + 6 && y >= b.y && y < b.y + 6)
            return Corner(x, y, b.x, b.y, 6) ? LightGrey : inverted ? White : Black;
        if (x >= b.x - 1 && x <= b.x + 6 && y >= b.y - 1 && y <= b.y + 6 && !Corner(x, y, b.x - 1, b.y - 1, 8))
            return LightGrey;
    }
    if (x == 40 || y == 40)
        return x == 0 || y == 0 || (x == 40 && y == 40) ? LightGrey : DarkGrey;
    if (x == 0 || y == 0 || x == 39 || y == 39 || Corner(x, y, 1, 1, 38))
        return LightGrey;
    return inverted ? DarkGrey : White;
}
}

// All twelve pictures in both looks; at twice the density each described pixel is a block of
// 2 x 2 device pixels of its colour.
TEST(DieFaces, EveryPixelAsDescribed)
{
    for (ImageList list : {ImageList::ilsDie, ImageList::ilsDieInv})
        for (int face = 1; face <= 6; ++face) {
            const bool inverted = list == ImageList::ilsDieInv;
            const QImage image = DrawDieFace(face, list), dense = DrawDieFace(face, list, 2.0);
            ASSERT_EQ(std::pair(image.size(), dense.size()), std::pair(QSize(41, 41), QSize(82, 82)));
            for (int y = 0; y < 82; ++y)
                for (int x = 0; x < 82; ++x) {
                    const QRgb expected = Described(x / 2, y / 2, face, inverted);
                    ASSERT_EQ(dense.pixel(x, y), expected) << face << " dense at " << x << "," << y;
                    ASSERT_TRUE(x % 2 || y % 2 || image.pixel(x / 2, y / 2) == expected) << face << " at " << x / 2 << "," << y / 2;
                }
        }
}
