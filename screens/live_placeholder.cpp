#include "live_placeholder.h"

#include "chrome.h"

#include <QLabel>
#include <QVBoxLayout>

live_placeholder::live_placeholder(Ks_lite_delegate& delegate) {
    const screen_bones bones = make_screen_bones(delegate, "ui_live_title", false);
    root_.reset(bones.root);
    auto* text = new QLabel(ui_text(delegate, "ui_live_not_yet"), root_.get());
    text->setAlignment(Qt::AlignCenter);
    text->setWordWrap(true);
    text->setForegroundRole(QPalette::PlaceholderText);
    bones.content->addWidget(text, 1);
}

live_placeholder::~live_placeholder() = default;
