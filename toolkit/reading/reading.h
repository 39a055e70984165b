// One reading of a reply: which units answered what, over which bus, what the adapter added, and
// what could not be read. Before saying "none" or "complete", check that nothing was left unread.
// The forms of lines are in the tables of header_forms, answer_sizes and notices.
#pragma once

#include "constantes.h"
#include "header_forms.h"
#include "unread.h"

#include <string>
#include <string_view>
#include <vector>

struct ecu_answer {
    header_form form = header_form::none;
    std::string header;               // digits; empty with headers off
    std::string unit;                 // unit_name()
    std::string data;                 // capital hex digits from the service byte on; no padding
    bus_form bus = bus_form::unknown; // by which it was read
    bool framed = true;               // as long as its frame says; only fill or a checksum follows
    bool operator==(const ecu_answer&) const = default;
};

enum class bus_source { nothing, headers, handshake, protocol_text, reply_form };

struct bus_evidence {
    bus_form form = bus_form::unknown;
    bus_source source = bus_source::nothing;
};

// Evidence of the bus for a reply with headers off, the surest first: the headers of the answer to
// "01 01" in the same task, those of the handshake, the text of "AT DP" where it names a bus
// ("AUTO" does not).
bus_evidence bus_known_by(bus_form status_headers, bus_form handshake_headers,
                          std::string_view protocol_text);

struct reading {
    std::vector<ecu_answer> answers; // in the order in which they began
    bus_evidence bus;
    bool no_data = false; // the adapter said so, and no unit answered
    unread_pieces unread;
    std::vector<std::string> others; // whole answers and refusals to other requests, as `data` is

    bool answered() const { return !answers.empty(); }
    // A refusal by a unit besides other answers is harmless, unless it only deferred its answer.
    void forget_refusals();
};

// `request`: its hex digits, such as "0101" or "03". Of several replies in one piece, the last one
// with an answer counts.
reading read_reply(std::string_view request, std::string_view reply, bus_evidence known = {});
