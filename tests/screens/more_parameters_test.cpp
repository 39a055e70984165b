// What the car supports, and the parameters that are chosen beyond those of the preferences, with a
// virtual car on a virtual clock.
#include "actions.h"
#include "app_harness.h"
#include "car_library.h"
#include "qt_warnings.h"
#include "supported_scan.h"
#include "virtual_car_pair.h"

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QTreeWidget>

#include <gtest/gtest.h>

namespace {

using std::chrono::seconds;
using list = std::vector<std::string>;

class more_parameters_test : public testing::Test {
  protected:
    void use_car(const std::string& name) {
        expect_warning("propagateSizeHints"); // of a view that is a window of its own
        the_car = load_car(name);
        adapter.emplace(the_car, adapter_options{});
        app.delegate->doors().make_streams = streams_to(app.loop, *adapter);
        app.delegate->do_actions();
        screen().view()->show();
    }
    actions& screen() { return static_cast<actions&>(*app.delegate->current_screen()); }
    void open() {
        app.press("moreParameters");
        dialog = app.find<QDialog>("moreParametersDialog");
        rows = app.find<QTreeWidget>("parameters");
    }
    QTreeWidgetItem* row(const char* pid) {
        const auto found = rows->findItems(QLatin1String(pid), Qt::MatchExactly, 2);
        return found.isEmpty() ? nullptr : found.front();
    }
    std::string support(const char* pid) { return row(pid)->text(3).toStdString(); }
    std::string told() { return app.find<QLabel>("supportTold")->text().toStdString(); }
    void ask() {
        app.press("askCar");
        app.loop.advance(seconds(30));
    }

    app_harness app;
    car the_car;
    std::optional<virtual_adapter> adapter;
    QDialog* dialog = nullptr;
    QTreeWidget* rows = nullptr;
};

// Group after group as long as one is announced, and every unit's word counts.
class told_by_every_car : public more_parameters_test,
                          public testing::WithParamInterface<std::string> {};

TEST_P(told_by_every_car, tells_of_every_unit_to_the_last_group) {
    use_car(GetParam());
    bool ended = false;
    screen().ask_what_car_supports([&] { ended = true; });
    app.loop.advance(seconds(60));
    ASSERT_TRUE(ended && screen().scan_completed());
    parameter_set truth;
    truth.set(1);
    for (const control_unit& unit : the_car.units)
        for (const int pid : unit.pids)
            truth.set(static_cast<std::size_t>(pid));
    EXPECT_EQ(screen().car_parameters(), truth);
    EXPECT_FALSE(screen().running());
}

INSTANTIATE_TEST_SUITE_P(all, told_by_every_car, testing::ValuesIn(car_names()),
                         [](const auto& name) { return name.param; });

TEST_F(more_parameters_test, nothing_is_hidden_before_the_car_has_told) {
    use_car("hybrid");
    open();
    EXPECT_EQ(told(), "What this car supports is not known yet.");
    EXPECT_EQ(support("5C"), "");
    EXPECT_FALSE(row("0D")->flags().testFlag(Qt::ItemIsUserCheckable)) << "of the preferences";
    EXPECT_EQ(row("E4"), nullptr) << "no parameter of a car";
    EXPECT_EQ(row("4F"), nullptr) << "not decoded";
    ask();
    EXPECT_EQ(support("5C"), "supported");
    EXPECT_EQ(support("78"), "not supported");
    EXPECT_FALSE(row("78")->isHidden());
    app.find<QLineEdit>("searchParameters")->setText(QStringLiteral("TEMP oil"));
    EXPECT_FALSE(row("5C")->isHidden());
    EXPECT_TRUE(row("78")->isHidden());
}

TEST_F(more_parameters_test, chosen_ones_follow_those_of_the_preferences) {
    use_car("hybrid");
    open();
    for (const char* const pid : {"67", "5C"})
        row(pid)->setCheckState(0, Qt::Checked);
    app.press("useParameters");
    EXPECT_EQ(app.defaults.string_array(MORE_PIDS_KEY), (list{"5C", "67"}));
    EXPECT_EQ(app.defaults.string_array(PIDS_ARRAY_KEY), (list{"0D", "11", "0C", "05"}));
    EXPECT_EQ(screen().pids(), (list{"0D", "11", "0C", "05", "5C", "67"}));
    list last;
    screen().cycle_completed = [&](const std::vector<translated>& values) {
        last.clear();
        for (const translated& value : values)
            last.push_back(value.text);
    };
    screen().runLogs();
    app.loop.advance(seconds(30));
    ASSERT_EQ(last.size(), 6u);
    EXPECT_TRUE(last[4].ends_with(" °F")) << last[4];
    EXPECT_TRUE(last[5].ends_with(" °F (sensor 2)")) << last[5];
}

TEST_F(more_parameters_test, a_car_that_is_silent_leaves_it_unknown) {
    use_car("hybrid");
    open();
    app.delegate->doors().make_streams = [this](const std::string&,
                                                long) -> std::unique_ptr<stream_pair> {
        app.wires.push_back(std::make_shared<scripted_stream_pair::wire>());
        return std::make_unique<scripted_stream_pair>(app.loop, app.wires.back());
    };
    ask();
    EXPECT_FALSE(screen().car_parameters());
    EXPECT_EQ(support("5C"), "");
}

} // namespace
