// Up and Down in a line edit recall earlier commands. Owned by the screen of the field.
#pragma once

#include <QKeyEvent>
#include <QLineEdit>
#include <QObject>
#include <QStringList>

class command_recall : public QObject {
  public:
    explicit command_recall(QLineEdit* field) : field_(field) { field->installEventFilter(this); }

    void remember(const QString& command) {
        sent_.removeAll(command);
        sent_.append(command);
        if (sent_.size() > MOST)
            sent_.removeFirst();
        at_ = sent_.size();
    }

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::KeyPress)
            return false;
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key != Qt::Key_Up && key != Qt::Key_Down)
            return false;
        const qsizetype to = at_ + (key == Qt::Key_Up ? -1 : 1);
        if (to < 0 || to > sent_.size())
            return true;
        at_ = to;
        field_->setText(at_ < sent_.size() ? sent_[at_] : QString());
        return true;
    }

  private:
    static constexpr qsizetype MOST = 200;
    QLineEdit* field_;
    QStringList sent_;
    qsizetype at_ = 0;
};
