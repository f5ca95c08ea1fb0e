// SPDX-License-Identifier: MIT
#include "base/ip4validator.h"

#include <QtTest>

class TestIp4Validator : public QObject
{
    Q_OBJECT

private slots:
    void validate();
    void convert();
};

void TestIp4Validator::validate()
{
    const struct
    {
        QValidator::State state;
        QStringList texts;
    } rows[] = {
        {QValidator::Acceptable, {"", "192.168.1.2", "0.0.0.0", "255.255.255.255"}},
        {QValidator::Intermediate, {"1", "192.168", "192.168..1", "192. .1.1", "...", " "}},
        {QValidator::Invalid,
         {"192.168.1.256", "1.2.3.4.5", "1.2.3.4.", "a.b.c.d", "-1.0.0.0", "1.2.3.0x4",
          "99999999999.0.0.0", "300..1"}},
    };
    const IP4Validator validator;
    for (const auto &row : rows) {
        for (const QString &text : row.texts) {
            QString input = text;
            int position = 1;
            QVERIFY2(validator.validate(input, position) == row.state, qPrintable(text));
            QCOMPARE(input, text);
            QCOMPARE(position, 1);
        }
    }
}

void TestIp4Validator::convert()
{
    const struct
    {
        QString text;
        quint32 ip;
        QString canonical;
    } rows[] = {
        {"192.168.1.2", 0xC0A80102, "192.168.1.2"},
        {"255.255.255.255", 0xFFFFFFFF, "255.255.255.255"},
        {"", 0, "0.0.0.0"},
        {"1.2.3", 0x00010203, "0.1.2.3"},
        {"1.2.3.300", 0x0102032C, "1.2.3.44"},
        {"1.2.3.4.5", 0x02030405, "2.3.4.5"},
        {"1.x.3.4", 0x01000304, "1.0.3.4"},
    };
    for (const auto &row : rows) {
        QCOMPARE(IP4Validator::getIp(row.text), row.ip);
        QCOMPARE(IP4Validator::getIpStr(row.ip), row.canonical);
    }
}

QTEST_GUILESS_MAIN(TestIp4Validator)
#include "tst_ip4validator.moc"
