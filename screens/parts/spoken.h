// The description of a picture for a screen reader, composed on request.
#pragma once

#include <QAccessible>
#include <QString>

#include <functional>

// Base of the widgets that show pictures.
class spoken {
  public:
    explicit spoken(QAccessible::Role role);
    const QAccessible::Role role;
    // What the picture shows. Not announced, because values change all the time.
    std::function<QString()> describe;

  protected:
    ~spoken() = default;
};
