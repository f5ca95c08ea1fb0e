// SPDX-License-Identifier: MIT
#include <gigevision/gvcp.h>

#include <QtTest>

using namespace OrvGigEVision;

namespace {

/// The answer of a camera at 192.168.1.10 to discovery request 0x1234.
QByteArray discoveryAnswer()
{
    QByteArray answer = QByteArray::fromHex("0000 0003 00f8 1234" // header
                                            "0002 0000 80000001"  // version, device mode
                                            "0000 001b2c3d4e5f"   // MAC address
                                            "80000007 00000006"); // IP configurations
    answer += QByteArray(12, 0) + QByteArray::fromHex("c0a8010a");
    answer += QByteArray(12, 0) + QByteArray::fromHex("ffffff00");
    answer += QByteArray(12, 0) + QByteArray::fromHex("c0a80101");
    const auto text = [](const char *contents, int size) {
        return QByteArray(contents).leftJustified(size, '\0');
    };
    answer += text("Maker", 32) + text("Model 1", 32) + text("2.1  ", 32) + text("", 48);
    answer += text("0123456789abcdef", 16); // fills the field
    answer += text("K\xc3\xa4"
                   "fer",
                   16);
    return answer;
}

std::optional<Gvcp::Acknowledge> parse(const QByteArray &packet)
{
    return Gvcp::parseAcknowledge(reinterpret_cast<const uint8_t *>(packet.constData()),
                                  static_cast<std::size_t>(packet.size()));
}

} // namespace

class TestGvcp : public QObject
{
    Q_OBJECT

private slots:
    void parsesIdentity();
    void buildsCommands();
    void parsesAnswers();
    void rejectsTruncatedPackets();
};

void TestGvcp::parsesIdentity()
{
    const QByteArray packet = discoveryAnswer();
    QCOMPARE(packet.size(), 256);
    const auto answer = parse(packet);
    QVERIFY(answer && answer->is(Gvcp::Answer::Discovery, 0x1234));
    QVERIFY(!answer->is(Gvcp::Answer::Discovery, 0x1235));
    QVERIFY(!answer->is(Gvcp::Answer::ForceIp, 0x1234));
    const auto identity = Gvcp::parseIdentity(*answer);
    QVERIFY(identity.has_value());
    QCOMPARE(identity->mac, uint64_t(0x001B2C3D4E5F));
    QCOMPARE(identity->ip, 0xC0A8010Au);
    QCOMPARE(identity->mask, 0xFFFFFF00u);
    QCOMPARE(identity->gateway, 0xC0A80101u);
    QCOMPARE(identity->manufacturer, std::string("Maker"));
    QCOMPARE(identity->model, std::string("Model 1"));
    QCOMPARE(identity->version, std::string("2.1"));
    QCOMPARE(identity->manufacturerInfo, std::string());
    QCOMPARE(identity->serial, std::string("0123456789abcdef"));
    QCOMPARE(identity->userName, std::string("Käfer"));

    QVERIFY(Gvcp::parseIdentity(*parse(packet + QByteArray(9, '\0'))).has_value());
    QVERIFY(!parse(packet + "trailing bytes"));
}

void TestGvcp::buildsCommands()
{
    const auto hex = [](const Gvcp::Packet &packet) {
        return QByteArray(reinterpret_cast<const char *>(packet.data()),
                          static_cast<int>(packet.size()))
            .toHex();
    };
    const uint8_t bytes[] = {1, 2, 3, 4};
    QCOMPARE(hex(Gvcp::readRegistersCommand(7, {0xA00, 0x12345678})),
             QByteArray("4201008000080007"
                        "00000a0012345678"));
    QCOMPARE(hex(Gvcp::writeRegistersCommand(8, {{0xA00, 2}})), QByteArray("4201008200080008"
                                                                           "00000a0000000002"));
    QCOMPARE(hex(Gvcp::readMemoryCommand(9, 0xC0000000, 536)), QByteArray("4201008400080009"
                                                                          "c000000000000218"));
    QCOMPARE(hex(Gvcp::writeMemoryCommand(10, 0x10, bytes, 4)), QByteArray("420100860008000a"
                                                                           "0000001001020304"));
}

void TestGvcp::parsesAnswers()
{
    const QByteArray packet = QByteArray::fromHex("0000 0081 0008 0007 12345678 00000009");
    const auto answer = parse(packet);
    QVERIFY(answer && answer->is(Gvcp::Answer::ReadRegister, 7));
    QVERIFY(Gvcp::parseRegisters(*answer, 2) == (std::vector<uint32_t>{0x12345678, 9}));
    QVERIFY(!Gvcp::parseRegisters(*answer, 1));
    QVERIFY(!Gvcp::parseRegisters(*answer, 3));

    // A refusal contains the values before the refused one, so always fewer than were requested.
    const QByteArray refusal = QByteArray::fromHex("8003 0081 0004 0007 12345678");
    QCOMPARE(parse(refusal)->status, uint16_t(Gvcp::StatusInvalidAddress));
    QVERIFY(Gvcp::parseRegisters(*parse(refusal), 2) == std::vector<uint32_t>{0x12345678});
    QVERIFY(!Gvcp::parseRegisters(*parse(refusal), 1));

    const QByteArray memory = QByteArray::fromHex("0000 0085 0008 0007 c0000000 01020304");
    QVERIFY(Gvcp::parseMemory(*parse(memory), 0xC0000000, 4));
    QVERIFY(!Gvcp::parseMemory(*parse(memory), 0xC0000000, 8));
    QVERIFY(!Gvcp::parseMemory(*parse(memory), 0xC0000004, 4));

    const QByteArray pending = QByteArray::fromHex("0000 0089 0004 0007 0000ffff");
    QCOMPARE(Gvcp::parsePending(*parse(pending))->count(), 65535);
    QVERIFY(!Gvcp::parsePending(*parse(QByteArray::fromHex("0000 0089 0000 0007"))));
}

void TestGvcp::rejectsTruncatedPackets()
{
    // With an adapted length field as well, which makes the header valid, but not the contents.
    QVERIFY(!parse(QByteArray::fromHex("0000 0003 ffff 1234 00"))); // wrong length
    const QByteArray whole = discoveryAnswer();
    for (int size = 0; size < whole.size(); ++size) {
        // The sanitizer detects reads beyond a heap copy of exactly this size.
        std::vector<uint8_t> part(whole.begin(), whole.begin() + size);
        QVERIFY(!Gvcp::parseAcknowledge(part.data(), part.size()));
        if (size < 8)
            continue;
        part[4] = 0;
        part[5] = static_cast<uint8_t>(size - 8);
        const auto answer = Gvcp::parseAcknowledge(part.data(), part.size());
        QVERIFY(answer.has_value());
        QVERIFY(!Gvcp::parseIdentity(*answer));
    }
}

QTEST_APPLESS_MAIN(TestGvcp)
#include "tst_gvcp.moc"
