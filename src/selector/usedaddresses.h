// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QHash>
#include <QString>

/// The IPv4 addresses that a camera should not get: those of network adapters and other cameras,
/// and those that no host can have. Addresses are numbers whose most significant byte is the first
/// group.
class UsedAddresses
{
    Q_DECLARE_TR_FUNCTIONS(UsedAddresses)

public:
    void addAdapter(unsigned int address, const QString &name);
    void addCamera(unsigned int address, const QString &name);

    /// The reason why no camera should get that address with that mask; empty if there is none.
    QString fault(unsigned int address, unsigned int mask) const;

    /// `first` or, if that has a fault, the next address of its subnet without one, searched
    /// upwards or downwards (`step` 1 or -1) with wrap-around; `first` if there is none.
    unsigned int firstFree(unsigned int first, int step, unsigned int mask) const;

private:
    static QString impossible(unsigned int address, unsigned int mask);

    QHash<unsigned int, QString> m_owners; ///< the fault of an address, as text
};
