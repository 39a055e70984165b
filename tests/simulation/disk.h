// The disk that a session writes to, and what may be wrong with it. A full disk is a limit on the
// size of files, which this process sets itself.
#pragma once

#include <string>

class disk {
  public:
    // Empties the folder, or makes it.
    explicit disk(std::string folder);
    ~disk() { mend(); }
    disk(const disk&) = delete;
    disk& operator=(const disk&) = delete;

    void fill();
    void remove_logs();
    // A file stands where the log folder should be.
    void block_logs();
    void mend();

  private:
    std::string logs() const { return folder_ + "/data/loggies"; }
    std::string folder_;
};
