// What can be done with a report, by its buttons and dialogs: files, clipboard, opening, comparing,
// and the offer before codes are cleared.
#include "app_harness.h"
#include "car_library.h"
#include "full_disk.h"
#include "kept_report.h"
#include "qt_warnings.h"
#include "text.h"
#include "virtual_car_pair.h"

#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QSettings>
#include <QTextBrowser>
#include <QThread>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

constexpr char VIN_BEGIN[] = "WKE7D20H4K1";

class report_window : public testing::Test {
  protected:
    report_window() : adapter(the_car, quick()) {
        expect_warning("propagateSizeHints"); // of a dialog without a display
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, app.folder.path());
        last_report() = {};
        app.delegate->doors().make_streams = streams_to(app.loop, adapter);
        app.delegate->do_report();
    }
    ~report_window() override { last_report() = {}; }

    static adapter_options quick() {
        adapter_options options;
        options.latency = milliseconds(5);
        return options;
    }
    void read() {
        app.press("readReport");
        app.loop.advance(seconds(40));
    }
    std::string shown() {
        return app.find<QTextBrowser>("reportSheet")->toPlainText().toStdString();
    }
    QString path(const char* name) { return app.folder.filePath(QLatin1String(name)); }
    QByteArray file(const char* name) {
        QFile there(path(name));
        return there.open(QIODevice::ReadOnly) ? there.readAll() : QByteArray();
    }

    // Presses what opens file dialogs, and does to one after the other what is wanted.
    using use = std::function<void(QFileDialog&)>;
    void press_and_use(const char* button, std::vector<use> uses) {
        std::size_t used = 0;
        QTimer look;
        QObject::connect(&look, &QTimer::timeout, &look, [&] {
            QWidget* const modal = QApplication::activeModalWidget();
            auto* dialog = qobject_cast<QFileDialog*>(modal);
            if (const auto* box = qobject_cast<QMessageBox*>(modal)) {
                ADD_FAILURE() << box->text().toStdString();
                modal->close();
            }
            if (!dialog || QThread::currentThread()->loopLevel() == 0) // not yet in its exec()
                return;
            if (used < uses.size())
                uses[used](*dialog);
            else
                ADD_FAILURE() << "another dialog";
            ++used;
            used <= uses.size() && !dismissed_ ? static_cast<QDialog*>(dialog)->accept()
                                               : dialog->reject();
        });
        dismissed_ = false;
        look.start(1);
        app.press(button);
        EXPECT_EQ(used, uses.size());
    }
    use choose(const char* name, const char* kind = nullptr) {
        return [this, name, kind](QFileDialog& dialog) {
            if (kind) {
                const QString filter = QString::fromLatin1(kind);
                dialog.selectNameFilter(filter);
                Q_EMIT dialog.filterSelected(filter);
            }
            dialog.selectFile(path(name));
        };
    }
    use dismiss() {
        return [this](QFileDialog&) { dismissed_ = true; };
    }

    car the_car = load_car("diesel2019");
    virtual_adapter adapter;
    app_harness app;

  private:
    bool dismissed_ = false;
};

TEST_F(report_window, saves_each_kind_by_its_name_and_hides_the_number_everywhere) {
    app.press("hideVin");
    read();
    const std::string tail = the_car.vin.substr(11);
    EXPECT_FALSE(contains(shown(), tail)); // it could be selected and copied
    app.press("hideVin");
    ASSERT_TRUE(contains(shown(), the_car.vin));
    app.press("hideVin");
    struct kind_row {
        const char *name, *kind, *written, *begins;
    };
    for (const kind_row& row : {kind_row{"a", "HTML (*.html)", "a.html", "<!DOCTYPE html>"},
                                {"b", "PDF (*.pdf)", "b.pdf", "%PDF-"},
                                {"c", "JSON (*.json)", "c.json", "{\n  \"format\""},
                                {"d", "Text (*.txt)", "d.txt", "Vehicle report"},
                                {"e.PDF", nullptr, "e.PDF", "%PDF-"}}) {
        press_and_use("saveReport", {[&](QFileDialog& dialog) {
                          const QString offered = dialog.selectedFiles().constFirst();
                          EXPECT_TRUE(offered.contains(QLatin1String(VIN_BEGIN)));
                          EXPECT_FALSE(offered.contains(QString::fromStdString(tail)));
                          choose(row.name, row.kind)(dialog);
                      }});
        const QByteArray bytes = file(row.written);
        EXPECT_TRUE(bytes.startsWith(row.begins)) << row.name;
        EXPECT_FALSE(bytes.contains(tail.c_str())) << row.name;
        EXPECT_TRUE(contains(app.last_status(), row.written)) << app.last_status();
    }
    app.press("copyReport");
    const std::string copied = QApplication::clipboard()->text().toStdString();
    EXPECT_TRUE(contains(copied, "P2002") && contains(copied, VIN_BEGIN)) << copied;
    EXPECT_FALSE(contains(copied, tail));
}

TEST_F(report_window, asks_again_for_a_name_of_no_kind_and_tells_when_it_cannot_save) {
    read();
    press_and_use("saveReport", {choose("my.report"), [&](QFileDialog& dialog) {
                                     EXPECT_TRUE(dialog.selectedFiles().constFirst().endsWith(
                                         QLatin1String("my.report.html")));
                                     dismiss()(dialog);
                                 }});
    EXPECT_TRUE(app.messages.shown.empty());
    {
        const full_disk disk(1000);
        press_and_use("saveReport", {choose("full.html")});
    }
    EXPECT_EQ(app.messages.shown.size(), 1U);
    EXPECT_EQ(file("full.html").size(), 0);
    EXPECT_FALSE(last_report().saved);
}

TEST_F(report_window, opens_and_compares_and_gives_away_what_it_shows) {
    read();
    press_and_use("saveReport", {choose("before.json")});
    the_car.units[0].stored = {"P0299"};
    read();
    press_and_use("compareReport", {choose("before.json")});
    const std::string compared = shown();
    EXPECT_TRUE(contains(compared, "What came and went") && contains(compared, "P20EE"))
        << compared;
    press_and_use("saveReport", {[&](QFileDialog& dialog) {
                      EXPECT_FALSE(dialog.nameFilters().contains(QLatin1String("JSON (*.json)")));
                      choose("after.txt")(dialog);
                  }});
    EXPECT_TRUE(file("after.txt").contains("What came and went"));

    press_and_use("openReport", {choose("before.json")});
    EXPECT_FALSE(contains(shown(), "What came and went"));
    EXPECT_TRUE(contains(shown(), "P20EE"));
    press_and_use("openReport", {choose("after.txt")});
    ASSERT_EQ(app.messages.shown.size(), 1U);
    EXPECT_TRUE(contains(app.messages.shown[0].message, "no JSON"));
    EXPECT_TRUE(contains(shown(), "P20EE")); // the one before stays
}

TEST_F(report_window, keeps_what_was_read_until_it_is_cancelled) {
    app.press("readReport");
    app.loop.advance(seconds(8));
    app.press("readReport");
    EXPECT_TRUE(contains(shown(), "The reading was cancelled: what follows is what was read"));
    EXPECT_TRUE(contains(shown(), "P2002"));
    app.delegate->do_expert(); // which loses nothing
    app.delegate->do_report();
    EXPECT_TRUE(contains(shown(), "P2002"));
}

// Before codes are cleared: what is asked, in order, and what is sent.
TEST_F(report_window, is_offered_before_clearing_where_one_was_read_and_not_saved) {
    constexpr char OFFER[] = "Save the report before clearing?",
                   QUESTION[] = "Are you sure you want clear DTC Codes ";
    const auto clear = [&](std::vector<int> answers, const std::vector<use>& uses) {
        app.messages.shown.clear();
        app.messages.answers.assign(answers.begin(), answers.end());
        app.delegate->do_read_codes();
        press_and_use("clearCodes", uses);
        return app.messages.messages();
    };
    using texts = std::vector<std::string>;
    EXPECT_EQ(clear({1}, {}), texts{QUESTION}); // nothing was read
    app.delegate->do_report();
    read();
    EXPECT_EQ(clear({1, 1}, {}), (texts{OFFER, QUESTION}));
    EXPECT_EQ(clear({0}, {dismiss()}), texts{OFFER}); // was to be saved, and was not
    EXPECT_EQ(clear({0, 1}, {choose("kept.json")}), (texts{OFFER, QUESTION}));
    EXPECT_TRUE(file("kept.json").contains("P2002"));
    EXPECT_EQ(clear({1}, {}), texts{QUESTION}); // it is saved
    app.delegate->do_report();
    read();
    app.press("offerReport");
    EXPECT_EQ(clear({1}, {}), texts{QUESTION}); // switched off
    app.delegate->do_report();
    app.press("offerReport");
    app.delegate->do_prefs();
    app.find<QLineEdit>("portsLbl")->setText(QStringLiteral("35001"));
    EXPECT_EQ(clear({1}, {}), texts{QUESTION}); // it was read over another link
}

} // namespace
