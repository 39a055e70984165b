// A pseudo-terminal with this program at its far end: `path()` looks like a serial port with an
// adapter. Closing it is like unplugging the cable.
#pragma once

#include <string>

class pseudo_terminal {
  public:
    pseudo_terminal(); // throws std::system_error
    ~pseudo_terminal() { unplug(); }
    pseudo_terminal(const pseudo_terminal&) = delete;
    pseudo_terminal& operator=(const pseudo_terminal&) = delete;

    int descriptor() const { return far_end_; }
    const std::string& path() const { return path_; }
    void unplug();

  private:
    int far_end_ = -1;
    int kept_ = -1; // the near end, so that one user may leave and another come
    std::string path_;
};
