// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <memory>

class QLineEdit;
class Ui_SetIpDialog;

/// Asks the user for the IPv4 configuration to force on a camera, and shows during input whether it
/// suits the network adapter.
///
/// Set the addresses, those of the adapter first, run the dialog modally, then read the addresses
/// and their validity. The user may accept invalid addresses, too. Addresses are numbers whose most
/// significant byte is the first group; of a MAC address the low six bytes count. The dialog does
/// not access the camera.
class SetIpDialog : public QDialog
{
    Q_OBJECT

public:
    explicit SetIpDialog(QWidget *parent = nullptr);
    ~SetIpDialog() override;

    unsigned int ipAddress() const;
    unsigned int Netmask() const;
    unsigned int Gateway() const;

    /// The text for the camera's MAC address.
    QString macAddress() const;

    /// The camera's address is in the adapter's subnet and not equal to the adapter's. Both results
    /// are from the last change of the camera's address or mask.
    bool isAddressValid() const { return m_addressValid; }

    /// The camera's mask is equal to the adapter's.
    bool isMaskValid() const { return m_maskValid; }

    void setIPAddress(unsigned int address);
    void setNetmask(unsigned int mask);
    void setGateway(unsigned int gateway);
    void setNicIPAddress(unsigned int address);
    void setNicNetmask(unsigned int mask);
    void setMACAddress(unsigned long long address);
    void setNicMACAddress(unsigned long long address);
    void setMACLineEdit(QLineEdit *edit, unsigned long long mac);

protected:
    /// Selects the host number for typing.
    void showEvent(QShowEvent *event) override;

private slots:
    void checkSubnet(const QString &text);

private:
    const std::unique_ptr<Ui_SetIpDialog> ui;
    bool m_addressValid = false;
    bool m_maskValid = false;
};
