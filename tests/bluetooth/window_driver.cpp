// Works the program's window from a script, where no display is: a plugin that Qt loads by itself
// (QT_PLUGIN_PATH, QT_QPA_GENERIC_PLUGINS=driver), so that the program is the one installed.
// Reads lines on standard input and tells on standard output what came of them:
//   press NAME    the button of that object name, as soon as it is visible and enabled
//   see TEXT      a label shows it
//   dismiss       the box that is up, by its default button
//   quit
#include <QAbstractButton>
#include <QApplication>
#include <QGenericPlugin>
#include <QLabel>
#include <QMessageBox>
#include <QTimer>

#include <cstdio>
#include <poll.h>
#include <string>
#include <unistd.h>

namespace {

constexpr int LOOK_EVERY_MS = 50;
constexpr int PATIENCE_MS = 60'000;

template <class widget, class condition>
widget* visible_one(condition fits) {
    for (QWidget* window : QApplication::topLevelWidgets())
        for (widget* found : window->findChildren<widget*>())
            if (found->isVisible() && found->isEnabled() && fits(*found))
                return found;
    return nullptr;
}

class driver final : public QObject {
  public:
    driver() {
        connect(&look_, &QTimer::timeout, this, [this] { look(); });
        look_.start(LOOK_EVERY_MS);
    }

  private:
    void read_line() {
        char bytes[256];
        pollfd input{STDIN_FILENO, POLLIN, 0};
        while (::poll(&input, 1, 0) > 0) {
            const ssize_t count = ::read(STDIN_FILENO, bytes, sizeof bytes);
            if (count <= 0) {
                input_ += "quit\n";
                break;
            }
            input_.append(bytes, static_cast<std::size_t>(count));
        }
        line_ = input_.substr(0, input_.find('\n'));
        input_.erase(0, line_.size() + 1);
        waited_ = 0;
    }
    void look() {
        if (line_.empty())
            read_line();
        if (line_ == "quit") {
            look_.stop();
            QCoreApplication::quit();
        }
        if (line_.empty() || line_ == "quit")
            return;
        const QString name = QString::fromStdString(line_.substr(line_.find(' ') + 1));
        QAbstractButton* button = nullptr;
        bool done = false;
        if (line_.starts_with("press "))
            button = visible_one<QAbstractButton>(
                [&](const QAbstractButton& one) { return one.objectName() == name; });
        else if (line_ == "dismiss")
            button = visible_one<QAbstractButton>([](const QAbstractButton& one) {
                return qobject_cast<const QMessageBox*>(one.window()) != nullptr;
            });
        else
            done =
                visible_one<QLabel>([&](const QLabel& one) { return one.text().contains(name); });
        waited_ += LOOK_EVERY_MS;
        if (!button && !done && waited_ < PATIENCE_MS)
            return;
        tell(button || done);
        line_.clear();
        if (button) // it may open a box, which this timer goes on under
            QTimer::singleShot(0, button, &QAbstractButton::click);
    }
    void tell(bool done) {
        std::printf("%s: %s\n", done ? "done" : "NOT DONE", line_.c_str());
        if (!done)
            visible_one<QLabel>([](const QLabel& one) {
                if (!one.text().isEmpty())
                    std::printf("    shown: %s\n", qPrintable(one.text()));
                return false;
            });
        std::fflush(stdout);
    }

    QTimer look_;
    std::string input_, line_;
    int waited_ = 0;
};

} // namespace

class driver_plugin final : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "window_driver.json")

  public:
    QObject* create(const QString&, const QString&) override { return new driver; }
};

#include "window_driver.moc"
