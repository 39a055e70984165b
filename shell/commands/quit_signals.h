// Turns SIGINT, SIGTERM and SIGHUP into an orderly end: the callback runs from the event loop. One
// per program.
#pragma once

#include <QObject>

#include <functional>

class quit_signals final : public QObject {
  public:
    explicit quit_signals(std::function<void()> quit);
    ~quit_signals() override;

  private:
    int pipe_[2] = {-1, -1};
};
