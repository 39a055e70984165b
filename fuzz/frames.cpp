// Joining the numbered frames of a multi-frame reply.
#include "fuzz_one.h"
#include "mac_toolies.h"
#include "text.h"

int fuzz_one(std::span<const std::uint8_t> bytes) {
    const std::string_view reply = as_text(bytes);
    const std::string joined = mac_toolies::grab_CAN_msg(reply);
    REQUIRE(joined.size() <= bytes.size());
    REQUIRE(joined.find_first_of("\r\n>") == joined.npos);
    // The message consists of the frames' contents, in order.
    std::size_t from = 0;
    for (const char c : joined) {
        from = reply.find(c, from);
        REQUIRE(from != reply.npos);
        ++from;
    }
    if (const auto data = mac_toolies::fromHexString(joined))
        REQUIRE(data->size() == joined.size() / 2);
    return 0;
}
