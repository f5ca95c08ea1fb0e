// SPDX-License-Identifier: MIT
#include "gallery.h"

#include "qtorvdoubleslider.h"
#include "qtorvdoublespinboxval.h"
#include "qtorvgainslider.h"
#include "qtorvslider.h"
#include "qtorvsliderspinbox.h"
#include "qtorvspinbox.h"
#include "qtorvspinboxval.h"

#include <QApplication>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLocale>
#include <QPainter>
#include <QStyle>
#include <QToolButton>

namespace {

QPalette darkPalette()
{
    const QColor window(45, 48, 52);
    QPalette palette(QColor(66, 70, 76), window);
    palette.setColor(QPalette::Base, QColor(30, 32, 35));
    palette.setColor(QPalette::Highlight, QColor(61, 133, 198));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, window);
    palette.setColor(QPalette::ToolTipText, Qt::white);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(135, 138, 142));
    return palette;
}

QLocale withoutGroups()
{
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale;
}

QString written(int value)
{
    return withoutGroups().toString(value);
}

QString written(double value)
{
    return withoutGroups().toString(value, 'f', 3);
}

// A label that shows the widget's current value and is wide enough for every value.
template<class Widget, class T>
QLabel *createValueLabel(Widget *widget, void (Widget::*changed)(T))
{
    auto *label = new QLabel;
    label->setAlignment(Qt::AlignCenter);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    const QFontMetrics metrics(font);
    for (const T value : {widget->value(), widget->minimum(), widget->maximum()}) {
        const int width = metrics.boundingRect(written(value)).width();
        label->setMinimumWidth(qMax(label->minimumWidth(), width + metrics.averageCharWidth()));
    }
    label->setText(written(widget->value()));
    QObject::connect(widget, changed, label, [=](T value) { label->setText(written(value)); });
    return label;
}

void addRow(QGridLayout *grid, const QString &caption, QWidget *widget, QLabel *value)
{
    const int row = grid->rowCount();
    auto *label = new QLabel(caption);
    label->setBuddy(widget);
    grid->addWidget(label, row, 0);
    grid->addWidget(widget, row, 1);
    grid->addWidget(value, row, 2);
    grid->setColumnStretch(1, 1);
    grid->setColumnMinimumWidth(1, 10 * label->fontMetrics().height());
}

QVBoxLayout *createColumn(const QString &caption, QWidget *widget, QLabel *value)
{
    auto *label = new QLabel(caption);
    label->setAlignment(Qt::AlignCenter);
    label->setBuddy(widget);
    auto *column = new QVBoxLayout;
    column->addWidget(label);
    column->addWidget(widget, 1, Qt::AlignHCenter);
    widget->setMinimumHeight(9 * label->fontMetrics().height());
    column->addWidget(value);
    return column;
}

struct Scale
{
    QString name;
    QtOrvSlider::ScaleType type;
    int minimum;
    int maximum;
    int value;
};

QList<Scale> scales()
{
    return {{Gallery::tr("Linear"), QtOrvSlider::ScaleLinear, 0, 100, 40},
            {Gallery::tr("Logarithmic"), QtOrvSlider::ScaleLog10, 1, 1000000, 5000},
            {Gallery::tr("Square root"), QtOrvSlider::ScaleSqrt, 0, 10000, 900}};
}

} // namespace

Gallery::Gallery(QWidget *parent) : QWidget(parent)
{
    setWindowTitle(tr("Value widgets"));
    auto *grid = new QGridLayout(this);
    grid->addWidget(createSliders(), 0, 0);
    grid->addWidget(createDoubleSliders(), 0, 1);
    grid->addWidget(createCompounds(), 1, 0);
    grid->addWidget(createSpinBoxes(), 2, 0);
    grid->addWidget(createPopUps(), 1, 1, 2, 1);
    grid->addWidget(createSwitches(), 3, 0, 1, 2);
    grid->setColumnStretch(0, 1);
}

QWidget *Gallery::createSliders()
{
    auto *rows = new QGridLayout;
    auto *columns = new QHBoxLayout;
    for (const Scale &scale : scales()) {
        for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
            auto *slider = new QtOrvSlider(orientation);
            slider->setScaleType(scale.type);
            slider->setRange(scale.minimum, scale.maximum);
            slider->setValue(scale.value);
            QLabel *value = createValueLabel(slider, &QtOrvSlider::valueChanged);
            if (orientation == Qt::Horizontal)
                addRow(rows, scale.name, slider, value);
            else
                columns->addLayout(createColumn(scale.name, slider, value));
        }
    }
    rows->setRowStretch(rows->rowCount(), 1);

    auto *box = new QGroupBox(QStringLiteral("QtOrvSlider"));
    auto *layout = new QHBoxLayout(box);
    layout->addLayout(rows, 1);
    layout->addSpacing(style()->pixelMetric(QStyle::PM_LayoutHorizontalSpacing) * 2);
    layout->addLayout(columns);
    return box;
}

QWidget *Gallery::createDoubleSliders()
{
    auto *rows = new QGridLayout;
    auto *columns = new QHBoxLayout;
    for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
        auto *slider = new QtOrvDoubleSlider(orientation);
        slider->setSingleStep(0.25);
        slider->setRange(-6.0, 24.0);
        slider->setValue(7.5);
        QLabel *value = createValueLabel(slider, &QtOrvDoubleSlider::valueChanged);
        if (orientation == Qt::Horizontal)
            addRow(rows, tr("Steps of 0.25"), slider, value);
        else
            columns->addLayout(createColumn(tr("Steps of 0.25"), slider, value));
    }
    rows->setRowStretch(rows->rowCount(), 1);

    auto *box = new QGroupBox(QStringLiteral("QtOrvDoubleSlider"));
    auto *layout = new QHBoxLayout(box);
    layout->addLayout(rows, 1);
    layout->addLayout(columns);
    return box;
}

QWidget *Gallery::createSpinBoxes()
{
    auto *box = new QGroupBox(QStringLiteral("QtOrvSpinBoxVal, QtOrvDoubleSpinBoxVal"));
    auto *rows = new QGridLayout(box);

    auto *integers = new QtOrvSpinBoxVal;
    integers->setRange(64, 2048);
    integers->setSingleStep(8);
    integers->setValue(640);
    addRow(rows, tr("Steps of 8"), integers,
           createValueLabel(integers, static_cast<void (QtOrvSpinBoxVal::*)(int)>(
                                          &QtOrvSpinBoxVal::valueChanged)));

    auto *numbers = new QtOrvDoubleSpinBoxVal;
    numbers->setDecimals(3);
    numbers->setRange(1.0, 2.0);
    numbers->setSingleStep(0.25);
    numbers->setValue(1.5);
    addRow(rows, tr("Steps of 0.25"), numbers,
           createValueLabel(numbers, static_cast<void (QtOrvDoubleSpinBoxVal::*)(double)>(
                                         &QtOrvDoubleSpinBoxVal::valueChanged)));
    return box;
}

// The first widget has room beside its button, the second one above it.
QWidget *Gallery::createPopUps()
{
    auto *box = new QGroupBox(QStringLiteral("QtOrvSpinBox"));
    auto *column = new QVBoxLayout(box);
    const int unit = fontMetrics().height();
    int captionWidth = 0;
    for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
        auto *widget = new QtOrvSpinBox(orientation);
        widget->setScaleType(QtOrvSlider::ScaleLog10);
        widget->setRange(1, 100000);
        widget->setValue(1234);
        const bool vertical = orientation == Qt::Vertical;
        widget->setLeftLabelText(vertical ? tr("Opens above:") : tr("Opens beside:"));
        captionWidth = qMax(captionWidth, widget->leftLabel()->sizeHint().width());
        auto *row = new QHBoxLayout;
        row->addWidget(createValueLabel(
            widget, static_cast<void (QtOrvSpinBox::*)(int)>(&QtOrvSpinBox::valueChanged)));
        row->addWidget(widget);
        row->addSpacing(12 * unit);
        row->addStretch();
        if (vertical)
            column->addSpacing(12 * unit);
        column->addLayout(row);
        popUps.append(widget);
    }
    for (const QtOrvSpinBox *widget : popUps)
        widget->leftLabel()->setMinimumWidth(captionWidth);
    column->addStretch();
    return box;
}

QWidget *Gallery::createCompounds()
{
    auto *box = new QGroupBox(QStringLiteral("QtOrvSliderSpinBox, QtOrvGainSlider"));
    auto *rows = new QGridLayout(box);
    const int spinBoxWidth = 6 * fontMetrics().height();
    for (const Scale &scale : scales()) {
        auto *widget = new QtOrvSliderSpinBox;
        widget->setScaleType(scale.type);
        widget->setRange(scale.minimum, scale.maximum);
        widget->setValue(scale.value);
        widget->setLeftLabelText(tr("Left label:"));
        widget->spinBox()->setMinimumWidth(spinBoxWidth);
        addRow(rows, scale.name, widget,
               createValueLabel(widget, static_cast<void (QtOrvSliderSpinBox::*)(int)>(
                                            &QtOrvSliderSpinBox::valueChanged)));
    }

    auto *gain = new QtOrvGainSlider;
    gain->setSingleStep(0.5);
    gain->setRange(0.0, 24.0);
    gain->setValue(6.125);
    gain->setTopLabelText(tr("Top label"));
    gain->spinBox()->setMinimumWidth(spinBoxWidth);
    addRow(rows, tr("Gain"), gain,
           createValueLabel(gain, static_cast<void (QtOrvGainSlider::*)(double)>(
                                      &QtOrvGainSlider::valueChanged)));
    return box;
}

QWidget *Gallery::createSwitches()
{
    auto *widget = new QWidget;
    auto *layout = new QHBoxLayout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    const auto addSwitch = [=](const QString &text, void (Gallery::*slot)(bool), bool on) {
        auto *box = new QCheckBox(text);
        box->setChecked(on);
        connect(box, &QCheckBox::toggled, this, slot);
        layout->addWidget(box);
        return box;
    };
    addSwitch(tr("&Snap to steps"), &Gallery::setSnapping, false);
    addSwitch(tr("&Typing counts at once"), &Gallery::setTypingCounts, true);
    addSwitch(tr("&Right to left"), &Gallery::setRightToLeft, false)
        ->setObjectName(QStringLiteral("rightToLeft"));
    addSwitch(tr("&Dark palette"), &Gallery::setDark, false)->setObjectName(QStringLiteral("dark"));
    layout->addStretch();
    return widget;
}

void Gallery::setDark(bool on)
{
    QApplication::setPalette(on ? darkPalette() : style()->standardPalette());
    findChild<QCheckBox *>(QStringLiteral("dark"))->setChecked(on);
}

void Gallery::setRightToLeft(bool on)
{
    QApplication::setLayoutDirection(on ? Qt::RightToLeft : Qt::LeftToRight);
    findChild<QCheckBox *>(QStringLiteral("rightToLeft"))->setChecked(on);
}

// All value widgets have these two properties under the same names.
void Gallery::setSnapping(bool on)
{
    for (QWidget *widget : findChildren<QWidget *>())
        if (widget->property("validate").isValid())
            widget->setProperty("validate", on);
}

void Gallery::setTypingCounts(bool on)
{
    for (QWidget *widget : findChildren<QWidget *>())
        if (widget->property("validateTyping").isValid())
            widget->setProperty("validateTyping", on);
}

QPixmap Gallery::picture()
{
    QPixmap result = grab();
    QPainter painter(&result);
    for (QtOrvSpinBox *widget : popUps) {
        widget->toolButton()->click();
        auto *slider = widget->slider();
        painter.drawPixmap(mapFromGlobal(slider->pos()), slider->grab());
        slider->hide();
    }
    return result;
}
