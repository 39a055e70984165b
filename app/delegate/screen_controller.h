// A screen, as the link and the shell see it. Screens that send commands override the four
// operations; the defaults do nothing. The delegate owns the current screen
// and destroys it only from the run loop.
#pragma once

#include <string>

class QWidget;

class screen_controller {
  public:
    virtual ~screen_controller() = default;

    // The screen's root widget, owned by the screen.
    virtual QWidget* view() = 0;

    // One received chunk, or "Timeout". May come at any time, even for a command sent by an earlier
    // screen.
    virtual void handleOBDRcvdMsg(const std::string& text) { (void)text; }
    virtual void set_status_msg(const std::string& message) { (void)message; }
    // Performs the next step of the screen's current task.
    virtual void work_current_task() {}
    virtual void leave_cur_op_gracefully(const std::string& message) { (void)message; }
    // The connection has broken or failed: no reply will come.
    virtual void link_lost() {}
    // Called before another screen replaces this one, and before the window closes.
    virtual void save_before_leaving() {}
};
