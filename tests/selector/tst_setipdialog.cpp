// SPDX-License-Identifier: MIT
#include "ip4validator.h"
#include "setipdialog.h"

#include <QLabel>
#include <QLineEdit>
#include <QtTest>

struct Case
{
    const char *address = nullptr;
    const char *mask = nullptr;
    const char *text = nullptr;
    bool addressValid = false;
};
Q_DECLARE_METATYPE(Case)

class TestSetIpDialog : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void verdicts_data();
    void verdicts();
    void gatewayTakesNoPart();
    void addresses();

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

void TestSetIpDialog::verdicts_data()
{
    QTest::addColumn<Case>("row");
    const char *const mask = "255.255.255.0";
    const char *const ok = "IP Configuration OK";
    const char *const subnet = "Subnet IP mismatch!";
    const char *const masks = "Subnet mask mismatch!";
    for (const Case &row :
         {Case{"192.168.1.11", mask, ok, true}, Case{"192.168.1.255", mask, ok, true},
          Case{"192.168.1.10", mask, "Incorrect IP address!", false},
          Case{"192.168.2.11", mask, subnet, false}, Case{"0.168.1.11", mask, subnet, false},
          Case{"", mask, subnet, false}, Case{"192.168", mask, subnet, false},
          Case{"192.168.1.11", "255.255.0.0", masks, false},
          Case{"192.168.1.11", "255.255.255.128", masks, true},
          Case{"192.168.1.11", "", masks, false}})
        QTest::addRow("%s/%s", row.address, row.mask) << row;
}

void TestSetIpDialog::verdicts()
{
    QFETCH(Case, row);
    const QString text = row.text;
    const QString address = row.address;
    const QString mask = row.mask;
    const bool good = text.endsWith("OK");
    const auto check = [&] {
        QCOMPARE(status()->text(), text);
        QCOMPARE(status()->styleSheet(),
                 QString(good ? "color: rgb(0, 192, 0);" : "color: rgb(255, 0, 0);"));
        QCOMPARE(m_dialog->isAddressValid(), row.addressValid);
        QCOMPARE(m_dialog->isMaskValid(), mask == "255.255.255.0");
    };
    m_dialog->setIPAddress(0x7F000001);
    m_dialog->setNetmask(0xFF000000);
    field("ipAddressLineEdit")->setText(address);
    field("subnetMaskLineEdit")->setText(mask);
    check();
    // Also when the address comes last.
    field("ipAddressLineEdit")->setText("127.0.0.1");
    field("ipAddressLineEdit")->setText(address);
    check();
}

void TestSetIpDialog::gatewayTakesNoPart()
{
    field("defaultGatewayLineEdit")->setText("1.2.3.4");
    QCOMPARE(status()->text(), QString("TextLabel"));
    m_dialog->setIPAddress(0xC0A8010B);
    m_dialog->setNetmask(0xFFFFFF00);
    QCOMPARE(status()->text(), QString("IP Configuration OK"));
    m_dialog->setGateway(0);
    QCOMPARE(status()->text(), QString("IP Configuration OK"));
    // With a mask of nothing a first group of zero is the only fault that is left.
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

QTEST_MAIN(TestSetIpDialog)
#include "tst_setipdialog.moc"
