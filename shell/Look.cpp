#include "Look.h"

namespace {
QFont Sized(int pixels)
{
    QFont font(Look::FontFamily);
    font.setPixelSize(pixels);
    font.setStyleHint(QFont::SansSerif);
    return font;
}
}

QFont Look::DefaultFont() { return Sized(12); }
QFont Look::CaptionFont() { return Sized(14); }
