// Random choices determined by a seed.
#pragma once

#include "run_loop.h"
#include "seeded_random.h"

#include <array>
#include <chrono>
#include <cstddef>

class rng {
  public:
    explicit rng(std::uint64_t seed) : random_(seed) {}

    // From 0 up to, but not including, `count`.
    int below(int count) { return static_cast<int>(random_.next() % static_cast<unsigned>(count)); }
    int between(int lowest, int highest) { return lowest + below(highest - lowest + 1); }
    bool happens(double percent) { return random_.happens(percent); }
    std::uint64_t seed() { return random_.next(); }
    char byte() { return static_cast<char>(random_.next() & 0xFF); }
    run_loop::milliseconds time(int lowest, int highest) {
        return run_loop::milliseconds(between(lowest, highest));
    }
    template <class list>
    const auto& one_of(const list& from) {
        return from[static_cast<std::size_t>(below(static_cast<int>(std::size(from))))];
    }

  private:
    seeded_random random_;
};
