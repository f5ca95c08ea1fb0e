// SPDX-License-Identifier: MIT
#include "ip4validator.h"

#include <QtTest>

class TestIp4Validator : public QObject
{
    Q_OBJECT

private slots:
    void validate_data();
    void validate();
    void convert_data();
    void convert();
};

void TestIp4Validator::validate_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("state");

    const int invalid = QValidator::Invalid;
    const int intermediate = QValidator::Intermediate;
    const int acceptable = QValidator::Acceptable;
    const struct
    {
        const char *text;
        int state;
    } rows[] = {
        {"", acceptable},
        {"192.168.1.2", acceptable},
        {"0.0.0.0", acceptable},
        {"255.255.255.255", acceptable},
        {"1", intermediate},
        {"192.168", intermediate},
        {"192.168..1", intermediate},
        {"192. .1.1", intermediate},
        {"...", intermediate},
        {" ", intermediate},
        {"192.168.1.256", invalid},
        {"1.2.3.4.5", invalid},
        {"1.2.3.4.", invalid},
        {"a.b.c.d", invalid},
        {"-1.0.0.0", invalid},
        {"1.2.3.0x4", invalid},
        {"99999999999.0.0.0", invalid},
        {"300..1", invalid},
    };
    for (const auto &row : rows)
        QTest::newRow(*row.text ? row.text : "empty") << row.text << row.state;
}

void TestIp4Validator::validate()
{
    QFETCH(QString, text);
    QFETCH(int, state);

    const IP4Validator validator;
    QString input = text;
    int position = 1;
    QCOMPARE(static_cast<int>(validator.validate(input, position)), state);
    QCOMPARE(input, text);
    QCOMPARE(position, 1);
}

void TestIp4Validator::convert_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<quint32>("ip");
    QTest::addColumn<QString>("canonical");

    QTest::newRow("plain") << "192.168.1.2" << 0xC0A80102u << "192.168.1.2";
    QTest::newRow("lowest") << "0.0.0.0" << 0u << "0.0.0.0";
    QTest::newRow("highest") << "255.255.255.255" << 0xFFFFFFFFu << "255.255.255.255";
    QTest::newRow("empty") << "" << 0u << "0.0.0.0";
    QTest::newRow("three groups") << "1.2.3" << 0x00010203u << "0.1.2.3";
    QTest::newRow("spilling group") << "1.2.3.300" << 0x0102032Cu << "1.2.3.44";
    QTest::newRow("five groups") << "1.2.3.4.5" << 0x02030405u << "2.3.4.5";
    QTest::newRow("no number") << "1.x.3.4" << 0x01000304u << "1.0.3.4";
}

void TestIp4Validator::convert()
{
    QFETCH(QString, text);
    QFETCH(quint32, ip);
    QFETCH(QString, canonical);

    QCOMPARE(IP4Validator::getIp(text), ip);
    QCOMPARE(IP4Validator::getIpStr(ip), canonical);
}

QTEST_GUILESS_MAIN(TestIp4Validator)
#include "tst_ip4validator.moc"
