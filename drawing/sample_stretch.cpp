#include "sample_stretch.h"

void value_spans::add(value_span added) {
    std::array<value_span, MOST + 1> apart;
    std::size_t count = 0;
    for (const value_span& span : *this)
        if (span.meets(added))
            added = added.joined(span);
        else
            apart[count++] = span;
    std::size_t place = count++;
    for (; place > 0 && apart[place - 1].lowest > added.lowest; --place)
        apart[place] = apart[place - 1];
    apart[place] = added;
    if (count > MOST) {
        const auto gap_behind = [&](std::size_t i) {
            return apart[i + 1].lowest - apart[i].highest;
        };
        std::size_t nearest = 0;
        for (std::size_t i = 1; i + 1 < count; ++i)
            if (gap_behind(i) < gap_behind(nearest))
                nearest = i;
        apart[nearest] = apart[nearest].joined(apart[nearest + 1]);
        --count;
        for (std::size_t i = nearest + 1; i < count; ++i)
            apart[i] = apart[i + 1];
    }
    std::copy_n(apart.begin(), count, spans_.begin());
    count_ = static_cast<std::uint32_t>(count);
}
