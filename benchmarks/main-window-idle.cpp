// SPDX-License-Identifier: MIT
//
// What does the main window cost while it is idle?
//
//   main-window-idle [SECONDS]
//
// Opens the main window, all its dialogs and the feature tree on a fake GigE Vision camera with our
// description, and counts on the wire what is read and written in that time, 30 seconds by default,
// with what registers it is and how often. Also prints for how long the GUI thread was busy without
// a break at most. Needs a network namespace: tests/support/with-netns.sh main-window-idle.
//
// It is 12.7 transactions a second, whether dialogs and tree are open or not, and all of them are
// what the description wants to be polled: whether the pulse generator runs (0x1520, five times a
// second), white balance and its three coefficients (0x1200 and following, every 600 ms each) and
// the temperature (0x1600, once a second). The window's own second reads from what is cached. The
// GUI thread is busy for about 10 ms at most. What keeps the connection alive is not counted.

#include "allwindows.h"
#include "gvcpcounter.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QMap>
#include <QTextStream>

namespace {

/// The longest time in which a timer of a millisecond did not get its turn.
class BlockMeter : public QObject
{
public:
    BlockMeter()
    {
        m_clock.start();
        startTimer(1, Qt::PreciseTimer);
    }

    double takeLongest() { return double(std::exchange(m_longest, 0)) / 1e6; }

protected:
    void timerEvent(QTimerEvent *) override
    {
        m_longest = qMax(m_longest, m_clock.nsecsElapsed());
        m_clock.start();
    }

private:
    QElapsedTimer m_clock;
    qint64 m_longest = 0;
};

void letPass(int seconds)
{
    QEventLoop loop;
    QTimer::singleShot(seconds * 1000, &loop, &QEventLoop::quit);
    loop.exec();
}

void print(const QString &title, const QList<GvcpCommand> &commands, int seconds, double longest)
{
    QTextStream out(stdout);
    out << title << ": " << double(commands.size()) / seconds << " transactions/s ("
        << readsIn(commands) << " reads, " << writesIn(commands) << " writes in " << seconds
        << " s); GUI thread busy for " << longest << " ms at most\n";
    QMap<QString, int> counts;
    for (const GvcpCommand &command : commands)
        ++counts[QString("  0x%1 %2")
                     .arg(command.address, 4, 16, QLatin1Char('0'))
                     .arg(command.isRead() ? "read" : "write")];
    for (auto it = counts.begin(); it != counts.end(); ++it)
        out << it.key() << ' ' << it.value() << " times\n";
}

} // namespace

int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const int seconds = argc > 1 ? qMax(1, atoi(argv[1])) : 30;

    AllWindows all(QStringLiteral(ORV_DESCRIPTION));
    GvcpCounter counter("orv0");
    if (!counter.isListening()) {
        QTextStream(stderr) << "the wire cannot be listened to: be root of the network namespace\n";
        return 1;
    }
    BlockMeter meter;
    letPass(3); // the windows are painted, and have requested what they show
    counter.take();
    meter.takeLongest();

    letPass(seconds);
    print("everything open", counter.take(), seconds, meter.takeLongest());

    all.tree().close();
    letPass(1);
    counter.take();
    meter.takeLongest();
    letPass(seconds);
    print("without the tree", counter.take(), seconds, meter.takeLongest());

    for (OrvGui::OrvCamConfigDialog *dialog : all.dialogs())
        dialog->close();
    letPass(1);
    counter.take();
    meter.takeLongest();
    letPass(seconds);
    print("the main window alone", counter.take(), seconds, meter.takeLongest());
    return 0;
}
