#include "decode_fixture.h"
#include "parameters.h"
#include "sample_reply.h"
#include "text.h"

#include <cmath>

namespace {

class standard_values_test : public decode_test {};

// After SAE J1979 and ISO 15031-5, each worked out by hand.
const struct {
    std::string_view reply, metric, imperial;
    double value; // metric
} ANSWERS[] = {
    {"41018307E500", "3, lamp on", "3, lamp on", 3},
    {"41010007E500", "0, lamp off", "0, lamp off", 0},
    {"41030201", "closed loop, system 2: open loop, warming up", "", 0x201},
    {"41030800", "open loop, fault", "", 0x800},
    {"411204", "from outside or off", "", 4},
    {"411240", "64", "", 64},
    {"411333", "B1S1, B1S2, B2S1, B2S2", "", 0x33},
    {"411D33", "B1S1, B1S2, B3S1, B3S2", "", 0x33},
    {"411300", "none", "", 0},
    {"41145A7F", "0.450 V, -0.8 % (trim)", "", 0.45},
    {"41145AFF", "0.450 V", "", 0.45},
    {"4121012C", "300 km", "186 miles", 300},
    {"413015", "21", "21", 21},
    {"4132FFF0", "-4.00 Pa", "-0.0161 inH2O", -4},
    {"413365", "101 kPa", "14.65 psi", 101},
    {"413C1194", "410.0 °C", "770.0 °F", 410},
    {"41410007E521", "catalyst not complete, O2 or exhaust gas sensor not complete", "", 0x07E521},
    {"41410017E502", "misfire not complete", "", 0x17E502},
    {"41410007E500", "all complete", "", 0x07E500},
    {"41448000", "1.000", "1.000", 1},
    {"41534F4C", "101.500 kPa", "407.485 inH2O", 101.5},
    {"4154FF38", "-200 Pa", "-0.80 inH2O", -200},
    {"4155A0", "25.0 % (bank 1)", "", 25},
    {"4157A040", "25.0 % (bank 2), -50.0 % (bank 4)", "", 25},
    {"41590A28", "26000 kPa", "3770.98 psi", 26000},
    {"415A80", "50.2 %", "50.2 %", 50.2},
    {"415C7B", "83 °C", "181 °F", 83},
    {"415D6900", "0.00 °", "", 0},
    {"415E00F6", "12.30 L/h", "3.25 gal/h", 12.3},
    {"415F0F", "heavy duty Euro V B2", "", 15},
    {"4161AF", "50 %", "", 50},
    {"416300F0", "240 Nm", "177 lb-ft", 240},
    {"41648796A0AABE",
     "10 % (idle), 25 % (point 1), 35 % (point 2), 45 % (point 3), 65 % (point 4)", "", 10},
    {"41650501", "power take-off on, manual in neutral", "", 0x501},
    {"41660206400640", "50.00 g/s (B)", "6.6139 lb/min (B)", 50},
    {"4166000000 0000", "-", "-", NAN},
    {"4167037B78", "83 °C (sensor 1), 80 °C (sensor 2)", "", 83},
    {"416803414B", "25 °C (B1S1), 35 °C (B1S2)", "", 25},
    {"41682000000000 0041", "25 °C (B2S3)", "", 25},
    {"416907808080000000", "50.2 % (A commanded), 50.2 % (A actual), 0.0 % (A error)", "", 50.2},
    {"416B207B787B00", "440 °C (B1S2)", "", 440},
    {"416D070BB80BB87B000000 0000", "30000 kPa (A commanded), 30000 kPa (A rail), 83 °C (A fuel)",
     "", 30000},
    {"416F041400", "160 kPa (A)", "", 160},
    {"4170070C800C4000000000 02", "100.00 kPa (A commanded), 98.00 kPa (A actual), A closed loop",
     "", 100},
    {"4171 20 00 00 00 00 0C", "B fault", "", 0x20000000000C},
    {"4173012724 0000", "100.20 kPa (bank 1)", "", 100.2},
    {"4175 0C 00 00 1A 90 15 E0", "640.0 °C (turbine in), 520.0 °C (turbine out)", "", 640},
    {"4178050FA00000119400 00", "360.0 °C (sensor 1), 410.0 °C (sensor 3)", "", 360},
    {"417A07FFF027103A98", "100.00 kPa (inlet), 150.00 kPa (outlet)", "", 100},
    {"417C0100FA000000000000", "-15.0 °C (bank 1 inlet)", "", -15},
    {"417F0300000E1000000384 00000000", "3600 s (total), 900 s (idling)", "", 3600},
    {"418302 0000 0064 0000 0000", "100 ppm (B1S2)", "", 100},
    {"4185 0F 00C8 0190 80 0000003C",
     "1.000 L/h (average use), 2.000 L/h (demanded use), 50.2 % (tank), 60 s (with warning)", "",
     1},
    {"418601 0140 0000", "4.00 mg/m³ (bank 1)", "", 4},
    {"418B7101 80 000A 01F4", "50.2 % (trigger), 500 km (between regenerations), regenerating", "",
     50.2},
    {"418C10 0000 0000 0000 0000 2000 0000 0000 0000", "1.000 (B1S1)", "", 1},
    {"418E87", "10 %", "", 10},
    {"4190 00 0010", "16 h", "", 16},
    {"41920501", "pressure 1 closed loop, timing 1 open loop", "", 0x501},
    {"419B000000FF", "100.0 %", "", 100},
    {"41A20020", "1.00 mg/stroke", "", 1},
    {"41A402 00 0D AC", "3.500", "", 3.5},
    {"41A5 01 32 00 00", "25.0 %", "", 25},
    {"41A6000D5618", "87400.8 km", "54308.3 miles", 87400.8},
    {"41A90101 0000", "ABS disabled", "", 0x1010000},
    // no whole answer, and no row
    {"415C", "~", "~", NAN},
    {"415C7B00", "~", "~", NAN},
    {"4178050FA0", "~", "~", NAN},
    {"NODATA", "~", "~", NAN},
    {"7F0112", "~", "~", NAN},
    {"410C1AF8", "~", "~", NAN},
};

TEST_F(standard_values_test, answers_read_as_the_standard_gives_them) {
    for (const auto& c : ANSWERS) {
        const translated metric = standard_value(c.reply, true);
        EXPECT_EQ(metric.text, c.metric) << c.reply;
        if (!c.imperial.empty()) {
            EXPECT_EQ(standard_value(c.reply, false).text, c.imperial) << c.reply;
        }
        EXPECT_TRUE(metric.value == c.value || (std::isnan(c.value) && std::isnan(metric.value)))
            << c.reply << " " << metric.value;
    }
}

// The named operations keep their answers; who shows a parameter gets the first table's row, else
// the standard's.
TEST_F(standard_values_test, the_first_table_comes_first) {
    const struct {
        std::string pid, reply, text, units;
        double low, high;
    } cases[] = {
        {"0C", "410C1AF8", "1726.00 RPM", "RPM", 0, 16383.75},
        {"3c", "413C1194", "-39.0 C", "° C", -40, 6513.5}, // the letter, although it misleads
        {"12", "411208", "~", "N/A", 0, 0},
        {"5c", "415C7B", "83 °C", "°C", -40, 160},
        {"13", "411303", "B1S1, B1S2", "N/A", 0, 0},
        {"A6", "41A6000D5618", "87400.8 km", "km", 0, 300000},
        {"60", "416000000000", "~", "N/A", 0, 0},
    };
    use_metric(true);
    for (const auto& c : cases) {
        EXPECT_EQ(parameter_value(decoder, c.reply).text, c.text);
        EXPECT_EQ(parameter_units(decoder, c.pid), c.units) << c.pid;
        EXPECT_EQ(parameter_range(decoder, c.pid).low, c.low) << c.pid;
        EXPECT_EQ(parameter_range(decoder, c.pid).high, c.high) << c.pid;
    }
    EXPECT_EQ(decoder.translateResponse("415C7B"), "~");
    EXPECT_EQ(decoder.get_units("5C"), "N/A");
    EXPECT_EQ(decoder.get_pid_name("78", false), "NOT FOUND");
    EXPECT_EQ(parameter_name(decoder, "78"), "Exhaust Gas Temperature Bank 1");
}

// Frames as an adapter prints them without headers; only answers that do not fit one are joined.
TEST_F(standard_values_test, frames_of_one_long_answer_are_put_together) {
    const struct {
        std::string_view reply, answer;
    } cases[] = {
        {"00B \r0: 41 78 05 0F A0 00 \r1: 00 11 94 00 00 00 00 \r\r>", "4178050FA00000119400 00"},
        {"00B\r0:4178050FA000\r1:00119400\r", "00B"},                       // a frame is missing
        {"00B\r0:4178050FA000\r0:4178050FA000\r1:00119400000000\r", "00B"}, // two units
        {"004\r0:410C1AF8000000\r", "004"},                                 // never parted
        {"410C1AF8\r410C1AFC\r", "410C1AF8"},
        {"\r\n410C1AF8", "410C1AF8"},
        {"", ""},
    };
    for (const auto& c : cases)
        EXPECT_EQ(whole_answer(without(c.reply, ">")), without(c.answer, " ")) << c.reply;
    EXPECT_EQ(answer_in("4178050FA0000011940000"), "4178050FA0000011940000");
    EXPECT_EQ(answer_in("4178050FA000"), "") << "cut";
    EXPECT_EQ(answer_in("4155A0"), "4155A0") << "of two banks";
    EXPECT_EQ(answer_in("41A10102"), "41A10102") << "no row: any length";
}

TEST_F(standard_values_test, tests_scale_as_the_standard_means_it) {
    const struct {
        std::string_view identifier, value, text;
    } cases[] = {
        {"03", "0010", "0.16"},       {"39", "8000", "0.00 %"},    {"8B", "FFFF", "-0.001 V"},
        {"96", "FF38", "-20.0 °C"},   {"B0", "7FFF", "99.9969 %"}, {"fe", "FFFC", "-1.00 Pa"},
        {"9D", "8000", "-16384.0 °"}, {"07", "1F40", ""},          {"8B", "zz", ""},
    };
    for (const auto& c : cases)
        EXPECT_EQ(standard_test_value(c.identifier, c.value), c.text) << c.identifier;
}

} // namespace
