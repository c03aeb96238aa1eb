#pragma once
// The roll's random source: seeded with a single-precision number, draws 0 <= r < 1.
#include <cstdint>
#include <random>

class RandomSource {
public:
    void Randomize(float seed);
    float Rnd();

private:
    std::mt19937 engine_{0u};
};
