#include "NumberText.h"

#include <cfenv>
#include <cmath>

std::string Str(long value)
{
    return value >= 0 ? " " + std::to_string(value) : std::to_string(value);
}

long RoundToEven(double value)
{
    // nearbyint follows the current rounding mode; make sure it is to-nearest-even.
    const int old = std::fegetround();
    std::fesetround(FE_TONEAREST);
    const long result = std::lround(std::nearbyint(value));
    std::fesetround(old);
    return result;
}
