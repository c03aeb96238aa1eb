#pragma once
// The six die faces, 41 x 41 pixels, in the normal look (ilsDie: white field, black pips) and
// the cursor look (ilsDieInv: dark grey field, white pips), drawn from their description:
// a field over rows and columns 1..38 with cut corners, a light grey edge around it, a dark
// grey shadow outside the right and bottom edges, and pips of 6 x 6 pixels with cut corners
// and a light grey relief ring, in boxes starting at column and row 7, 18 or 29.
#include <QImage>

#include "TableScreen.h"

constexpr int DieFacePixels = 41;

// At a device-pixel ratio above 1 the face is drawn at the screen's resolution, `scale` device
// pixels to one described pixel; at 1 it is the description itself.
QImage DrawDieFace(int face, ImageList list, qreal scale = 1.0);
