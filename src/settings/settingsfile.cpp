// SPDX-License-Identifier: MIT
#include "settings/settingsfile.h"

#include "base/cameratext.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace OrvGui {

namespace {

constexpr char identity[] = "# {05D8C294-F295-4dfb-9D01-096BD04049F4}";
constexpr char formatLine[] = "# GenApi persistence file (version 3.1.0)";
constexpr char byteOrderMark[] = "\xEF\xBB\xBF";
constexpr char deviceMark[] = "Device = ";
constexpr char deviceEnd[] = " -- ";

/// Truncates a text for messages: a damaged file may have very long lines.
QString shown(const QString &text)
{
    return cameraText(text, 60);
}

bool isName(const QString &text)
{
    if (text.isEmpty())
        return false;
    for (const QChar character : text) {
        if (!character.isPrint() || character.isSpace())
            return false;
    }
    return true;
}

/// The selection in "{A=B}", "{A=B,C=D}" or "{A=B}{C=D}"; empty for anything else.
Setting::Selection selectionOf(QString field)
{
    if (!field.startsWith(QLatin1Char('{')) || !field.endsWith(QLatin1Char('}')))
        return {};
    field = field.mid(1, field.size() - 2);
    field.replace(QLatin1String("}{"), QLatin1String(","));
    field.replace(QLatin1Char(';'), QLatin1Char(','));
    Setting::Selection selection;
    for (const QString &part : field.split(QLatin1Char(','))) {
        const int sign = int(part.indexOf(QLatin1Char('=')));
        const QString name = part.left(sign).trimmed();
        if (sign < 0 || !isName(name))
            return {};
        selection.append({name, part.mid(sign + 1).trimmed()});
    }
    return selection;
}

} // namespace

SettingsFile SettingsFile::fromBytes(const QByteArray &bytes, QString *error)
{
    if (bytes.size() > largestSize) {
        *error = tr("The file is too large for settings of a camera.");
        return {};
    }
    int start = bytes.startsWith(byteOrderMark) ? int(sizeof byteOrderMark) - 1 : 0;
    SettingsFile file;
    for (int number = 1; start < bytes.size(); ++number) {
        const int end = int(bytes.indexOf('\n', start));
        QByteArray line = bytes.mid(start, end < 0 ? -1 : end - start);
        start = end < 0 ? int(bytes.size()) : end + 1;
        if (line.endsWith('\r'))
            line.chop(1);
        if (number == 1 && line.trimmed().toLower() != QByteArray(identity).toLower())
            break;
        QString wrong = file.addLine(line, number);
        if (wrong.isEmpty() && end < 0)
            wrong = tr("The file is cut off: its last line has no end.");
        if (!wrong.isEmpty()) {
            *error = tr("Line %1: %2").arg(number).arg(wrong);
            return {};
        }
        if (start >= bytes.size())
            return file;
    }
    *error = tr("Line 1: This is no file of camera settings.");
    return {};
}

/// Returns the error in the line.
QString SettingsFile::addLine(const QByteArray &bytes, int number)
{
    const QString text = QString::fromUtf8(bytes);
    if (text.startsWith(QLatin1Char('#'))) { // in any encoding
        if (number > 2)
            addComment(text.mid(1).trimmed());
        return QString();
    }
    if (text.toUtf8() != bytes || bytes.contains('\0'))
        return tr("This is no text in UTF-8.");
    if (text.trimmed().isEmpty())
        return QString();

    const int tab = int(text.indexOf(QLatin1Char('\t')));
    Setting setting;
    setting.line = number;
    setting.name = text.left(tab);
    if (!isName(setting.name))
        return tr("'%1' is no name of a feature.").arg(shown(setting.name));
    if (tab < 0)
        return tr("There is no value for '%1'.").arg(shown(setting.name));
    setting.value = text.mid(tab + 1);
    const int second = int(setting.value.indexOf(QLatin1Char('\t')));
    if (second > 0) {
        setting.selection = selectionOf(setting.value.left(second));
        if (!setting.selection.isEmpty())
            setting.value = setting.value.mid(second + 1);
    }
    if (setting.value.isNull())
        setting.value = QLatin1String("");
    lines.append(setting);
    return QString();
}

void SettingsFile::addComment(const QString &text)
{
    if (!text.startsWith(QLatin1String(deviceMark)) || !device.isEmpty()) {
        comments << text;
        return;
    }
    device = text.mid(int(sizeof deviceMark) - 1);
    const int end = int(device.indexOf(QLatin1String(deviceEnd)));
    if (end >= 0)
        device.truncate(end);
    device = device.trimmed();
}

SettingsFile SettingsFile::read(const QString &fileName, QString *error)
{
    QFile file(fileName);
    QString wrong;
    SettingsFile settings;
    if (!file.open(QIODevice::ReadOnly))
        wrong = file.errorString();
    else
        settings = fromBytes(file.read(largestSize + 1), &wrong);
    if (!wrong.isEmpty())
        *error = tr("The file '%1' cannot be read. %2").arg(fileName, wrong);
    return settings;
}

bool SettingsFile::isStorable(const QString &value)
{
    for (const QChar character : value) {
        if (character.category() == QChar::Other_Control && character != QLatin1Char('\t'))
            return false;
    }
    const int tab = int(value.indexOf(QLatin1Char('\t')));
    return tab <= 0 || selectionOf(value.left(tab)).isEmpty();
}

QByteArray SettingsFile::toBytes() const
{
    QString text =
        QLatin1String(identity) + QLatin1Char('\n') + QLatin1String(formatLine) + QLatin1Char('\n');
    QStringList heads;
    if (!device.isEmpty())
        heads << QLatin1String(deviceMark) + printable(device);
    for (const QString &comment : comments)
        heads << printable(comment);
    for (const QString &head : heads)
        text += QLatin1String("# ") + head + QLatin1Char('\n');
    for (const Setting &line : lines)
        text += line.name + QLatin1Char('\t') + line.value + QLatin1Char('\n');
    return text.toUtf8();
}

bool SettingsFile::write(const QString &fileName, QString *error) const
{
    const QByteArray bytes = toBytes();
    const QFileInfo existing(fileName);
    if (existing.exists() && !existing.isFile() && !existing.isDir()) {
        // A device file or a pipe must not be replaced.
        QFile target(fileName);
        if (target.open(QIODevice::WriteOnly) && target.write(bytes) == bytes.size() &&
            target.flush())
            return true;
        *error = tr("The file '%1' cannot be written. %2").arg(fileName, target.errorString());
        return false;
    }
    QSaveFile file(fileName);
    // A full disk is reported by flush() only.
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush() &&
        file.commit())
        return true;
    *error = tr("The file '%1' cannot be written. %2").arg(fileName, file.errorString());
    return false;
}

} // namespace OrvGui
