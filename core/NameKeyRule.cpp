#include "NameKeyRule.h"

#include <cctype>
#include <cstring>

namespace {
constexpr int KeyBackspace = 8;
constexpr int NameLength = 12;

bool IsNameCharacter(int keyAscii)
{
    if (keyAscii <= 0 || keyAscii > 127)
        return false;
    return std::strchr("ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789 ", std::toupper(keyAscii)) != nullptr;
}
}

bool NameKeyRefused(int keyAscii, int selStart, int selLength, int textLength)
{
    if (keyAscii == ' ' && selStart == 0)
        return true;
    return keyAscii != KeyBackspace && selLength == 0
           && (!IsNameCharacter(keyAscii) || textLength >= NameLength);
}
