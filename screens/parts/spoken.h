// What a screen reader gets to know of a picture: its words are put together when it asks.
#pragma once

#include <QAccessible>
#include <QString>

#include <functional>

// A base of the widgets that are pictures.
class spoken {
  public:
    explicit spoken(QAccessible::Role role);
    const QAccessible::Role role;
    // What the picture shows. It is not announced by itself, as values change all the time.
    std::function<QString()> describe;

  protected:
    ~spoken() = default;
};
