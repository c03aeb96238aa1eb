#pragma once
// A text box's KeyPress: each character typed into the box is offered to a rule, which may drop
// it. A character is judged whole, whatever its width in the toolkit's 16-bit units (an emoji,
// a musical symbol), and text committed by an input method (a compose key, an input method for
// Chinese or Japanese) is judged character by character like typed keys. Backspace (code 8)
// counts as typed; editing keys, Enter, Tab, Escape and shortcuts pass untouched, so a text
// pasted with Ctrl+V is not filtered.
#include <QObject>
#include <functional>

class QLineEdit;

// Gives true when the character with this code must be dropped, with the caret or selection as
// it stands; positions and lengths count characters, not 16-bit units.
using KeyPressRule = std::function<bool(int keyAscii, int selStart, int selLength, int textLength)>;

// Applies `rule` to `box`, and to `outer` too when keys reach the box through it (the edit
// field of a combo box gets them from the combo box).
void FilterTypedKeys(QLineEdit* box, KeyPressRule rule, QObject* outer = nullptr);

// Keeps at most `characters` characters in the box, cutting a longer text (a paste) after a whole
// character, never inside one.
void LimitCharacters(QLineEdit* box, int characters);
