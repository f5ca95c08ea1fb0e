// SPDX-License-Identifier: MIT
#include "api/applicationbootstrap.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QTimer>

namespace OrvGui {

namespace {

constexpr char platformVariable[] = "QT_QPA_PLATFORM";

/// The platforms that Qt tries in a Wayland session; empty for Qt's own choice. X comes first,
/// because hosts pass X window ids; most Wayland sessions have an X server. Wayland is named,
/// because Qt 5 does not try it in every session.
QByteArray platformInWayland()
{
    if (qEnvironmentVariableIsSet(platformVariable) ||
        qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
        return QByteArray();
    return qEnvironmentVariableIsEmpty("DISPLAY") ? "wayland" : "xcb;wayland";
}

/// Sends Qt's requests to a Wayland compositor. Qt's own event loop sends them before it waits; a
/// host's event loop does not.
void flushWaylandRequests(QApplication *application)
{
    const int intervalMs = 20;
    auto *timer = new QTimer(application);
    QObject::connect(timer, &QTimer::timeout, application, [] {
        if (auto *dispatcher = QAbstractEventDispatcher::instance())
            emit dispatcher->aboutToBlock();
    });
    timer->start(intervalMs);
}

} // namespace

void ensureApplication()
{
    if (QCoreApplication::instance())
        return;
#if QT_VERSION < 0x060000
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps); // as Qt 6 always does
#endif
    const QByteArray platform = platformInWayland();
    if (!platform.isEmpty())
        qputenv(platformVariable, platform);
    static int argumentCount = 0; // QApplication keeps a reference to it
    static char *arguments[] = {nullptr};
    auto *application = new QApplication(argumentCount, arguments);
    if (!platform.isEmpty())
        qunsetenv(platformVariable); // programs that the host starts must not inherit it
    if (QGuiApplication::platformName().startsWith(QLatin1String("wayland")))
        flushWaylandRequests(application);
}

} // namespace OrvGui
