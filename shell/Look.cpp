#include "Look.h"

namespace {
// The serif sizes are the points of the layout at 96 dots per inch: 18 pt is 24 px, 8.25 pt 11 px.
QFont Sized(const char* family, QFont::StyleHint hint, int pixels)
{
    QFont font(family);
    font.setPixelSize(pixels);
    font.setStyleHint(hint);
    return font;
}
}

QFont Look::DefaultFont() { return Sized(FontFamily, QFont::SansSerif, 12); }
QFont Look::CaptionFont() { return Sized(FontFamily, QFont::SansSerif, 14); }

QFont Look::TitleFont()
{
    QFont font = Sized(SerifFamily, QFont::Serif, 24);
    font.setBold(true);
    return font;
}

QFont Look::SmallSerifFont() { return Sized(SerifFamily, QFont::Serif, 11); }
