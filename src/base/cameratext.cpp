// SPDX-License-Identifier: MIT
#include "base/cameratext.h"

namespace OrvGui {

namespace {

/// Embeddings, overrides and isolates reorder the text after them. Direction marks, which Arabic
/// and Hebrew names need, do not.
bool changesDirection(QChar character)
{
    const ushort code = character.unicode();
    return (code >= 0x202a && code <= 0x202e) || (code >= 0x2066 && code <= 0x2069);
}

bool isHarmful(QChar character)
{
    switch (character.category()) {
    case QChar::Other_Control:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return changesDirection(character);
    }
}

} // namespace

QString cameraText(const QString &text, int longest)
{
    const QString shown = printable(text.left(longest));
    return shown.size() < text.size() ? QString(shown + QChar(0x2026)) : shown;
}

QString printable(const QString &text)
{
    QString shown = text;
    for (QChar &character : shown) {
        if (isHarmful(character))
            character = QChar(QChar::ReplacementCharacter);
    }
    return shown;
}

QString cameraText(const char *utf8, int longest)
{
    return cameraText(QString::fromUtf8(utf8), longest);
}

QString literally(const QString &text)
{
    return text.isEmpty() ? text : QStringLiteral("<span>%1</span>").arg(text.toHtmlEscaped());
}

} // namespace OrvGui
