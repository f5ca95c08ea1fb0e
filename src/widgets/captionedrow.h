// SPDX-License-Identifier: MIT
#pragma once

class QHBoxLayout;
class QLabel;
class QString;
class QVBoxLayout;
class QWidget;

/**
 * The layout of a compound widget: a row of parts, with a caption to the left of it and one above.
 *
 * The captions come into being with their first text and hide while they have none.
 */
struct CaptionedRow
{
    explicit CaptionedRow(QWidget *widget);

    void setLeftText(const QString &text);
    void setTopText(const QString &text);
    QString leftText() const;
    QString topText() const;

    QVBoxLayout *column;
    QHBoxLayout *row;
    QLabel *leftLabel = nullptr;
    QLabel *topLabel = nullptr;
};
