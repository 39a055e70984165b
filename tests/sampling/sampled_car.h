// A fast sampler and a virtual adapter, on a clock that a test moves. Each request meets other
// values, so that one of an earlier request shows.
#pragma once

#include "car_library.h"
#include "fast_sampler.h"
#include "hex_text.h"
#include "virtual_adapter.h"

#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

class sampled_car {
  public:
    using milliseconds = std::chrono::milliseconds;

    struct setting {
        std::string car = "can11";
        std::vector<std::string> faults{};
        std::vector<std::string> pids{"0D", "11", "0C", "05"};
        std::set<std::string> two_banks{}; // of the parameters
        int baud = 0;
        int cap = 0;
    };
    explicit sampled_car(const setting& what)
        : what_(what), the_car_(load_car(what.car)), adapter_(the_car_, options(what)),
          sampler_(what.pids, the_car_.protocol >= 6, what.cap) {
        // Another unit's value is no answer for the first one's.
        for (std::size_t unit = 1; unit < the_car_.units.size(); ++unit)
            the_car_.units[unit].fixed = {{0x05, {0xEE}}, {0x0C, {0xEE, 0xEE}}, {0x0D, {0xEE}}};
        adapter_.connection_opened(now_);
        for (const char* command : {"ATE0\r", "0100\r"}) { // a search takes its time
            adapter_.receive(command, now_);
            wait_for_prompt(std::chrono::minutes(1));
        }
    }

    // One question and what came of it.
    void step() {
        const fast_sampler::question asked = sampler_.next(now_);
        now_ += asked.pause;
        sampler_.sent(now_);
        asked_.insert(asked.command);
        ++requests_;
        const std::map<std::string, byte_string> told = told_; // of which one reply later is filed
        for (const std::string& pid : what_.pids) {
            the_car_.units.front().fixed[number(pid)] = value(pid);
            if (asks_for(asked.command, pid))
                told_[pid] = value(pid);
        }
        const std::string reply = exchange(asked.command);
        const bool silent = reply.find('>') == std::string::npos;
        const auto out = silent ? sampler_.timed_out(now_) : sampler_.take(reply, now_);
        for (const fast_sampler::sample& one : out.samples)
            judge(one, told);
        cycles_ += out.ends_cycle;
        if (out.change != fast_sampler::news::none)
            news_ += out.change == fast_sampler::news::given_up ? 'x' : 'v';
        highest_ = std::max(highest_, sampler_.level());
        if (out.answer_is_missing)
            wait_for_reply();
    }
    void run(milliseconds span) {
        const milliseconds end = now_ + span;
        while (now_ < end && !sampler_.finished())
            step();
    }
    // That fault too from now on.
    void meet(const std::string& fault) {
        setting worse = what_;
        worse.faults.push_back(fault);
        adapter_.set_faults(options(worse).faults);
    }
    double values_a_second(milliseconds span) {
        const int before = true_;
        const milliseconds began = now_;
        run(span);
        return double(true_ - before) * 1000 / double((now_ - began).count());
    }

    int true_ = 0, false_ = 0, void_ = 0, cycles_ = 0, highest_ = 0;
    std::string news_; // a level down 'v', given up 'x'
    std::string first_false_;
    std::set<std::string> asked_;
    fast_sampler& sampler() { return sampler_; }
    car& the_car() { return the_car_; }

  private:
    static constexpr milliseconds PATIENCE{6000}, STRAGGLER{1000};

    static adapter_options options(const setting& what) {
        std::vector<fault> faults;
        for (const std::string& name : what.faults)
            faults.push_back(parse_fault(name));
        adapter_options made;
        made.faults = fault_set(faults);
        made.baud = what.baud;
        return made;
    }
    static std::uint8_t number(const std::string& pid) {
        return std::uint8_t(std::stoul(pid, nullptr, 16));
    }
    // Of the last request; rising, as a slow parameter must be for a while.
    byte_string value(const std::string& pid) const {
        const bool two_bytes = pid == "0C" || pid == "10" || pid == "1F";
        const auto byte = std::uint8_t(requests_ + 16 * (number(pid) % 8));
        return byte_string(what_.two_banks.contains(pid) || two_bytes ? 2 : 1, byte);
    }
    std::string exchange(const std::string& command) {
        adapter_.receive(command + "\r", now_);
        return wait_for_prompt(PATIENCE);
    }
    void wait_for_reply() {
        if (came_.find('>') == std::string::npos)
            wait_for_prompt(STRAGGLER);
        came_.clear();
    }
    std::string wait_for_prompt(milliseconds bound) {
        const milliseconds end = now_ + bound;
        while (came_.find('>') == std::string::npos) {
            const auto due = adapter_.next_output();
            if (!due || *due > end) {
                now_ = end;
                return std::exchange(came_, {});
            }
            now_ = std::max(now_, *due);
            came_ += adapter_.take_output(now_);
        }
        while (adapter_.next_output() && *adapter_.next_output() <= now_)
            came_ += adapter_.take_output(now_);
        const std::size_t last = came_.rfind('>') + 1; // as the accumulator takes it
        const bool whole =
            came_.find_first_not_of(std::string_view("\r\n\0", 3), last) == std::string::npos;
        const std::size_t size = whole ? came_.size() : came_.find('>') + 1;
        const std::string reply = came_.substr(0, size);
        came_.erase(0, size);
        return reply;
    }
    static bool asks_for(const std::string& command, const std::string& pid) {
        for (std::size_t at = 2; command.starts_with("01") && at + 2 <= command.size(); at += 2)
            if (command.substr(at, 2) == pid)
                return true;
        return false;
    }
    void judge(const fast_sampler::sample& one, const std::map<std::string, byte_string>& told) {
        if (one.reply == "~" || one.reply == "NODATA")
            ++void_;
        else if (one.reply == "41" + one.pid + hex_text(told.at(one.pid), false))
            ++true_;
        else if (++false_ == 1)
            first_false_ = one.pid + ": " + one.reply;
    }

    setting what_;
    car the_car_;
    virtual_adapter adapter_;
    fast_sampler sampler_;
    milliseconds now_{0};
    std::string came_;
    unsigned requests_ = 0;
    std::map<std::string, byte_string> told_; // by the car to the latest request
};
