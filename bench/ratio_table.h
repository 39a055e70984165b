// The speed targets: what each row measures, its yardstick, and the limit. Every ratio is taken
// within one run, work and yardstick in turns, in CPU time of the thread that does both.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

// One call of `run` does `operations` operations; ratios are per operation.
struct timed_work {
    std::function<void()> run;
    std::size_t operations = 1;
};

enum class reach { at_most, at_least, none };

// The median over all turns, and the lowest and the highest of them.
struct measured {
    double middle = 0;
    double lowest = 0;
    double highest = 0;
};

class ratio_table {
  public:
    // Time of work / yardstick; with reach::at_least yardstick / work, a speed-up. Fewer turns for
    // slow work.
    void add_ratio(const std::string& what, timed_work work, const std::string& against,
                   timed_work yardstick, reach kind, double target, int turns = 31);
    // Ratios that `measure` computes itself, work and yardstick in turns.
    void add_series(const std::string& what, const std::string& against,
                    std::function<std::vector<double>()> measure, reach kind, double target);
    // A number measured once, such as bytes per sample; no yardstick.
    void add_figure(const std::string& what, std::function<double()> measure, reach kind,
                    double target);

    // Printed without a target.
    void add_remark(const std::string& what, std::function<std::string()> tell);

    // Prints the rows that ran; true if every target was met.
    bool print() const;

  private:
    struct row {
        std::string what;
        std::string against;
        reach kind;
        double target;
        bool ran = false;
        measured result;
        std::string remark;
    };
    row& new_row(const std::string& what, const std::string& against, reach kind, double target);

    std::vector<std::unique_ptr<row>> rows_;
};
