// The die pictures, pixel by pixel, against their description.
#include <gtest/gtest.h>
#include <set>
#include <utility>

#include "DieFaces.h"

namespace {
const QRgb LightGrey = qRgb(192, 192, 192), DarkGrey = qRgb(128, 128, 128);
const QRgb White = qRgb(255, 255, 255), Black = qRgb(0, 0, 0);

using Box = std::pair<int, int>;
std::set<Box> ExpectedPips(int face)
{
    const Box c{18, 18}, ur{29, 7}, ll{7, 29}, ul{7, 7}, lr{29, 29}, ml{7, 18}, mr{29, 18};
    switch (face) {
    case 1: return {c};
    case 2: return {ur, ll};
    case 3: return {ur, ll, c};
    case 4: return {ul, ur, ll, lr};
    case 5: return {ul, ur, ll, lr, c};
    default: return {ul, ur, ll, lr, ml, mr};
    }
}

bool InBoxes(int x, int y, const std::set<Box>& boxes, int margin)
{
    for (auto [bx, by] : boxes)
        if (x >= bx - margin && x <= bx + 5 + margin && y >= by - margin && y <= by + 5 + margin)
            return true;
    return false;
}
}

// Each face has its pips exactly in the described boxes: 6 x 6 with the corners cut, 32 pixels
// of pip colour each, and nowhere else.
TEST(DieFaces, PipsStandInTheirBoxesWithCutCorners)
{
    for (ImageList list : {ImageList::ilsDie, ImageList::ilsDieInv}) {
        const QRgb pip = list == ImageList::ilsDie ? Black : White;
        for (int face = 1; face <= 6; ++face) {
            SCOPED_TRACE("face " + std::to_string(face));
            const QImage image = DrawDieFace(face, list);
            ASSERT_EQ(image.size(), QSize(41, 41));
            const std::set<Box> boxes = ExpectedPips(face);
            for (auto [bx, by] : boxes) {
                int pipPixels = 0;
                for (int y = by; y < by + 6; ++y)
                    for (int x = bx; x < bx + 6; ++x)
                        pipPixels += image.pixel(x, y) == pip;
                EXPECT_EQ(pipPixels, 32) << "box at " << bx << "," << by;
                for (auto [cx, cy] : {Box{bx, by}, Box{bx + 5, by}, Box{bx, by + 5}, Box{bx + 5, by + 5}})
                    EXPECT_NE(image.pixel(cx, cy), pip) << "corner " << cx << "," << cy << " is cut";
            }
            for (int y = 0; y < 41; ++y)
                for (int x = 0; x < 41; ++x)
                    if (!InBoxes(x, y, boxes, 0)) {
                        EXPECT_NE(image.pixel(x, y), pip) << x << "," << y;
                    }
        }
    }
}

// The field covers rows and columns 1..38 with cut corners, a light grey edge runs around
// it, the shadow lies outside the right and bottom edges, and the outer corners are light grey.
TEST(DieFaces, FieldEdgeAndShadow)
{
    for (ImageList list : {ImageList::ilsDie, ImageList::ilsDieInv}) {
        const QRgb field = list == ImageList::ilsDie ? White : DarkGrey;
        const QImage image = DrawDieFace(1, list);   // one pip: most of the field is bare
        for (int i = 0; i <= 39; ++i) {
            EXPECT_EQ(image.pixel(i, 0), LightGrey);
            EXPECT_EQ(image.pixel(0, i), LightGrey);
            EXPECT_EQ(image.pixel(39, i), LightGrey);
            EXPECT_EQ(image.pixel(i, 39), LightGrey);
        }
        for (int i = 1; i <= 39; ++i) {
            EXPECT_EQ(image.pixel(40, i), DarkGrey) << "right shadow, row " << i;
            EXPECT_EQ(image.pixel(i, 40), DarkGrey) << "bottom shadow, column " << i;
        }
        for (auto [x, y] : {Box{40, 0}, Box{0, 40}, Box{40, 40}, Box{1, 1}, Box{38, 1}, Box{1, 38}, Box{38, 38}})
            EXPECT_EQ(image.pixel(x, y), LightGrey) << x << "," << y;
        for (int y = 1; y <= 38; ++y)
            for (int x = 1; x <= 38; ++x) {
                const bool corner = (x == 1 || x == 38) && (y == 1 || y == 38);
                if (!corner && !InBoxes(x, y, ExpectedPips(1), 1)) {
                    EXPECT_EQ(image.pixel(x, y), field) << x << "," << y;
                }
            }
    }
}

// Around every pip runs a thin grey relief, and the inverted look is the normal one with the
// field and pip colours exchanged, pixel for pixel.
TEST(DieFaces, ReliefAndInvertedLook)
{
    for (int face = 1; face <= 6; ++face) {
        const QImage normal = DrawDieFace(face, ImageList::ilsDie);
        const QImage inverted = DrawDieFace(face, ImageList::ilsDieInv);
        for (auto [bx, by] : ExpectedPips(face)) {
            EXPECT_EQ(normal.pixel(bx, by), LightGrey);
            EXPECT_EQ(normal.pixel(bx - 1, by + 2), LightGrey);
            EXPECT_EQ(normal.pixel(bx + 6, by + 3), LightGrey);
            EXPECT_EQ(normal.pixel(bx + 2, by - 1), LightGrey);
            EXPECT_EQ(normal.pixel(bx + 3, by + 6), LightGrey);
        }
        for (int y = 0; y < 41; ++y)
            for (int x = 0; x < 41; ++x) {
                const QRgb n = normal.pixel(x, y), i = inverted.pixel(x, y);
                const QRgb expected = n == White ? DarkGrey : n == Black ? White : n;
                EXPECT_EQ(i, expected) << x << "," << y;
            }
    }
}
