#include "spoken.h"

#include "picture_view.h"
#include "thumbnail_strip.h"

#include <QAccessible>
#include <QAccessibleWidget>

namespace {

class spoken_picture final : public QAccessibleWidget {
  public:
    spoken_picture(QWidget* picture, QAccessible::Role role, std::function<QString()>& describe)
        : QAccessibleWidget(picture, role), describe_(describe) {}

    QString text(QAccessible::Text which) const override {
        return which == QAccessible::Description && describe_ ? describe_()
                                                              : QAccessibleWidget::text(which);
    }

  private:
    std::function<QString()>& describe_; // of the picture, which this does not outlive
};

QAccessibleInterface* interface_of(const QString&, QObject* object) {
    if (auto* picture = dynamic_cast<picture_view*>(object))
        return new spoken_picture(picture, QAccessible::Graphic, picture->describe);
    if (auto* strip = dynamic_cast<thumbnail_strip*>(object))
        return new spoken_picture(strip, QAccessible::List, strip->describe);
    return nullptr;
}

} // namespace

void speak_for_pictures() {
    QAccessible::installFactory(interface_of); // one that is there already is not added
}
