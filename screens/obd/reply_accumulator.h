// Collects chunks in odb_curReplyBuffyMsg until the adapter's prompt has arrived. Shared by the
// screens that run step chains.
#pragma once

#include <cstddef>
#include <string_view>

// More than any adapter sends in one reply; past it the accumulator is emptied.
inline constexpr std::size_t LONGEST_REPLY = 64 * 1024;

// Appends the chunk. True if odb_curReplyMsg now holds a complete reply with its prompt; what
// followed the prompt stays in the accumulator for the next reply.
bool accumulate_reply(std::string_view chunk);
