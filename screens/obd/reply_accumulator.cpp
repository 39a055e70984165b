#include "reply_accumulator.h"

#include "globalVars.h"
#include "reply_ledger.h"
#include "system_log.h"

#include <algorithm>
#include <iterator>

bool accumulate_reply(std::string_view chunk) {
    std::string& gathered = odb_curReplyBuffyMsg;
    // Adapters sometimes insert zero bytes into a reply; they are meaningless and would shift
    // positions.
    std::ranges::copy_if(chunk, std::back_inserter(gathered), [](char c) { return c != '\0'; });
    const auto reply = find_reply(gathered);
    if (!reply && gathered.size() > LONGEST_REPLY && gathered.find('>') == std::string::npos) {
        qCWarning(log_screens, "no prompt within %zu bytes: dropped", gathered.size());
        gathered.clear();
    }
    if (!reply) {
        gathered.erase(0, gathered.find_first_not_of('>')); // left over from an earlier reply
        return false;
    }
    odb_curReplyMsg = gathered.substr(reply->begin, reply->end - reply->begin);
    gathered.erase(0, reply->next);
    gathered.erase(std::min(gathered.find('>'), gathered.size()));
    std::erase(gathered, '\n');
    return true;
}
