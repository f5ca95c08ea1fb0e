// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>
#include <QVector>
#include <QXmlStreamReader>

/// Reads the messages of a Qt Linguist file.
struct TranslationFile
{
    struct Message
    {
        QString context;
        QString source;
        QString translation;
        bool isFinished;
    };

    explicit TranslationFile(const QString &fileName)
    {
        QFile file(fileName);
        if (!file.open(QIODevice::ReadOnly))
            qFatal("cannot read %s", qPrintable(fileName));
        QXmlStreamReader xml(&file);
        QString context;
        while (!xml.atEnd()) {
            if (xml.readNext() != QXmlStreamReader::StartElement)
                continue;
            if (xml.name() == QLatin1String("name")) {
                context = readText(xml);
            } else if (xml.name() == QLatin1String("source")) {
                messages.append({context, readText(xml), QString(), false});
            } else if (xml.name() == QLatin1String("translation") && !messages.isEmpty()) {
                messages.last().isFinished = !xml.attributes().hasAttribute("type");
                messages.last().translation = readText(xml);
            }
        }
        if (xml.hasError())
            qFatal("%s: %s", qPrintable(fileName), qPrintable(xml.errorString()));
    }

    QVector<Message> messages;

private:
    /// The element's text. Characters that XML cannot represent are written as `<byte
    /// value="xd"/>`.
    static QString readText(QXmlStreamReader &xml)
    {
        QString text;
        while (xml.readNext() != QXmlStreamReader::EndElement && !xml.atEnd()) {
            if (xml.isCharacters()) {
                text += xml.text();
            } else if (xml.isStartElement()) {
                text += QChar(xml.attributes().value("value").mid(1).toInt(nullptr, 16));
                xml.skipCurrentElement();
            }
        }
        return text;
    }
};
