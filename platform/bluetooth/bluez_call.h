// Asynchronous calls to BlueZ.
#pragma once

#include "bluez_names.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

inline QDBusMessage bluez_call(const QString& path, const QString& interface, const char* method) {
    return QDBusMessage::createMethodCall(BLUEZ, path, interface, QLatin1String(method));
}

inline bool is_error(const QDBusMessage& reply) {
    return reply.type() == QDBusMessage::ErrorMessage;
}

// `handle` gets the reply or the error, unless `owner` has been destroyed by then.
template <class handler>
void when_answered(QObject* owner, const QDBusPendingCall& call, handler handle) {
    auto* answer = new QDBusPendingCallWatcher(call, owner);
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, owner,
                     [handle](QDBusPendingCallWatcher* done) {
                         done->deleteLater();
                         handle(done->reply());
                     });
}
