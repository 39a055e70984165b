// The widgets of the trouble-codes screen. Owned by readCodes.
#pragma once

#include "readCodes.h"

#include <QVariant>

#include <functional>
#include <memory>
#include <string>
#include <vector>

class empty_hint;
class fact_card;
class warning_label;
class rows_model;
class QTableView;

class codes_view {
  public:
    explicit codes_view(Ks_lite_delegate& delegate);
    ~codes_view();

    QWidget* root() { return bones_root_.get(); }
    status_line& statusLbl() { return *statusLbl_; }

    std::function<void()> on_read, on_clear, on_diagnose;

    // `units`: that sent each code; empty where that is not known.
    void show_codes(const std::vector<code_row>& rows, std::vector<std::string> units = {});
    void show_readiness(const std::vector<readiness_flag>& rows);
    void show_waity(bool visible);

    void set_lamp(const std::string& text);
    void set_count(const std::string& text);
    void set_read_on(const std::string& text);
    void set_interface(const std::string& text);
    void set_protocol(const std::string& text);
    void set_extra_info(const std::string& text);
    // Lamp, count and codes of the last reading.
    void forget_status();
    // The state after a clear.
    void reset_labels();
    // At the end of a reading: says that there are no codes, or what is missing.
    void show_result(const unread_pieces& unread, bool none_counted);

    std::string lamp() const { return lamp_; }
    std::string read_on() const { return read_on_; }

  private:
    void build_buttons(class QHBoxLayout* row);
    void build_cards(class QVBoxLayout* column);
    void build_tables(class QVBoxLayout* column);
    QVariant decorate_code(std::size_t row, const QString& identifier, int role) const;
    void make_room_for_monitors();

    Ks_lite_delegate& delegate_;
    // Used by the tables until they are destroyed.
    std::vector<code_row> codes_;
    std::vector<std::string> code_units_;
    std::vector<readiness_flag> readiness_;
    std::unique_ptr<QWidget> bones_root_;
    status_line* statusLbl_ = nullptr;
    busy_indicator* waity_ = nullptr;

    rows_model* codes_model_ = nullptr;
    rows_model* readiness_model_ = nullptr;
    QTableView* codesReadTableView_ = nullptr;
    QTableView* readinessCodesTableView_ = nullptr;

    empty_hint* no_codes_ = nullptr;
    warning_label* unread_ = nullptr;

    fact_card* lamp_card_ = nullptr;
    fact_card* count_card_ = nullptr;
    fact_card* read_on_card_ = nullptr;
    fact_card* interface_card_ = nullptr;
    fact_card* protocol_card_ = nullptr;
    fact_card* extra_card_ = nullptr;
    std::string lamp_, read_on_;
};
