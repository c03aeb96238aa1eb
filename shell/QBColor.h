#pragma once
// The four colours of the old sixteen-colour palette that the game uses, as 0xRRGGBB.
#include <cstdint>

constexpr std::uint32_t QBColor(int n)
{
    switch (n) {
    case 7: return 0xC0C0C0;  // light grey
    case 8: return 0x808080;  // dark grey
    case 15: return 0xFFFFFF; // white
    default: return 0x000000; // black
    }
}
