#include "reply_accumulator.h"

#include "globalVars.h"
#include "system_log.h"

#include <algorithm>
#include <iterator>

bool accumulate_reply(std::string_view chunk) {
    std::string& gathered = odb_curReplyBuffyMsg;
    // Adapters now and then put zero bytes into a reply; they mean nothing, and would shift
    // positions.
    std::ranges::copy_if(chunk, std::back_inserter(gathered), [](char c) { return c != '\0'; });
    if (gathered.find('>') == std::string::npos) {
        if (gathered.size() > LONGEST_REPLY) {
            qCWarning(log_screens, "no prompt within %zu bytes: dropped", gathered.size());
            gathered.clear();
        }
        return false;
    }
    if (gathered.back() == '>') {
        odb_curReplyMsg = std::move(gathered);
        gathered.clear();
        return true;
    }
    // Text follows a prompt. Prompts in front of the reply are left-overs of an earlier one.
    const std::size_t start = gathered.find_first_not_of('>');
    const std::size_t prompt = gathered.find('>', start);
    if (prompt == std::string::npos) {
        gathered.erase(0, start);
        std::erase(gathered, '\n');
        return false;
    }
    odb_curReplyMsg = gathered.substr(start, prompt + 1 - start);
    const std::size_t rest = gathered.find_first_not_of('>', prompt);
    gathered = gathered.substr(rest, gathered.find('>', rest) - rest);
    std::erase(gathered, '\n');
    return true;
}
