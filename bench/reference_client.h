// The yardstick of fast sampling: the usual way of client libraries. One parameter per request,
// headers on, and after each request the number of frames that its first answer had.
#pragma once

#include <chrono>
#include <string>
#include <vector>

class reference_client {
  public:
    reference_client(int port, std::vector<std::string> pids);
    ~reference_client();
    reference_client(const reference_client&) = delete;
    reference_client& operator=(const reference_client&) = delete;

    double values_a_second(std::chrono::milliseconds span);

  private:
    std::string exchange(const std::string& command);

    int wire_ = -1;
    std::vector<std::string> pids_, requests_;
    std::size_t next_ = 0;
};
