// SPDX-License-Identifier: MIT
#pragma once

#include "testcamera.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QThread>

#include <sys/stat.h>

#include <memory>

/// A network adapter of this namespace with a cable to another machine (a second namespace), on
/// which cameras and other servers can be started. For tests that run in a network namespace; a
/// failure of the set-up ends the test program.
class CameraNetwork
{
public:
    struct Killer
    {
        void operator()(QProcess *process) const
        {
            process->kill();
            process->waitForFinished();
            delete process;
        }
    };
    using Process = std::unique_ptr<QProcess, Killer>;

    /// `name` is the adapter's; the addresses are given as "10.1.0.1/24". The other machine's
    /// adapter is called `name` + "-far".
    CameraNetwork(const QString &name, const QString &address, const QString &farAddress)
        : m_name(name), m_farName(name + QLatin1String("-far"))
    {
        m_machine.start(QStringLiteral("unshare"),
                        {QStringLiteral("--net"), QStringLiteral("sleep"), QStringLiteral("600")});
        waitForNamespace();
        const QString pid = QString::number(m_machine.processId());
        run("ip", "link add " + m_name + " type veth peer name " + m_farName);
        run("ip", "link set " + m_farName + " netns " + pid);
        run("ip", "addr add " + address + " dev " + m_name);
        run("ip", "link set " + m_name + " up");
        runFar("ip", "link set lo up");
        runFar("ip", "addr add " + farAddress + " dev " + m_farName);
        runFar("ip", "link set " + m_farName + " up");
    }

    ~CameraNetwork()
    {
        QProcess::execute(QStringLiteral("ip"),
                          {QStringLiteral("link"), QStringLiteral("del"), m_name});
        m_machine.kill();
        m_machine.waitForFinished();
    }

    QString farName() const { return m_farName; }

    /// The path of the other machine's namespace file; see setns(2).
    QString farNamespace() const
    {
        return QStringLiteral("/proc/%1/ns/net").arg(m_machine.processId());
    }

    /// Settings of a camera on the other machine. It broadcasts its answers, like a camera that has
    /// no route to the client's subnet.
    TestCamera::Settings cameraSettings(uint64_t mac, const char *address) const
    {
        TestCamera::Settings settings;
        settings.networkNamespace = farNamespace().toStdString();
        settings.adapter = farName().toStdString();
        settings.address = address;
        settings.mac = mac;
        settings.serial.clear();
        settings.broadcasts = true;
        return settings;
    }

    /// Starts a program on the other machine; it is killed with the returned object.
    Process start(const QString &program, const QStringList &arguments)
    {
        Process process(new QProcess);
        process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process->start(QStringLiteral("nsenter"),
                       farArguments() + QStringList{program} + arguments);
        if (!process->waitForStarted())
            qFatal("%s does not start", qPrintable(program));
        return process;
    }

    /// Starts a GigE Vision camera at the other machine's address.
    Process startCamera(const QString &serial, const QString &description = QString())
    {
        QStringList arguments{QStringLiteral("-i"), m_farName, QStringLiteral("-s"), serial};
        if (!description.isEmpty())
            arguments << QStringLiteral("-g") << description;
        return start(QStringLiteral("arv-fake-gv-camera-0.8"), arguments);
    }

    static void run(const char *program, const QString &arguments)
    {
        execute(QString::fromLatin1(program), arguments.split(QLatin1Char(' ')));
    }

    void runFar(const char *program, const QString &arguments) const
    {
        execute(QStringLiteral("nsenter"), farArguments() +
                                               QStringList{QString::fromLatin1(program)} +
                                               arguments.split(QLatin1Char(' ')));
    }

private:
    QStringList farArguments() const
    {
        return {QStringLiteral("--net"), QStringLiteral("--target"),
                QString::number(m_machine.processId())};
    }

    static void execute(const QString &program, const QStringList &arguments)
    {
        if (QProcess::execute(program, arguments) != 0)
            qFatal("Failed: %s %s", qPrintable(program),
                   qPrintable(arguments.join(QLatin1Char(' '))));
    }

    void waitForNamespace()
    {
        if (!m_machine.waitForStarted())
            qFatal("unshare does not start");
        const auto identityOf = [](const QString &file) {
            struct stat status = {};
            if (::stat(file.toLocal8Bit().constData(), &status) != 0)
                qFatal("There is no %s", qPrintable(file));
            return status.st_ino;
        };
        QElapsedTimer timer;
        timer.start();
        const auto ours = identityOf(QStringLiteral("/proc/self/ns/net"));
        while (identityOf(farNamespace()) == ours) {
            if (timer.hasExpired(5000))
                qFatal("There is no second network namespace");
            QThread::msleep(5);
        }
    }

    const QString m_name;
    const QString m_farName;
    QProcess m_machine;
};
