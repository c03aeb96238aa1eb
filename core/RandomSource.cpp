#include "RandomSource.h"

#include <cstring>

void RandomSource::Randomize(float seed)
{
    std::uint32_t bits = 0;
    std::memcpy(&bits, &seed, sizeof bits);
    engine_.seed(bits);
}

float RandomSource::Rnd()
{
    // 24 random bits scaled by 2^-24: every float of the form k/2^24 is exact, and 1 is out of reach.
    return float(engine_() >> 8) * (1.0f / 16777216.0f);
}
