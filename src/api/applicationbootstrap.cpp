// SPDX-License-Identifier: MIT
#include "api/applicationbootstrap.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QTimer>

namespace OrvGui {

namespace {

constexpr char platformVariable[] = "QT_QPA_PLATFORM";

/// The platforms for Qt to try in a Wayland session; empty for Qt's own choice. The window ids of
/// hosts are those of X, which most such sessions support, too. Without X, Qt 5 would not try
/// Wayland in every session.
QByteArray platformInWayland()
{
    if (qEnvironmentVariableIsSet(platformVariable) ||
        qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
        return QByteArray();
    return qEnvironmentVariableIsEmpty("DISPLAY") ? "wayland" : "xcb;wayland";
}

/// Qt flushes its requests to a Wayland compositor when its own event loop is about to wait, which
/// does not happen inside a host's event loop.
void keepTalkingToCompositor(QApplication *application)
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
    static int argumentCount = 0; // the application keeps a reference to it
    static char *arguments[] = {nullptr};
    auto *application = new QApplication(argumentCount, arguments);
    if (!platform.isEmpty())
        qunsetenv(platformVariable); // the host's own programs choose for themselves
    if (QGuiApplication::platformName().startsWith(QLatin1String("wayland")))
        keepTalkingToCompositor(application);
}

} // namespace OrvGui
