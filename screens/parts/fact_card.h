// A small card with one fact: a subdued caption over its value. Without a value the card shows only
// its resting text, subdued like a caption.
#pragma once

#include <QFrame>
#include <QLabel>

#include <string>

class fact_card final : public QFrame {
  public:
    fact_card(const QString& value_name, const QString& caption, QWidget* parent);

    void set_value(const std::string& text);
    // "LABEL: VALUE"; the label replaces the card's own caption.
    void set_labelled_value(const std::string& text);
    void set_resting(const std::string& text);
    // A lamp beside the value: dark or amber.
    void show_lamp(bool lit);
    void hide_lamp();

  private:
    class lamp;
    void show_value(const QString& caption, const QString& value);

    const QString own_caption_;
    QLabel* caption_;
    QLabel* value_;
    lamp* lamp_;
};
