// SPDX-License-Identifier: MIT
#include "windowsystem.h"

#include <QTemporaryDir>
#include <QVector>

#include <cstdio>
#include <cstdlib>
#include <unistd.h>

namespace {

constexpr char platformVariable[] = "QT_QPA_PLATFORM";

bool isOffscreen()
{
    return qgetenv(platformVariable) == "offscreen";
}

/// Buffers messages while Qt opens a display: it aborts the program when it finds none.
struct Attempt
{
    struct Message
    {
        QtMsgType type;
        QString text;
    };

    char **arguments;
    bool mayGoOffscreen;
    QString complaint;
    QVector<Message> messages;
};
Attempt *attempt = nullptr;

[[noreturn]] void giveUp()
{
    if (attempt->mayGoOffscreen && !isOffscreen()) {
        qputenv(platformVariable, "offscreen");
        execv("/proc/self/exe", attempt->arguments);
    }
    const QString reason =
        attempt->messages.first().text.trimmed().section(QLatin1Char('\n'), 0, 0);
    std::fprintf(stderr, "orvcamconfig: %s\n", qPrintable(attempt->complaint.arg(reason)));
    std::_Exit(EXIT_FAILURE);
}

void holdMessage(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    attempt->messages.append({type, text});
    if (type == QtFatalMsg)
        giveUp();
}

/// Drops warnings of the offscreen platform, which are irrelevant for a screenshot.
void dropMessagesOfOffscreen(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (!text.startsWith(QLatin1String("This plugin does not support ")))
        std::fprintf(stderr, "%s\n", qPrintable(text));
    if (type == QtFatalMsg)
        std::abort();
}

/// Qt tries X unless the session states that it is Wayland; not every compositor sets that.
bool isWaylandAlone()
{
    return !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") &&
           qEnvironmentVariableIsEmpty("DISPLAY") && !qEnvironmentVariableIsSet(platformVariable);
}

} // namespace

WindowSystem::WindowSystem(int &argc, char **argv, Need need, const QString &complaint)
{
    if (need == Need::Text && !qEnvironmentVariableIsSet(platformVariable))
        qputenv(platformVariable, "offscreen");
    if (isWaylandAlone())
        qputenv(platformVariable, "wayland");
    if (isOffscreen())
        goOffscreen();

    Attempt thisAttempt = {argv, need == Need::Picture, complaint, {}};
    attempt = &thisAttempt;
#if QT_VERSION < 0x060000
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps); // as Qt 6 always does
#endif
    const QtMessageHandler earlier = qInstallMessageHandler(holdMessage);
    m_application = std::make_unique<QApplication>(argc, argv);
    qInstallMessageHandler(isOffscreen() ? dropMessagesOfOffscreen : earlier);
    attempt = nullptr;
    for (const Attempt::Message &message : qAsConst(thisAttempt.messages))
        qt_message_output(message.type, QMessageLogContext(), message.text);
}

WindowSystem::~WindowSystem() = default;

/// Qt warns about a session without a folder for its sockets.
void WindowSystem::goOffscreen()
{
    if (qEnvironmentVariableIsSet("XDG_RUNTIME_DIR"))
        return;
    m_runtimeFolder = std::make_unique<QTemporaryDir>();
    qputenv("XDG_RUNTIME_DIR", m_runtimeFolder->path().toLocal8Bit());
}
