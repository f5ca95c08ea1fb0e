// SPDX-License-Identifier: MIT
#pragma once

#include "settings/setting.h"

#include <QCoreApplication>
#include <QStringList>

namespace OrvGui {

/// The text format of GenApi's feature persistence: two header lines, comments, and for each
/// feature a line with its name, a tab and its value. A line with the value of a selector precedes
/// the lines that it selects.
class SettingsFile
{
    Q_DECLARE_TR_FUNCTIONS(OrvGui::SettingsFile)

public:
    /// In bytes. Cameras have some hundred features, and look-up tables of some 100 kB.
    static constexpr qint64 largestSize = 32 * 1024 * 1024;

    QString device; ///< "Vendor::Model" of the camera; may be empty
    QStringList comments;
    Settings lines;

    /// Reads UTF-8, with or without a byte order mark; lines end with \n or \r\n. On failure, the
    /// error contains the line number and the result is empty.
    static SettingsFile fromBytes(const QByteArray &bytes, QString *error);
    static SettingsFile read(const QString &fileName, QString *error);

    /// False for a text that would be changed by writing and reading a file.
    static bool isStorable(const QString &value);

    QByteArray toBytes() const;

    /// Replaces the file as a whole, or not at all.
    bool write(const QString &fileName, QString *error) const;

private:
    QString addLine(const QByteArray &bytes, int number);
    void addComment(const QString &text);
};

} // namespace OrvGui
