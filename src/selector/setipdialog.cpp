// SPDX-License-Identifier: MIT
#include "selector/setipdialog.h"

#include "base/ip4validator.h"
#include "base/macaddress.h"
#include "ui_setipdialog.h"

namespace {

const unsigned int LowestAddress = 0x01000000;

/// Its text can still be selected and copied, unlike that of a disabled edit.
void makeLookDisabled(QLineEdit *edit)
{
    QPalette palette = edit->palette();
    palette.setBrush(QPalette::Base, palette.color(QPalette::Disabled, QPalette::Base));
    edit->setPalette(palette);
}

/// Makes the line edit wide enough for the widest MAC address.
void widen(QLineEdit *edit)
{
    const QString widest = macAddressText(0xDDDDDDDDDDDD);
    const QFontMetrics metrics = edit->fontMetrics();
    // The frame and margins of the style: the minimum width of a line edit fits one widest letter.
    const int around = edit->minimumSizeHint().width() - metrics.maxWidth();
    edit->setMinimumWidth(metrics.size(0, widest).width() + metrics.averageCharWidth() + around);
}

unsigned int addressIn(const QLineEdit *edit)
{
    return IP4Validator::getIp(edit->text());
}

void setAddress(QLineEdit *edit, unsigned int address)
{
    edit->setText(IP4Validator::getIpStr(address));
}

} // namespace

SetIpDialog::SetIpDialog(QWidget *parent) : QDialog(parent), ui(new Ui_SetIpDialog)
{
    ui->setupUi(this);
    for (QLineEdit *edit : findChildren<QLineEdit *>())
        widen(edit);
    for (QLineEdit *edit :
         {ui->macAddressLineEdit, ui->nicMacLineEdit, ui->nicIpLineEdit, ui->nicSubnetMaskLineEdit})
        makeLookDisabled(edit);
    for (QLineEdit *edit :
         {ui->ipAddressLineEdit, ui->subnetMaskLineEdit, ui->defaultGatewayLineEdit})
        edit->setValidator(new IP4Validator(this));
    connect(ui->ipAddressLineEdit, &QLineEdit::textChanged, this, &SetIpDialog::checkSubnet);
    connect(ui->subnetMaskLineEdit, &QLineEdit::textChanged, this, &SetIpDialog::checkSubnet);
}

SetIpDialog::~SetIpDialog() = default;

unsigned int SetIpDialog::ipAddress() const
{
    return addressIn(ui->ipAddressLineEdit);
}

unsigned int SetIpDialog::Netmask() const
{
    return addressIn(ui->subnetMaskLineEdit);
}

unsigned int SetIpDialog::Gateway() const
{
    return addressIn(ui->defaultGatewayLineEdit);
}

QString SetIpDialog::macAddress() const
{
    return ui->macAddressLineEdit->text();
}

void SetIpDialog::setIPAddress(unsigned int address)
{
    setAddress(ui->ipAddressLineEdit, address);
}

void SetIpDialog::setNetmask(unsigned int mask)
{
    setAddress(ui->subnetMaskLineEdit, mask);
}

void SetIpDialog::setGateway(unsigned int gateway)
{
    setAddress(ui->defaultGatewayLineEdit, gateway);
}

void SetIpDialog::setNicIPAddress(unsigned int address)
{
    setAddress(ui->nicIpLineEdit, address);
}

void SetIpDialog::setNicNetmask(unsigned int mask)
{
    setAddress(ui->nicSubnetMaskLineEdit, mask);
}

void SetIpDialog::setMACAddress(unsigned long long address)
{
    setMACLineEdit(ui->macAddressLineEdit, address);
}

void SetIpDialog::setNicMACAddress(unsigned long long address)
{
    setMACLineEdit(ui->nicMacLineEdit, address);
}

void SetIpDialog::setMACLineEdit(QLineEdit *edit, unsigned long long mac)
{
    edit->setText(macAddressText(mac));
}

void SetIpDialog::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    QLineEdit *edit = ui->ipAddressLineEdit;
    edit->setFocus();
    const int hostNumber = int(edit->text().lastIndexOf(QLatin1Char('.'))) + 1;
    edit->setSelection(hostNumber, int(edit->text().length()) - hostNumber);
}

void SetIpDialog::checkSubnet(const QString &)
{
    const unsigned int nicAddress = addressIn(ui->nicIpLineEdit);
    const unsigned int nicMask = addressIn(ui->nicSubnetMaskLineEdit);
    const bool sameSubnet = (ipAddress() & Netmask()) == (nicAddress & nicMask);
    m_addressValid = ipAddress() >= LowestAddress && ipAddress() != nicAddress && sameSubnet;
    m_maskValid = Netmask() == nicMask;

    QString verdict;
    if (!m_maskValid)
        verdict = tr("Subnet mask mismatch!");
    else if (!sameSubnet)
        verdict = tr("Subnet IP mismatch!");
    else if (!m_addressValid)
        verdict = tr("Incorrect IP address!");
    else
        verdict = tr("IP Configuration OK");
    ui->ipStatusLabel->setText(verdict);
    ui->ipStatusLabel->setStyleSheet(m_addressValid && m_maskValid
                                         ? QStringLiteral("color: rgb(0, 192, 0);")
                                         : QStringLiteral("color: rgb(255, 0, 0);"));
}
