// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QPixmap>
#include <QWidget>

class QGridLayout;
class QtOrvSpinBox;

/**
 * Shows every value widget in every orientation and scale, each with its value beside it, and
 * switches for their common properties.
 */
class Gallery : public QWidget
{
    Q_OBJECT

public:
    explicit Gallery(QWidget *parent = nullptr);

    /** A picture of all widgets, with the pop-up sliders at their positions. */
    QPixmap picture();

public Q_SLOTS:
    void setDark(bool on);
    void setRightToLeft(bool on);
    void setSnapping(bool on);
    void setTypingCounts(bool on);

private:
    QWidget *createSliders();
    QWidget *createDoubleSliders();
    QWidget *createSpinBoxes();
    QWidget *createPopUps();
    QWidget *createCompounds();
    QWidget *createSwitches();

    QList<QtOrvSpinBox *> popUps;
};
