#include "system_log.h"

Q_LOGGING_CATEGORY(log_link, "kestrom.link", QtInfoMsg)
Q_LOGGING_CATEGORY(log_screens, "kestrom.screens", QtInfoMsg)
Q_LOGGING_CATEGORY(log_toolkit, "kestrom.toolkit", QtInfoMsg)
Q_LOGGING_CATEGORY(log_drawing, "kestrom.drawing", QtInfoMsg)
Q_LOGGING_CATEGORY(log_platform, "kestrom.platform", QtInfoMsg)
