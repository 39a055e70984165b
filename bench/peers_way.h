// The yardstick of fast sampling: what a widely used library does. One parameter per request,
// headers on, and after each request the number of frames of its first answer.
#pragma once

#include <chrono>
#include <string>
#include <vector>

// A client with blocking sockets and nothing else in its way.
class peers_way {
  public:
    peers_way(int port, std::vector<std::string> pids);
    ~peers_way();
    peers_way(const peers_way&) = delete;
    peers_way& operator=(const peers_way&) = delete;

    double values_a_second(std::chrono::milliseconds span);

  private:
    std::string exchange(const std::string& command);

    int wire_ = -1;
    std::vector<std::string> pids_, requests_;
    std::size_t next_ = 0;
};
