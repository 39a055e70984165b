#include "trouble_codes.h"

#include "answer_sizes.h"
#include "globalVars.h"
#include "mac_toolies.h"
#include "text.h"

#include <utility>

namespace {

// The positions of codes in an older bus's line, after the service.
constexpr std::size_t CODE_PLACES[] = {2, 6, 10};

// Whether the leading decimal digits form a number above 0.
bool has_decimal_value(std::string_view digits) {
    const std::string_view decimals = digits.substr(0, digits.find_first_not_of("0123456789"));
    return decimals.find_first_not_of('0') != decimals.npos;
}

// A truncated line might also be a complete CAN line, which begins with a count; then only headers
// are sufficient evidence of the bus.
bool may_be_can(std::string_view line, bus_evidence bus) {
    return bus.source != bus_source::headers && bus.source != bus_source::handshake &&
           line.size() < LONGEST_FRAME_DIGITS &&
           line.size() == answer_digits(line, bus_form::can).value_or(0);
}

class codes_taker {
  public:
    codes_taker(const reading& reply, half_codes halves) : reply_(reply), halves_(halves) {
        result_.answered = reply.answered();
        result_.no_data = reply.no_data;
        result_.unread = reply.unread;
        result_.others = reply.others;
    }

    codes_reading take() {
        for (const ecu_answer& one : reply_.answers) {
            if (halves_ == half_codes::left_unread && one.data.size() % 2 != 0)
                continue; // all digits after the lost one are misplaced
            if (one.bus == bus_form::can)
                take_message(one);
            else
                take_line(one);
            result_.units.resize(result_.codes.size(), label_of(one));
        }
        return std::move(result_);
    }

  private:
    static std::string label_of(const ecu_answer& one) {
        const std::string address = unit_address(one.form, one.header);
        return one.unit.empty() || one.unit.starts_with("ECU") ? address
                                                               : one.unit + " (" + address + ")";
    }

    void add(std::string_view digits) {
        result_.codes.push_back(mac_toolies::pull_DTC_code(digits));
    }

    // On CAN: the number of codes, then the codes.
    void take_message(const ecu_answer& one) {
        for (std::size_t at = CODES_HEAD_DIGITS; at + CODE_DIGITS <= one.data.size();
             at += CODE_DIGITS)
            add(std::string_view(one.data).substr(at, CODE_DIGITS));
    }

    // On the older buses three codes per line. The first place is always read, the others only if
    // their value is decimal: any other code there is reported as left out.
    void take_line(const ecu_answer& one) {
        std::string line = one.data;
        if (halves_ == half_codes::padded)
            line = mac_toolies::padString(line, '0', LONGEST_FRAME_DIGITS, true);
        else if (may_be_can(line, reply_.bus))
            return;
        for (const std::size_t place : CODE_PLACES) {
            const std::string_view code = slice(std::string_view(line), place, CODE_DIGITS);
            if (code.size() < CODE_DIGITS)
                return;
            if (place == CODE_PLACES[0] || has_decimal_value(code))
                add(code);
            else if (code != "0000")
                result_.unread.push_back({unread_kind::left_out, mac_toolies::pull_DTC_code(code)});
        }
    }

    const reading& reply_;
    half_codes halves_;
    codes_reading result_;
};

} // namespace

codes_reading read_codes(std::string_view service, std::string_view reply, bus_evidence known,
                         std::optional<int> announced, half_codes halves) {
    const reading read = read_reply(service, reply, known);
    codes_reading by_form = codes_taker(read, halves).take();
    if (read.bus.source != bus_source::reply_form)
        return by_form;
    const bus_form other_bus = read.bus.form == bus_form::can ? bus_form::older : bus_form::can;
    const reading other = read_reply(service, reply, {other_bus, bus_source::reply_form});
    codes_reading by_other = codes_taker(other, halves).take();
    const auto fits = [&](const codes_reading& one) {
        return one.unread.empty() && (!announced || std::cmp_equal(*announced, one.codes.size()));
    };
    if (by_form.codes == by_other.codes || fits(by_form))
        return by_form;
    if (fits(by_other))
        return by_other;
    if (!by_form.unread.empty()) { // a damaged line may look like either
        by_form.codes.clear();
        by_form.units.clear();
        by_form.unread.push_back({unread_kind::not_understood, {}});
    }
    return by_form;
}

std::vector<std::string> mac_toolies::work_reply_to_error_codes_pid(std::string_view mode,
                                                                    std::string_view this_reply) {
    const bus_form bus = g_cur_protocol.contains("CAN") ? bus_form::can : bus_form::older;
    return read_codes(mode, this_reply, {bus, bus_source::protocol_text}, {}, half_codes::padded)
        .codes;
}

// SAE J2012: two bits for the system, two for the first digit.
std::string mac_toolies::pull_DTC_code(std::string_view four_digits) {
    const int first = charToNibble(four_digits.empty() ? '0' : four_digits.front());
    std::string code{"PCBU"[first / 4], static_cast<char>('0' + first % 4)};
    return code.append(slice(four_digits, 1, 3));
}
