// The preferences screen: adapter connection, units, logging and the parameter list. Its edits live
// in its controls until the screen is left (savePrefs) or Defaults is pressed.
#pragma once

#include "mac_toolies.h"
#include "run_loop.h"
#include "screen_controller.h"

#include <memory>
#include <string>
#include <vector>

class Ks_lite_delegate;
class prefs_view;

class prefs final : public screen_controller {
  public:
    explicit prefs(Ks_lite_delegate& delegate);
    ~prefs() override;

    QWidget* view() override;
    void save_before_leaving() override { savePrefs(); }

    void setPrefsScreen();
    void savePrefs();
    void setDefaults();
    void setDefaultsClicked();
    void interfaceWifiClicked() { handle_interface(1); }
    void interfaceBTClicked() { handle_interface(0); }
    void interfaceSerialClicked() { handle_interface(2); }
    void metricCheckBoxStatus();
    void tableViewSelectionDidChange(int row);

  private:
    struct pid_entry {
        bool selected;
        std::string pid;
    };

    void awakeFromNib();
    // Reads the row from the radio buttons themselves.
    void handle_interface(int row);
    void save_adapter(user_defaults& store);
    void save_serial(user_defaults& store);
    // Shows the existing ports, and updates them every second while they are visible.
    void follow_serial_ports();
    void load_pids_list();
    void add_item_to_pref_vector(const std::string& pid);
    void set_item_to_pref_vector(std::size_t index);
    void printPidsCount();
    void reload_table();

    Ks_lite_delegate& KS_delegate;
    mac_toolies toolies;
    std::unique_ptr<prefs_view> view_;
    std::vector<pid_entry> _pid_available_list;
    run_loop::timer_id next_look_ = 0;
};
