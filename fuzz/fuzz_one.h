// A fuzz target: a function that passes arbitrary bytes to one reader of outside text and checks
// invariants of the result. Each target is a program: with the fuzzing engine in the `fuzz` preset,
// with a plain main that replays files in all others.
#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <span>
#include <string_view>

int fuzz_one(std::span<const std::uint8_t> bytes);

inline std::string_view as_text(std::span<const std::uint8_t> bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

// Ends the program, which both mains report as a failure of the input.
#define REQUIRE(condition)                                                                         \
    ((condition) ? (void)0                                                                         \
                 : (std::fprintf(stderr, "%s:%d: not so: %s\n", __FILE__, __LINE__, #condition),   \
                    std::abort()))
