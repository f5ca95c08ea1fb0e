// SPDX-License-Identifier: MIT
#include "widgets/qtorvspinbox.h"

#include "widgets/qtorvspinboxval.h"
#include "widgets/valueaccessibility.h"
#include "widgets/valuepair.h"

#include <QBoxLayout>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QToolButton>

#include <utility>

namespace {

/// The available area of the screen that contains the point.
QRect screenAt(const QPoint &point)
{
    const QList<QScreen *> screens = QGuiApplication::screens();
    for (const QScreen *screen : screens) {
        if (screen->geometry().contains(point))
            return screen->availableGeometry();
    }
    return QGuiApplication::primaryScreen()->availableGeometry();
}

/// Window managers do not focus tool tips, so the window must bypass the window manager. A Wayland
/// compositor focuses popups only, and windows cannot grab the focus.
Qt::WindowFlags sliderWindowFlags()
{
    if (QGuiApplication::platformName().startsWith(QLatin1String("wayland")))
        return Qt::Popup;
    return Qt::ToolTip | Qt::BypassWindowManagerHint;
}

bool canBeActivated(const QWidget &slider)
{
    return slider.windowType() != Qt::Popup;
}

} // namespace

class QtOrvSpinBoxPrivate : public QObject,
                            public ValuePair<QtOrvSpinBox, QtOrvSpinBoxVal, QtOrvSlider, int>
{
public:
    QtOrvSpinBoxPrivate(QtOrvSpinBox *q, Qt::Orientation orientation);

    void toggleSlider();
    void openSlider();
    void closeSlider();
    QSize suitableSliderSize() const;
    QPoint sliderCorner() const;
    bool isUnderMouse() const;
    bool eventFilter(QObject *watched, QEvent *event) override;

    QToolButton *const button;
    bool sliderSized = false;
    QElapsedTimer sinceFocusOut; // of the slider, by a press on the button
    bool isClosingClick = false;
};

QtOrvSpinBoxPrivate::QtOrvSpinBoxPrivate(QtOrvSpinBox *q, Qt::Orientation orientation)
    : ValuePair(q, new QtOrvSlider(orientation, q)), button(new QToolButton(q))
{
    button->setObjectName(QStringLiteral("button"));
    button->setText(QStringLiteral("^"));
    button->setToolTip(QtOrvSpinBox::tr("Show a slider"));
    button->setAccessibleName(button->toolTip());
    connect(button, &QToolButton::clicked, this, &QtOrvSpinBoxPrivate::toggleSlider);
    button->installEventFilter(this);

    auto *inner = new QHBoxLayout;
    inner->setObjectName(QStringLiteral("layoutHH"));
    inner->setContentsMargins(0, 0, 0, 0);
    inner->setSpacing(0);
    inner->addWidget(spinBox, 1);
    inner->addWidget(button, 0);
    row->addLayout(inner, 1);

    // Set before the slider becomes a window: Qt 6 inserts a widget that gets a focus proxy before
    // its first child in the tab order, which must not be in another window.
    q->setFocusProxy(spinBox);

    slider->setWindowFlags(sliderWindowFlags());
    slider->setAttribute(Qt::WA_WindowPropagation);
    slider->setFrameStyle(int(QFrame::Panel) | QFrame::Raised);
    slider->setLineWidth(2);
    connect(slider, &QtOrvSlider::focusOut, this, [this] {
        if (isUnderMouse())
            sinceFocusOut.start();
        slider->hide();
    });
    slider->installEventFilter(this);
    q->installEventFilter(this);

    spinBox->setRange(slider->minimum(), slider->maximum());
    join([](QtOrvSpinBoxVal *box, int value) { box->QSpinBox::setValue(value); });
}

void QtOrvSpinBoxPrivate::toggleSlider()
{
    const bool wasClosed = std::exchange(isClosingClick, false);
    if (slider->isVisible())
        closeSlider();
    else if (!wasClosed)
        openSlider();
}

void QtOrvSpinBoxPrivate::openSlider()
{
    slider->setLayoutDirection(button->layoutDirection());
    if (!sliderSized)
        slider->resize(suitableSliderSize());
    slider->move(sliderCorner()); // compositors read the position only once
    slider->show();
    slider->move(sliderCorner()); // again, with the final size
    if (canBeActivated(*slider))
        slider->activateWindow();
    slider->setFocus(Qt::PopupFocusReason);
}

void QtOrvSpinBoxPrivate::closeSlider()
{
    slider->hide();
    sinceFocusOut.invalidate();
    if (canBeActivated(*slider))
        button->activateWindow();
    button->setFocus(Qt::PopupFocusReason);
}

QSize QtOrvSpinBoxPrivate::suitableSliderSize() const
{
    const int length = 10 * slider->fontMetrics().height();
    return slider->sizeHint().expandedTo(slider->orientation() == Qt::Vertical ? QSize(0, length)
                                                                               : QSize(length, 0));
}

QPoint QtOrvSpinBoxPrivate::sliderCorner() const
{
    const QRect anchor(button->mapToGlobal(QPoint(0, 0)), button->size());
    const QRect screen = screenAt(anchor.center());
    const QPoint first = screen.topLeft();
    const QPoint last = screen.bottomRight() + QPoint(1 - slider->width(), 1 - slider->height());
    const int above = anchor.top() - slider->height();
    const int below = anchor.bottom() + 1;
    const int beside =
        button->isRightToLeft() ? anchor.left() - slider->width() : anchor.right() + 1;

    QPoint corner(beside, anchor.top());
    if (slider->orientation() == Qt::Vertical)
        corner = QPoint(anchor.left(), above >= first.y() ? above : below);
    else if (beside < first.x() || beside > last.x())
        corner.setY(below <= last.y() ? below : above); // the number is on the other side
    return QPoint(qMax(first.x(), qMin(corner.x(), last.x())),
                  qMax(first.y(), qMin(corner.y(), last.y())));
}

bool QtOrvSpinBoxPrivate::isUnderMouse() const
{
    return button->rect().contains(button->mapFromGlobal(QCursor::pos()));
}

bool QtOrvSpinBoxPrivate::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == slider && event->type() == QEvent::KeyPress) {
        switch (static_cast<QKeyEvent *>(event)->key()) {
        case Qt::Key_Escape:
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
            closeSlider();
            return true;
        default:
            break;
        }
    }
    // The press has moved the focus, which has closed the slider already.
    const bool isPress =
        event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick;
    if (watched == button && isPress) {
        isClosingClick = sinceFocusOut.isValid() && !sinceFocusOut.hasExpired(200);
        sinceFocusOut.invalidate();
    }
    const bool gone = event->type() == QEvent::Hide ||
                      (event->type() == QEvent::EnabledChange && !spinBox->isEnabled());
    if (watched != slider && gone)
        slider->hide();
    return QObject::eventFilter(watched, event);
}

QtOrvSpinBox::QtOrvSpinBox(QWidget *parent) : QtOrvSpinBox(Qt::Vertical, parent) {}

QtOrvSpinBox::QtOrvSpinBox(Qt::Orientation sliderOrientation, QWidget *parent)
    : QWidget(parent), d(new QtOrvSpinBoxPrivate(this, sliderOrientation))
{
    ValueAccessibility::install();
}

QtOrvSpinBox::~QtOrvSpinBox() = default;

void QtOrvSpinBox::setValue(int value)
{
    d->spinBox->setValue(value);
}

int QtOrvSpinBox::value() const
{
    return d->spinBox->value();
}

void QtOrvSpinBox::setScaleType(QtOrvSlider::ScaleType type)
{
    d->setScaleType(type);
}

QtOrvSlider::ScaleType QtOrvSpinBox::scaleType() const
{
    return d->slider->scaleType();
}

void QtOrvSpinBox::setRange(int min, int max)
{
    d->setRange(min, max);
}

void QtOrvSpinBox::setMinimum(int min)
{
    d->setRange(min, maximum());
}

void QtOrvSpinBox::setMaximum(int max)
{
    d->setRange(minimum(), max);
}

int QtOrvSpinBox::minimum() const
{
    return d->slider->minimum();
}

int QtOrvSpinBox::maximum() const
{
    return d->slider->maximum();
}

void QtOrvSpinBox::setSingleStep(int step)
{
    d->setSingleStep(step);
}

int QtOrvSpinBox::singleStep() const
{
    return d->spinBox->singleStep();
}

void QtOrvSpinBox::setValidate(bool on)
{
    d->setValidate(on);
}

bool QtOrvSpinBox::validate() const
{
    return d->spinBox->validate();
}

void QtOrvSpinBox::setValidateTyping(bool on)
{
    d->spinBox->setValidateTyping(on);
}

bool QtOrvSpinBox::validateTyping() const
{
    return d->spinBox->validateTyping();
}

void QtOrvSpinBox::setSliderButtonVisible(bool visible)
{
    d->button->setVisible(visible);
}

bool QtOrvSpinBox::isSliderButtonVisible() const
{
    return !d->button->isHidden();
}

void QtOrvSpinBox::resizeSlider(int w, int h)
{
    resizeSlider(QSize(w, h));
}

void QtOrvSpinBox::resizeSlider(const QSize &size)
{
    d->sliderSized = true;
    d->slider->resize(size);
}

void QtOrvSpinBox::setSliderOrientation(Qt::Orientation orientation)
{
    d->slider->setOrientation(orientation);
}

Qt::Orientation QtOrvSpinBox::sliderOrientation() const
{
    return d->slider->orientation();
}

void QtOrvSpinBox::setReadOnly(bool readOnly)
{
    d->spinBox->setReadOnly(readOnly);
    d->button->setVisible(!readOnly);
    if (readOnly)
        d->slider->hide();
}

bool QtOrvSpinBox::isReadOnly() const
{
    return d->spinBox->isReadOnly();
}

void QtOrvSpinBox::setLeftLabelText(const QString &text)
{
    d->setLeftText(text);
}

void QtOrvSpinBox::setTopLabelText(const QString &text)
{
    d->setTopText(text);
}

QString QtOrvSpinBox::leftLabelText() const
{
    return d->leftText();
}

QString QtOrvSpinBox::topLabelText() const
{
    return d->topText();
}

QLabel *QtOrvSpinBox::leftLabel() const
{
    return d->leftLabel;
}

QLabel *QtOrvSpinBox::topLabel() const
{
    return d->topLabel;
}

QtOrvSpinBoxVal *QtOrvSpinBox::spinBox() const
{
    return d->spinBox;
}

QtOrvSlider *QtOrvSpinBox::slider() const
{
    return d->slider;
}

QToolButton *QtOrvSpinBox::toolButton() const
{
    return d->button;
}
