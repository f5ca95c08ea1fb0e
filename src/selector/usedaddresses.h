// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QHash>
#include <QString>

/// The IPv4 addresses that a camera had better not be given: those that network adapters and other
/// cameras have, and those that no host can have. Addresses are numbers whose most significant byte
/// is the first group.
class UsedAddresses
{
    Q_DECLARE_TR_FUNCTIONS(UsedAddresses)

public:
    void addAdapter(unsigned int address, const QString &name);
    void addCamera(unsigned int address, const QString &name);

    /// Why no camera should get that address with that mask; empty when it may.
    QString fault(unsigned int address, unsigned int mask) const;

    /// `first` or, when that has a fault, the next address of its subnet that has none, upwards or
    /// downwards (`step` 1 or -1) and round at the end; `first` when there is none.
    unsigned int firstFree(unsigned int first, int step, unsigned int mask) const;

private:
    static QString impossible(unsigned int address, unsigned int mask);

    QHash<unsigned int, QString> m_owners; ///< what to say of an address
};
