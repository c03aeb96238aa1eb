#pragma once
// A text box's KeyPress: each key typed into the box is offered to a rule, which may drop it.
// Only keys that type a character, and Backspace (code 8), count as typed: editing keys,
// Enter, Tab, Escape and shortcuts pass untouched, so a text pasted with Ctrl+V is not filtered.
#include <QObject>
#include <functional>

class QLineEdit;

// Gives true when the key with this code must be dropped; the caret or selection as it stands.
using KeyPressRule = std::function<bool(int keyAscii, int selStart, int selLength, int textLength)>;

// Applies `rule` to `box`, and to `outer` too when keys reach the box through it (the edit
// field of a combo box gets them from the combo box).
void FilterTypedKeys(QLineEdit* box, KeyPressRule rule, QObject* outer = nullptr);
