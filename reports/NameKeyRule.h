#pragma once
// txtName_KeyPress: which typed characters a name box takes.

// True when the character `keyAscii` is thrown away: a blank before the first character (even
// over a selection), or, with nothing selected, anything but backspace (8) that is not a
// letter, a digit or a blank, or that would go into a box already holding 12 characters.
// Small letters pass and stay small.
bool NameKeyRefused(int keyAscii, int selStart, int selLength, int textLength);
