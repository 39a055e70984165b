#include "programmable_parameters.h"

#include "hex_text.h"

namespace {

constexpr std::size_t ALL = 0xFF;
constexpr std::size_t PER_LINE = 4;

} // namespace

std::optional<std::string> set_parameter(adapter_state& state, std::string_view digits) {
    const std::size_t index = hex_number(digits.substr(0, 2));
    if (index >= state.memory.parameters.size())
        return std::nullopt;
    state.memory.parameters[index].value = std::uint8_t(hex_number(digits.substr(2)));
    return "OK";
}

std::optional<std::string> switch_parameter(adapter_state& state, std::string_view digits,
                                            bool on) {
    const std::size_t index = hex_number(digits);
    if (index >= state.memory.parameters.size() && index != ALL)
        return std::nullopt;
    for (std::size_t i = 0; i < state.memory.parameters.size(); ++i)
        if (i == index || index == ALL)
            state.memory.parameters[i].on = on;
    return "OK";
}

std::string parameter_summary(const adapter_state& state) {
    std::string text;
    for (std::size_t i = 0; i < state.memory.parameters.size(); ++i) {
        const programmable_parameter& one = state.memory.parameters[i];
        if (i > 0)
            text += i % PER_LINE == 0 ? "\r" : "  ";
        text += hex_text({std::uint8_t(i)}, false) + ":" + hex_text({one.value}, false) +
                (one.on ? " N" : " F");
    }
    return text;
}
