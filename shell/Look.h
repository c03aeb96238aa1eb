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

// Fonts, freely licensed stand-ins from Debian's fonts-liberation, in pixel sizes so that
// captions fit their twip widths whatever the screen's dots per inch:
// Liberation Sans Narrow for MS Sans Serif, Liberation Serif (metric-compatible with it) for
// Times New Roman.
inline constexpr const char* FontFamily = "Liberation Sans Narrow";
inline constexpr const char* SerifFamily = "Liberation Serif";
QFont DefaultFont();      // the windows' default font
QFont CaptionFont();      // stands in for 9.75 point MS Sans Serif
QFont TitleFont();        // stands in for bold 18 point Times New Roman
QFont SmallSerifFont();   // stands in for 8.25 point Times New Roman
}
