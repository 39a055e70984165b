// The report screen: initialises the adapter, lets the car reader read everything the car reports,
// and shows the sheet. It is the reader's door to the link. Files: report_screen.cpp the reading,
// report_view the widgets.
#pragma once

#include "car_reader.h"
#include "car_report.h"
#include "codes_handshake.h"
#include "kept_report.h"
#include "obd_screen.h"

#include <memory>
#include <optional>
#include <string>

class report_view;

class report_screen final : public obd_screen, private adapter_door {
  public:
    explicit report_screen(Ks_lite_delegate& delegate);
    ~report_screen() override;

    QWidget* view() override;
    void leave_cur_op_gracefully(const std::string& message) override;
    void link_lost() override;
    void save_before_leaving() override;

    void read_clicked();
    void cancel_clicked();
    // From the last press: nothing while it runs, or if the adapter could not be initialised.
    const car_report* report() const;
    bool reading() const { return reader_.running(); }
    // Permanently, in the last report.
    void hide_vin();

  protected:
    void work_task(int task, int step) override;
    adapter_handshake* handshake() override { return &handshake_; }
    bool takes_time_out(const std::string& text) override;

  private:
    void ask(const std::string& command, run_loop::milliseconds bound, answered on_reply) override;
    void give_up() override;
    void send_now();
    void answer(std::optional<std::string> reply);
    void show_progress(topic about, std::size_t asked, std::size_t wanted);
    void finish();

    std::unique_ptr<report_view> view_;
    codes_handshake handshake_;
    car_reader reader_;
    bool has_report_ = false;

    std::string command_;
    run_loop::milliseconds command_bound_{0};
    answered on_reply_;
    run_loop::timer_id bound_ = 0;
};
