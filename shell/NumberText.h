#pragma once
// Number texts as the screens show them.
#include <string>

// Decimal with a leading blank for 0 and above, a minus sign otherwise.
std::string Str(long value);

// Whole number nearest to `value`, ties to the even neighbour (245.5 -> 246, 246.5 -> 246).
long RoundToEven(double value);
