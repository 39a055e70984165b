// Every byte survives being written to a corpus line and read back.
#include "corpus_lines.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

TEST(corpus_lines, every_two_bytes_come_back_from_one_printable_line) {
    for (int first = 0; first < 256; ++first)
        for (int second = 0; second < 256; ++second) {
            const std::string bytes{static_cast<char>(first), static_cast<char>(second)};
            const std::string line = escaped(bytes);
            ASSERT_EQ(unescaped(line), bytes) << line;
            ASSERT_TRUE(line.back() > ' ' &&
                        std::ranges::all_of(line, [](char c) { return c >= ' ' && c <= '~'; }));
        }
}

} // namespace
