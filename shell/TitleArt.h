#pragma once
// The About box's title art, 292 x 235 pixels: the game's name over five dice that have just
// come to rest, all showing five, on green baize. Drawn in code, so nothing is shipped.
#include <QImage>

constexpr int TitleArtWidth = 292, TitleArtHeight = 235;

QImage DrawTitleArt();
