#pragma once
// The one place for what stands in for the old desktop's system colours and fonts.
#include <QColor>
#include <QFont>

namespace Look {
// System colours.
inline const QColor ButtonFace{0xE0, 0xE0, 0xE0};          // window and control background
inline const QColor WindowBackground{0xFF, 0xFF, 0xFF};    // light half of a groove
inline const QColor InactiveTitleBar{0x80, 0x80, 0x80};    // dark half of a groove
inline const QColor ApplicationWorkspace{0x80, 0x80, 0x80};
inline const QColor TitleBarText{0xFF, 0xFF, 0xFF};

// Fonts: a freely licensed narrow sans-serif (Debian's fonts-liberation) in pixel sizes, so
// that captions fit their twip widths whatever the screen's dots per inch.
inline constexpr const char* FontFamily = "Liberation Sans Narrow";
QFont DefaultFont();      // the windows' default font
QFont CaptionFont();      // stands in for 9.75 point MS Sans Serif
}
