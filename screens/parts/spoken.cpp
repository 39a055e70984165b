#include "spoken.h"

#include <QAccessibleWidget>
#include <QWidget>

namespace {

class spoken_picture final : public QAccessibleWidget {
  public:
    spoken_picture(QWidget* widget, const spoken& picture)
        : QAccessibleWidget(widget, picture.role), picture_(picture) {}

    QString text(QAccessible::Text which) const override {
        return which == QAccessible::Description && picture_.describe
                   ? picture_.describe()
                   : QAccessibleWidget::text(which);
    }

  private:
    const spoken& picture_; // which outlives this
};

QAccessibleInterface* interface_of(const QString&, QObject* object) {
    const auto* picture = dynamic_cast<spoken*>(object);
    return picture ? new spoken_picture(static_cast<QWidget*>(object), *picture) : nullptr;
}

} // namespace

spoken::spoken(QAccessible::Role r) : role(r) {
    QAccessible::installFactory(interface_of); // not added twice
}
