// SPDX-License-Identifier: MIT
#include "testcamera.h"

#include <QtTest>

#include <arpa/inet.h>
#include <sys/socket.h>
#include <unistd.h>

/// The camera of other tests, asked by clients that know no more than bytes.
class TestTestCamera : public QObject
{
    Q_OBJECT

private slots:
    void commands();
    void control();
    void moods();
};

namespace {

struct Client
{
    const int fd = socket(AF_INET, SOCK_DGRAM, 0);

    Client()
    {
        sockaddr_in to{};
        to.sin_family = AF_INET;
        to.sin_port = htons(3956);
        to.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        connect(fd, reinterpret_cast<const sockaddr *>(&to), sizeof to);
        const timeval patience{0, 60000};
        setsockopt(fd, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);
    }
    ~Client() { close(fd); }

    /// Sends what is behind key and flags, in hexadecimal.
    void send(const char *command) const
    {
        const QByteArray packet = QByteArray::fromHex(QByteArray("4201") + command);
        ::send(fd, packet.constData(), static_cast<std::size_t>(packet.size()), 0);
    }

    /// In hexadecimal; empty when nothing comes.
    QByteArray receive() const
    {
        char buffer[1024];
        const auto size = recv(fd, buffer, sizeof buffer, 0);
        return size < 0 ? QByteArray() : QByteArray(buffer, static_cast<int>(size)).toHex();
    }

    QByteArray ask(const char *command) const { return send(command), receive(); }
};

const char *const readWidth = "0080 0004 0007 00010000";
const char *const goodWidth = "0000008100040007000002d0";
const char *const writeWidth = "0082 0008 0008 00010000 000002d0";
const char *const takeControl = "0082 0008 0009 00000a00 00000002";

TestCamera::Settings settings()
{
    TestCamera::Settings result;
    result.heartbeat = 250;
    result.fillsRegisters = true;
    result.description = "<IntReg><Address>0x10000</Address><Length>8</Length></IntReg>"
                         "<FloatReg><Address>0x10010</Address></FloatReg>";
    return result;
}

} // namespace

void TestTestCamera::commands()
{
    TestCamera camera(settings());
    camera.addTwoViews(0x10004, 0x10007);
    const char *const answers[][2] = {
        {"0002 0000 0001", "0000000300f80001000200008000000100000200"},
        {readWidth, "000000810004000700000000"},
        {"0080 0008 0001 00010000 00010004", "00000081000800010000000000000000"},
        {"0080 0008 0001 00010004 00010008", "800300810004000100000000"}, // as many as there are
        {"0084 0008 0001 00010000 0000 0008", "00000085000c0001000100000000000000000000"},
        {"0084 0008 0001 00010010 0000 0004", "0000008500080001000100103fc00000"}, // 1.5
        {"0084 0008 0001 00000200 0000 0004", "0000008500080001000002004c6f6361"},
        {"0084 0008 0001 c0000000 0000 0004", "0000008500080001c00000003c496e74"},
        {"0084 0008 0001 00010000 0000 0006", "8002"},
        {"0080 0004 0001 00010002", "8005"},
        {"00c0 0000 0001", "800100c100000001"},
        {writeWidth, "8006"}, // no control yet
        {takeControl, "00000083000400090000000"},
        {"0082 0010 0001 00010000 00000009 00010008 00000002", "800300830004000100000001"},
        {"0086 0008 0001 00010004 01020304", "000000870004000100000004"},
        {"0080 0008 0001 00010000 00010004", "00000081000800010000000904030201"},
        {"0082 0008 0001 00000008 00000000", "8004"},
    };
    const Client client;
    for (const auto &[command, answer] : answers)
        QVERIFY2(client.ask(command).startsWith(answer), command);
    QCOMPARE(camera.counters().registersRead, 8u);
    QCOMPARE(camera.takeAccesses().size(), size_t(19));
}

void TestTestCamera::control()
{
    TestCamera::Settings single = settings();
    single.canConcatenate = false;
    TestCamera camera(single);
    const Client owner, other;
    QVERIFY(owner.ask("0080 0008 0001 00010000 00010004").startsWith("8002"));
    QVERIFY(owner.ask(takeControl).startsWith("0000"));
    QVERIFY(other.ask(takeControl).startsWith("8006"));
    QVERIFY(other.ask(readWidth).startsWith("0000"));
    QVERIFY(owner.ask("0082 0008 0009 00000a00 00000001").startsWith("0000")); // exclusive
    QVERIFY(other.ask(readWidth).startsWith("8006"));
    for (int i = 0; i < 8; ++i, QTest::qWait(50))
        QVERIFY(owner.ask(readWidth).startsWith("0000"));
    QCOMPARE(camera.privilege(), 1u);
    QTRY_COMPARE_WITH_TIMEOUT(camera.privilege(), 0u, 1000); // the heartbeat is missing

    QVERIFY(other.ask(takeControl).startsWith("0000"));
    camera.unplug();
    QCOMPARE(other.ask(readWidth), QByteArray());
    camera.plugIn(true);
    QVERIFY(other.ask(writeWidth).startsWith("0000"));
    camera.plugIn();
    QVERIFY(other.ask(writeWidth).startsWith("8006"));
}

void TestTestCamera::moods()
{
    const QMap<QByteArray, int> good = {
        {"duplicates", 2}, {"silence", 0}, {"pending-forever", 0}, {"refuse", 0}, {"busy", 0}};
    const QMap<QByteArray, unsigned> sent = {
        {"duplicates", 2}, {"silence", 0}, {"pending", 3}, {"garbage", 21}};
    for (const TestCameraMood &mood : testCameraMoods()) {
        TestCamera camera(settings());
        camera.setRegister(0x10000, 0x2D0);
        camera.setMood("pending-time", 40);
        camera.addMood(mood.name, mood.usual);
        const Client client;
        int seen = 0;
        client.send(readWidth);
        for (QByteArray got = client.receive(); !got.isEmpty(); got = client.receive())
            seen += got == goodWidth;
        QVERIFY2(seen == good.value(mood.name, camera.behaviour().faults == 0), mood.name);
        QVERIFY2(camera.counters().sent == sent.value(mood.name, 1), mood.name);

        // A good camera again, and several answers are delayed at the same time.
        camera.setMood("delay", 10);
        QElapsedTimer timer;
        timer.start();
        for (int i = 0; i < 10; ++i)
            client.send(readWidth);
        for (int i = 0; i < 10; ++i)
            QVERIFY2(client.receive() == goodWidth, mood.name);
        QVERIFY2(timer.elapsed() >= 10 && timer.elapsed() < 80, mood.name);
    }
}

QTEST_GUILESS_MAIN(TestTestCamera)
#include "tst_testcamera.moc"
