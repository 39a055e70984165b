// The smallest Qt Widgets program: one label that exits once painted.
#include <QApplication>
#include <QLabel>
#include <QTimer>

namespace {

class painted_label final : public QLabel {
  public:
    using QLabel::QLabel;

  protected:
    void paintEvent(QPaintEvent* event) override {
        QLabel::paintEvent(event);
        QTimer::singleShot(0, qApp, &QCoreApplication::quit);
    }
};

} // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    painted_label label(QStringLiteral("Label"));
    label.show();
    return QApplication::exec();
}
