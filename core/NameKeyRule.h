#pragma once
// The KeyPress rule of the two name boxes, cboAddRemove of the player dialog and txtName of
// the new-high-score dialog: which typed characters a name takes.

// True when the character with the code `keyAscii` (any character, ASCII or not) is thrown
// away: a blank before the first character (even over a selection), or, with nothing selected,
// anything but backspace (8) that is not a letter, a digit or a blank, or that would go into a
// box already holding 12 characters. Small letters pass and stay small. Positions and lengths
// count characters.
bool NameKeyRefused(int keyAscii, int selStart, int selLength, int textLength);
