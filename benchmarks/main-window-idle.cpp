// SPDX-License-Identifier: MIT
//
// What traffic does the main window cause while it is idle?
//
//   main-window-idle [SECONDS]
//
// Opens the main window, all its dialogs and the feature tree on a fake GigE Vision camera with the
// simulated camera's description. Counts the reads and writes on the wire for 30 seconds (or
// SECONDS), with their registers and rates, and prints the longest time for which the GUI thread
// was busy. Needs a network namespace: tests/support/with-netns.sh main-window-idle.
//
// The result is 12.7 transactions a second, whether dialogs and tree are open or not. All are polls
// that the description declares: the pulse generator's state (0x1520, every 200 ms), white balance
// and its three coefficients (from 0x1200, every 600 ms each) and the temperature (0x1600, every
// second). The window's own timer, of one second, reads from the cache. The GUI thread is busy for
// 10 ms at most. Heartbeats are not counted.

#include "allwindows.h"
#include "gvcpcounter.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QMap>
#include <QTextStream>

namespace {

/// Measures the longest delay of a timer of one millisecond.
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
    letPass(3); // until the windows are painted and have requested their values
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
