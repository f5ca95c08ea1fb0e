// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVector>

/// The messages of a Qt Linguist file.
struct TranslationFile
{
    struct Message
    {
        QString context;
        QString source;
        QString translation;
        bool isFinished;
    };

    explicit TranslationFile(const QString &fileName);

    QVector<Message> messages;
};
