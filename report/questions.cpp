#include "questions.h"

#include <algorithm>
#include <array>
#include <map>

namespace {

using std::chrono::seconds;

constexpr unsigned LAST_GROUP = 0xE0;
constexpr seconds FIRST_CONTACT{20}; // the adapter may look for the bus
constexpr seconds SLOW_PIECE{20};    // verification numbers are computed on request
constexpr unsigned VERIFICATION_NUMBERS = 0x06;

// Of service 01, besides status and supported lists.
constexpr unsigned READINGS[] = {0x41, 0x1C, 0x51, 0x0C, 0x05, 0x42,
                                 0x21, 0x30, 0x31, 0x4D, 0x4E, 0xA6};
constexpr unsigned IDENTITY[] = {0x02, 0x0A, 0x04, VERIFICATION_NUMBERS, 0x08, 0x0B};
// On the older buses these return the number of messages of the next one.
constexpr unsigned COUNTED[] = {0x03, 0x05, 0x07};
// Asked of a car that does not list its identifiers.
constexpr unsigned ALWAYS_WORTH_IT[] = {0x02, 0x04, VERIFICATION_NUMBERS};

class question_list {
  public:
    explicit question_list(const conversation& so_far) : so_far_(so_far) {}

    std::vector<question> make() {
        add("ATI", topic::adapter);
        add("ATRV", topic::adapter);
        add("0100", topic::supported, FIRST_CONTACT);
        add("ATDP", topic::adapter); // known once the bus is open
        add("ATDPN", topic::adapter);
        add("0101", topic::status);
        for (const char* service : {"03", "07", "0A"})
            add(service, topic::codes);
        supported("01");
        readings();
        frames();
        identity();
        tests();
        return std::move(list_);
    }

  private:
    void add(std::string request, topic about,
             std::chrono::milliseconds bound = std::chrono::seconds(8)) {
        list_.push_back({std::move(request), about, bound});
    }

    bool answered(const std::string& request) const {
        const asked_piece* piece = so_far_.find(request);
        return piece && piece->answered();
    }
    // By all units: then nothing else in the service is worth asking.
    bool refused(const std::string& request) const {
        const asked_piece* piece = so_far_.find(request);
        return piece && std::ranges::none_of(piece->refusals, is_deferral) &&
               piece->refusals.size() == so_far_.units().size();
    }

    const std::bitset<256>& listed(std::string_view service) {
        const auto known = listed_.find(service);
        return known != listed_.end()
                   ? known->second
                   : listed_.emplace(service, so_far_.listed_by_anyone(service)).first->second;
    }

    // A service's lists, as far as units announce the next one.
    void supported(std::string_view service) {
        for (unsigned group = 0; group <= LAST_GROUP; group += GROUP)
            if (group == 0 || listed(service).test(group))
                add(list_request(service, group), topic::supported);
    }

    void readings() {
        for (const unsigned pid : READINGS)
            if (!answered("0100") || listed("01").test(pid))
                add(request_of("01", pid), pid == 0x41 ? topic::status : topic::readings);
    }

    // Of frame 00, if a unit reports the code that caused it.
    void frames() {
        add("020200", topic::frames);
        const asked_piece* named = so_far_.find("020200");
        if (!named || std::ranges::none_of(named->answers, [](const unit_reply& one) {
                return !one.data.ends_with("0000");
            }))
            return;
        supported("02");
        // Some units refuse the list, but not the values: then the list of service 01 is used.
        const std::string_view listed_by = answered("020000") ? "02" : "01";
        for (unsigned pid = 3; pid <= 0xFF; ++pid)
            if (pid % GROUP != 0 && listed(listed_by).test(pid))
                add(request_of("02", pid) + "00", topic::frames);
    }

    void identity() {
        supported("09");
        if (refused("0900"))
            return;
        for (const unsigned type : COUNTED)
            if (!so_far_.on_can() && listed("09").test(type))
                add(request_of("09", type), topic::identity);
        for (const unsigned type : IDENTITY)
            if (answered("0900")
                    ? listed("09").test(type)
                    : std::ranges::find(ALWAYS_WORTH_IT, type) != std::end(ALWAYS_WORTH_IT))
                add(request_of("09", type), topic::identity,
                    type == VERIFICATION_NUMBERS ? SLOW_PIECE : seconds(8));
    }

    void tests() {
        supported("06");
        for (unsigned monitor = 1; monitor <= 0xFF; ++monitor)
            if (monitor % GROUP != 0 && listed("06").test(monitor))
                add(request_of("06", monitor), topic::tests);
    }

    const conversation& so_far_;
    std::map<std::string, std::bitset<256>, std::less<>> listed_; // by service
    std::vector<question> list_;
};

} // namespace

std::string_view topic_name(topic one) {
    constexpr std::array<std::string_view, 8> NAMES{"adapter",  "supported", "status",   "codes",
                                                    "readings", "frames",    "identity", "tests"};
    return NAMES[static_cast<std::size_t>(one)];
}

std::vector<question> wanted(const conversation& so_far) {
    return question_list(so_far).make();
}
