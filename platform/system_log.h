// One logging category per area. Per-chunk traffic is at debug level and off by default
// (QT_LOGGING_RULES="kestrom.*.debug=true" turns it on); failures are warnings.
#pragma once

#include <QLoggingCategory>

Q_DECLARE_LOGGING_CATEGORY(log_link)     // kestrom.link: the adapter link and its transports
Q_DECLARE_LOGGING_CATEGORY(log_screens)  // kestrom.screens
Q_DECLARE_LOGGING_CATEGORY(log_toolkit)  // kestrom.toolkit: decoding
Q_DECLARE_LOGGING_CATEGORY(log_drawing)  // kestrom.drawing: charts and dials
Q_DECLARE_LOGGING_CATEGORY(log_platform) // kestrom.platform: settings, files, resources

// From now on, messages of all categories above debug level go to the system log. With `printed`
// also to standard error; without, only those that a command does not print itself.
void log_to_system(bool printed);
