#pragma once
// Positions and sizes of the windows are twips; 15 twips are one (logical) pixel.
constexpr int TwipsPerPixel = 15;

constexpr int TwipsToPixels(int twips)
{
    return twips >= 0 ? (twips + TwipsPerPixel / 2) / TwipsPerPixel
                      : -((-twips + TwipsPerPixel / 2) / TwipsPerPixel);
}
constexpr int PixelsToTwips(int pixels) { return pixels * TwipsPerPixel; }

// A control's rectangle in twips of its parent, as the layout tables give it. All four numbers
// must be given: a forgotten height cannot silently become 0.
struct TwipRect {
    constexpr TwipRect(int left, int top, int width, int height) : left(left), top(top), width(width), height(height) {}
    int left, top, width, height;
    bool operator==(const TwipRect&) const = default;
};
