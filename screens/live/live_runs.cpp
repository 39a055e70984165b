#include "live_runs.h"

#include "constantes.h"
#include "fuel_economy.h"
#include "globalVars.h"
#include "sample_reply.h"
#include "supported_scan.h"
#include "text.h"
#include "user_defaults.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <limits>

namespace {

constexpr double NO_READING = std::numeric_limits<double>::quiet_NaN();

// The data bytes of an answer to that parameter, at most two, as one number; NaN if it is not one.
double raw_value(std::string_view reply, std::string_view pid) {
    const std::string_view answer = answer_in(reply);
    if (answer.empty() || !answers_parameter(answer, pid))
        return NO_READING;
    return mac_toolies::convertStr2Byte(slice(answer, 4));
}

// "41", the pseudo-parameter and its word.
std::string word_reply(std::string_view pid, int word) {
    const auto clamped = static_cast<unsigned>(std::clamp(word, 0, 0xFFFF));
    return "41" + std::string(pid) + mac_toolies::convertByte2HexStr(clamped >> 8) +
           mac_toolies::convertByte2HexStr(clamped & 0xFF);
}

class log_run final : public live_run {
  public:
    std::optional<std::vector<std::string>> parameters(const user_defaults& store) const override {
        auto chosen = store.string_array(PIDS_ARRAY_KEY).value_or(std::vector<std::string>{});
        for (const std::string& pid :
             store.string_array(MORE_PIDS_KEY).value_or(std::vector<std::string>{}))
            if (std::ranges::find(chosen, pid) == chosen.end())
                chosen.push_back(pid);
        // A settings file edited by hand may hold anything.
        std::erase_if(chosen,
                      [](const std::string& pid) { return pid.size() != 2 || !is_hex(pid); });
        return chosen;
    }
};

// Fuel consumption: speed and air flow are requested, the economy computed from them.
class fuel_run final : public live_run {
  public:
    explicit fuel_run(const mac_toolies& toolies) : toolies_(toolies) {}

    std::optional<std::vector<std::string>> parameters(const user_defaults&) const override {
        return std::vector<std::string>{"E4", "0D", "10"};
    }
    std::vector<sample_request> requests(const std::vector<std::string>&) const override {
        return {{"0D", 1}, {"10", 2}};
    }
    std::string reply_to_file(const sample_request& asked, const std::string& reply) override {
        if (asked.pid == "0D")
            cur_Speed = raw_value(reply, "0D");
        else
            cur_MAF = raw_value(reply, "10") / 100;
        return reply;
    }
    std::optional<computed_sample> cycle_answered() override {
        // The bytes of the replies are km/h and g/s whatever the display units, so the flag stays
        // clear: the displayed values are rounded, in mph and lb/min by several percent.
        const fuel_economy economy = compute_MPG(false, cur_Speed, cur_MAF);
        return computed_sample{0, fuel_economy_reply(toolies_, economy)};
    }

  private:
    const mac_toolies& toolies_;
    double cur_Speed = NO_READING; // km/h
    double cur_MAF = NO_READING;   // g/s
};

// Boost: manifold pressure above ambient. The computed parameter counts from the 101 kPa that
// decoding subtracts, so that a log reads the same wherever it is opened; if the car measures the
// ambient pressure, the difference is part of the word.
class boost_run final : public live_run {
  public:
    std::optional<std::vector<std::string>> parameters(const user_defaults&) const override {
        return std::vector<std::string>{"E5", "06", "08", "0A"};
    }
    std::optional<std::string> first_question() override {
        if (asked_ || !mac_toolies::is_this_code_available(g_Supported_obd_mask_1, "33", 1))
            return std::nullopt;
        return "33";
    }
    void first_question_answered(std::string_view reply) override {
        asked_ = true;
        if (const double pressure = raw_value(reply, "33"); pressure > 0)
            barometric_kpa_ = static_cast<int>(pressure);
    }
    std::vector<sample_request> requests(const std::vector<std::string>&) const override {
        return {{"0B", 0}, {"06", 1}, {"08", 2}, {"0A", 3}};
    }
    std::string reply_to_file(const sample_request& asked, const std::string& reply) override {
        if (asked.place != 0)
            return reply;
        const double manifold_kpa = raw_value(reply, "0B");
        if (std::isnan(manifold_kpa))
            return "~";
        return word_reply("E5",
                          static_cast<int>(manifold_kpa) + STANDARD_BAROMETER - barometric_kpa_);
    }

  private:
    bool asked_ = false;
    int barometric_kpa_ = STANDARD_BAROMETER;
};

// Oxygen sensors: the car is asked once which it has. It reports them by 01 13 (two banks of four)
// or 01 1D (four banks of two); each bit means one of the parameters 14 to 1B.
class oxygen_run final : public live_run {
  public:
    std::optional<std::vector<std::string>> parameters(const user_defaults&) const override {
        return std::nullopt;
    }
    std::optional<std::string> first_question() override {
        if (!sensors_.empty() || questions_asked_ >= questions_.size())
            return std::nullopt;
        if (questions_asked_ == 0 && !supported("13") && supported("1D"))
            std::swap(questions_[0], questions_[1]);
        return questions_[questions_asked_];
    }
    void first_question_answered(std::string_view reply) override {
        if (answers_parameter(reply, questions_[questions_asked_]))
            sensors_ = oxygen_sensors_in(reply);
        ++questions_asked_;
    }
    std::optional<std::vector<std::string>> parameters_found() const override { return sensors_; }

  private:
    static bool supported(const char* pid) {
        return mac_toolies::is_this_code_available(g_Supported_obd_mask_0, pid, 0);
    }
    std::array<std::string, 2> questions_{"13", "1D"};
    std::size_t questions_asked_ = 0;
    std::vector<std::string> sensors_;
};

} // namespace

std::vector<sample_request> live_run::requests(const std::vector<std::string>& parameters) const {
    std::vector<sample_request> all;
    for (const std::string& pid : parameters)
        all.push_back({pid, static_cast<int>(all.size())});
    return all;
}

std::unique_ptr<live_run> make_live_run(int task, const mac_toolies& toolies) {
    switch (task) {
    case TASK_FUEL_ECONOMY:
        return std::make_unique<fuel_run>(toolies);
    case TASK_BOOST:
        return std::make_unique<boost_run>();
    case TASK_O2_SAMPLING:
        return std::make_unique<oxygen_run>();
    default:
        return std::make_unique<log_run>();
    }
}

std::span<const run_choice> run_choices() {
    static constexpr run_choice CHOICES[] = {
        {TASK_RUN_LOG, "ui_run_log"},
        {TASK_FUEL_ECONOMY, "ui_run_fuel"},
        {TASK_O2_SAMPLING, "ui_run_sensors"},
        {TASK_BOOST, "ui_run_boost"},
    };
    return CHOICES;
}

std::vector<std::string> oxygen_sensors_in(std::string_view reply) {
    constexpr unsigned FIRST_SENSOR_PID = 0x14;
    const std::string_view bits = slice(answer_in(reply), 4, 2);
    std::vector<std::string> sensors;
    if (bits.empty())
        return sensors;
    const std::uint32_t present = mac_toolies::convertStr2Byte(bits);
    for (unsigned sensor = 0; sensor < 8; ++sensor)
        if ((present >> sensor & 1) != 0)
            sensors.push_back(mac_toolies::convertByte2HexStr(FIRST_SENSOR_PID + sensor));
    return sensors;
}
