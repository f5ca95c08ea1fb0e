// SPDX-License-Identifier: MIT
#pragma once

class QHBoxLayout;
class QLabel;
class QString;
class QVBoxLayout;
class QWidget;

/**
 * The layout of a compound widget: a row of widgets, with captions to its left and above.
 *
 * A caption is created with its first text, and hidden while its text is empty.
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
