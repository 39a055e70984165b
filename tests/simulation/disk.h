// The disk that a session writes to, and its faults. A full disk is simulated by a limit on the
// size of files of this process.
#pragma once

#include <string>

class disk {
  public:
    // Empties the folder, or creates it.
    explicit disk(std::string folder);
    ~disk() { mend(); }
    disk(const disk&) = delete;
    disk& operator=(const disk&) = delete;

    void fill();
    void remove_logs();
    // Puts a file in place of the log folder.
    void block_logs();
    void mend();

  private:
    std::string logs() const { return folder_ + "/data/loggies"; }
    std::string folder_;
};
