// SPDX-License-Identifier: MIT
#include "base/ip4validator.h"
#include "selector/setipdialog.h"

#include <QtTest>
#include <QtWidgets>

class TestSetIpDialog : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void validation();
    void gatewayIsNotValidated();
    void addresses();
    void validator();
    void addressTexts();

private:
    QLineEdit *field(const char *name) { return m_dialog->findChild<QLineEdit *>(name); }
    QLabel *status() { return m_dialog->findChild<QLabel *>("ipStatusLabel"); }

    std::unique_ptr<SetIpDialog> m_dialog;
};

void TestSetIpDialog::init()
{
    m_dialog.reset(new SetIpDialog);
    QVERIFY(!m_dialog->isAddressValid() && !m_dialog->isMaskValid());
    m_dialog->setNicMACAddress(0x020000000001);
    m_dialog->setNicIPAddress(0xC0A8010A);
    m_dialog->setNicNetmask(0xFFFFFF00);
    m_dialog->setMACAddress(0x020000000002);
}

void TestSetIpDialog::validation()
{
    const char *const mask = "255.255.255.0";
    const char *const ok = "IP Configuration OK";
    const char *const subnet = "Subnet IP mismatch!";
    const char *const masks = "Subnet mask mismatch!";
    const struct
    {
        const char *address, *mask, *text;
        bool addressValid;
    } rows[] = {
        {"192.168.1.11", mask, ok, true},
        {"192.168.1.255", mask, ok, true},
        {"192.168.1.10", mask, "Incorrect IP address!", false}, // the adapter's own
        {"192.168.2.11", mask, subnet, false},
        {"0.168.1.11", mask, subnet, false},
        {"", mask, subnet, false},
        {"192.168", mask, subnet, false},
        {"192.168.1.11", "255.255.0.0", masks, false},
        {"192.168.1.11", "255.255.255.128", masks, true},
        {"192.168.1.11", "", masks, false},
    };
    for (const auto &row : rows) {
        m_dialog->setIPAddress(0x7F000001);
        m_dialog->setNetmask(0xFF000000);
        field("ipAddressLineEdit")->setText(row.address);
        field("subnetMaskLineEdit")->setText(row.mask);
        for (int time = 0; time < 2; ++time) {
            QVERIFY2(status()->text() == row.text, row.address);
            QCOMPARE(status()->styleSheet(),
                     QString(row.text == ok ? "color: rgb(0, 192, 0);" : "color: rgb(255, 0, 0);"));
            QVERIFY2(m_dialog->isAddressValid() == row.addressValid, row.address);
            QCOMPARE(m_dialog->isMaskValid(), row.mask == mask);
            // The result is the same when the address is entered last.
            field("ipAddressLineEdit")->setText("127.0.0.1");
            field("ipAddressLineEdit")->setText(row.address);
        }
    }
}

void TestSetIpDialog::gatewayIsNotValidated()
{
    field("defaultGatewayLineEdit")->setText("1.2.3.4");
    QCOMPARE(status()->text(), QString("TextLabel"));
    m_dialog->setIPAddress(0xC0A8010B);
    m_dialog->setNetmask(0xFFFFFF00);
    QCOMPARE(status()->text(), QString("IP Configuration OK"));
    m_dialog->setGateway(0);
    QCOMPARE(status()->text(), QString("IP Configuration OK"));
    // With an empty mask, only addresses that start with 0 are invalid.
    m_dialog->setNicNetmask(0);
    m_dialog->setNetmask(0);
    m_dialog->setIPAddress(0x00FFFFFF);
    QCOMPARE(status()->text(), QString("Incorrect IP address!"));
    m_dialog->setIPAddress(0x01000000);
    QCOMPARE(status()->text(), QString("IP Configuration OK"));
}

void TestSetIpDialog::addresses()
{
    m_dialog->setIPAddress(0xC0A8010B);
    m_dialog->setNetmask(0xFFFFFF80);
    m_dialog->setGateway(0xFFFFFFFF);
    QCOMPARE(field("ipAddressLineEdit")->text(), QString("192.168.1.11"));
    QCOMPARE(m_dialog->ipAddress(), 0xC0A8010Bu);
    QCOMPARE(m_dialog->Netmask(), 0xFFFFFF80u);
    QCOMPARE(m_dialog->Gateway(), 0xFFFFFFFFu);

    for (const char *name : {"ipAddressLineEdit", "subnetMaskLineEdit", "defaultGatewayLineEdit"}) {
        field(name)->clear();
        QTest::keyClicks(field(name), "a10..300.7.");
        QCOMPARE(field(name)->text(), QString("10..30.7"));
    }
}

void TestSetIpDialog::validator()
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

void TestSetIpDialog::addressTexts()
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

QTEST_MAIN(TestSetIpDialog)
#include "tst_setipdialog.moc"
