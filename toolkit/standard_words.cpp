#include "standard_rows.h"

namespace {

constexpr word FUEL_SYSTEM[] = {{1, "open loop, warming up"},
                                {2, "closed loop"},
                                {4, "open loop, driving conditions"},
                                {8, "open loop, fault"},
                                {16, "closed loop, O2 sensor fault"}};
constexpr word FUEL_SYSTEM_2[] = {{1, "system 2: open loop, warming up"},
                                  {2, "system 2: closed loop"},
                                  {4, "system 2: open loop, driving conditions"},
                                  {8, "system 2: open loop, fault"},
                                  {16, "system 2: closed loop, O2 sensor fault"}};
constexpr word SECONDARY_AIR[] = {{1, "upstream of the first catalyst"},
                                  {2, "downstream of the first catalyst"},
                                  {4, "from outside or off"},
                                  {8, "pump on for diagnosis"}};
constexpr word EMISSION[] = {{0x0E, "heavy duty Euro IV B1"},
                             {0x0F, "heavy duty Euro V B2"},
                             {0x10, "heavy duty Euro EEV C"}};
constexpr std::string_view NOT_TO_EXCEED =
    "inside the control area|outside the control area|inside a carve-out|deficiency active";
// For boost and turbocharger control, which have two turbochargers in one byte.
constexpr word CONTROL_A[] = {{1, "A open loop"}, {2, "A closed loop"}, {3, "A fault"}};
constexpr word CONTROL_B[] = {{4, "B open loop"}, {8, "B closed loop"}, {12, "B fault"}};

constexpr flag_row FLAGS[] = {
    {0x01, 0, 7, "lamp on", "lamp off"},
    {0x13, 0, 0, "B1S1|B1S2|B1S3|B1S4|B2S1|B2S2|B2S3|B2S4"},
    {0x1D, 0, 0, "B1S1|B1S2|B2S1|B2S2|B3S1|B3S2|B4S1|B4S2"},
    {0x41, 1, 4, "misfire not complete|fuel system not complete|components not complete", {}, 1},
    {0x41,
     3,
     0,
     "catalyst not complete|heated catalyst or NOx aftertreatment not complete|"
     "evaporative system not complete|secondary air or boost pressure not complete|"
     "A/C refrigerant or petrol particulate filter not complete|"
     "O2 or exhaust gas sensor not complete|"
     "O2 sensor heater or particulate filter not complete|EGR/VVT not complete",
     {},
     2},
    {0x65, 1, 0, "power take-off on|automatic in gear|manual in gear|glow lamp on",
     "power take-off off|automatic in neutral|manual in neutral|glow lamp off", 0},
    {0x7D, 0, 0, NOT_TO_EXCEED},
    {0x7E, 0, 0, NOT_TO_EXCEED},
    {0x8B, 1, 0, "regenerating|active regeneration", "not regenerating|passive regeneration", 0},
    {0x92, 1, 0,
     "pressure 1 closed loop|quantity 1 closed loop|timing 1 closed loop|balance 1 closed loop|"
     "pressure 2 closed loop|quantity 2 closed loop|timing 2 closed loop|balance 2 closed loop",
     "pressure 1 open loop|quantity 1 open loop|timing 1 open loop|balance 1 open loop|"
     "pressure 2 open loop|quantity 2 open loop|timing 2 open loop|balance 2 open loop",
     0},
    {0x94, 1, 0, "NOx warning on", "NOx warning off", 0},
    {0xA9, 1, 0, "ABS disabled", "ABS not disabled", 0},
};

constexpr word_row WORDS[] = {
    {0x03, 0, 0xFF, FUEL_SYSTEM},  {0x03, 1, 0xFF, FUEL_SYSTEM_2}, {0x12, 0, 0xFF, SECONDARY_AIR},
    {0x5F, 0, 0xFF, EMISSION},     {0x70, 9, 0x03, CONTROL_A, 2},  {0x70, 9, 0x0C, CONTROL_B, 5},
    {0x71, 5, 0x03, CONTROL_A, 2}, {0x71, 5, 0x0C, CONTROL_B, 5},
};

} // namespace

std::span<const flag_row> standard_flags() {
    return FLAGS;
}

std::span<const word_row> standard_words() {
    return WORDS;
}
