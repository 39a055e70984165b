// Pseudo-random numbers that depend only on the seed, the same with every library (splitmix64).
#pragma once

#include <cstdint>

class seeded_random {
  public:
    explicit seeded_random(std::uint64_t seed) : state_(seed) {}

    std::uint64_t next() {
        state_ += 0x9E3779B97F4A7C15u;
        std::uint64_t mixed = state_;
        mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9u;
        mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBu;
        return mixed ^ (mixed >> 31);
    }
    // From `from` up to, but not including, `to`.
    double between(double from, double to) {
        return from + (to - from) * double(next() >> 11) / 9007199254740992.0;
    }
    // True in that many cases out of a hundred.
    bool happens(double percent) { return between(0, 100) < percent; }

  private:
    std::uint64_t state_;
};
