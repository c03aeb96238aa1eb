#pragma once
// Positions and sizes of the windows are twips; 15 twips are one (logical) pixel.
constexpr int TwipsPerPixel = 15;

constexpr int TwipsToPixels(int twips)
{
    return twips >= 0 ? (twips + TwipsPerPixel / 2) / TwipsPerPixel
                      : -((-twips + TwipsPerPixel / 2) / TwipsPerPixel);
}
constexpr int PixelsToTwips(int pixels) { return pixels * TwipsPerPixel; }
