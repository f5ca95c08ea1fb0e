// SPDX-License-Identifier: MIT
#include "qtorvdoubleslider.h"
#include "qtorvdoublespinboxval.h"
#include "qtorvgainslider.h"
#include "qtorvslider.h"
#include "qtorvsliderspinbox.h"
#include "qtorvspinbox.h"
#include "qtorvspinboxval.h"

#include <QtTest>
#include <QtWidgets>

namespace {

template<class Widget>
using Number = decltype(std::declval<Widget>().value());

template<class Widget>
class ValueSpy : public QSignalSpy
{
public:
    explicit ValueSpy(Widget *widget)
        : QSignalSpy(widget, static_cast<void (Widget::*)(Number<Widget>)>(&Widget::valueChanged))
    {
    }
};

template<class Widget>
QSlider *innerSlider(const Widget &widget)
{
    return widget.slider()->slider();
}

QAccessibleInterface *accessible(QWidget *widget)
{
    return QAccessible::queryAccessibleInterface(widget);
}

} // namespace

class TestCompounds : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void behaveAlike();
    void stepsOfParts();
    void positionsOffTheGrid();
    void keepValuesBetweenPositions();
    void slotMayReplaceTheValue();
    void readOnlyHidesTheButton();
    void hidingEndsADrag();
    void popUpTheSlider();
    void popUpOnTheScreen();
    void secondClickClosesTheSlider();
    void destroyedWithPendingText();
    void accessibility();

private:
    template<class Widget>
    void checkRange();
    template<class Widget>
    void checkDragging();
    template<class Widget>
    void checkCaptions();
    template<class Widget>
    void checkAll();
};

template<class Widget>
void TestCompounds::checkRange()
{
    using T = Number<Widget>;
    Widget widget;
    QSignalSpy ranges(&widget, &Widget::rangeChanged);
    widget.setRange(10, 20);
    QCOMPARE(ranges, (QList<QVariantList>{{T(10), T(20)}}));
    QCOMPARE(widget.spinBox()->minimum(), T(10));
    QCOMPARE(widget.spinBox()->maximum(), T(20));
    QCOMPARE(widget.value(), T(10));
    widget.setRange(10, 20);
    QCOMPARE(ranges.count(), 1);
    widget.setMinimum(12);
    widget.slider()->setMaximum(30);
    QCOMPARE(ranges.last(), (QVariantList{T(12), T(30)}));
    QCOMPARE(widget.spinBox()->maximum(), T(30));
}

template<class Widget>
void TestCompounds::checkDragging()
{
    using T = Number<Widget>;
    Widget widget;
    ValueSpy<Widget> values(&widget);
    QSignalSpy texts(&widget, SIGNAL(valueChanged(QString)));

    innerSlider(widget)->setSliderDown(true);
    for (const int position : {1, 20, 50}) {
        innerSlider(widget)->setSliderPosition(position);
        QCOMPARE(widget.value(), T(position));
    }
    innerSlider(widget)->setSliderDown(false);
    QCOMPARE(values.count() + texts.count(), 0);

    widget.spinBox()->selectAll();
    QTest::keyClicks(widget.spinBox(), "60");
    QCOMPARE(values, (QList<QVariantList>{{T(6)}, {T(60)}}));
    QCOMPARE(texts.last(), QVariantList{QString("60")});
    QCOMPARE(innerSlider(widget)->value(), 60);

    innerSlider(widget)->setValue(61);
    QCOMPARE(values.last(), QVariantList{T(61)});
    QCOMPARE(texts.last(), QVariantList{widget.spinBox()->text()});
    QCOMPARE(values.count(), 3);
}

template<class Widget>
void TestCompounds::checkCaptions()
{
    Widget widget;
    widget.setLeftLabelText("Delay:");
    widget.setTopLabelText("Strobe");
    widget.resize(300, 200);
    widget.show();

    // The left label is left of everything, the top label above everything.
    const QPoint left = widget.leftLabel()->geometry().center();
    const QRect box(widget.spinBox()->geometry());
    QVERIFY(left.x() < box.left() && left.y() > box.top() && left.y() < box.bottom());
    const QRect top = widget.topLabel()->geometry();
    QVERIFY(top.bottom() < box.top() && top.top() > 20);
    QVERIFY(box.bottom() < widget.height() - 20);
    widget.setLeftLabelText(QString());
    QVERIFY(widget.leftLabel()->isHidden());
}

template<class Widget>
void TestCompounds::checkAll()
{
    checkRange<Widget>();
    checkDragging<Widget>();
    checkCaptions<Widget>();
}

void TestCompounds::behaveAlike()
{
    checkAll<QtOrvSpinBox>();
    checkAll<QtOrvSliderSpinBox>();
    checkAll<QtOrvGainSlider>();
}

void TestCompounds::stepsOfParts()
{
    QtOrvSliderSpinBox widget;
    widget.setSingleStep(8);
    // Setting the step that the spin box already has does not change the slider's.
    widget.slider()->setSingleStep(5);
    widget.setSingleStep(8);
    QCOMPARE(widget.slider()->singleStep(), 5);

    QtOrvGainSlider gain;
    gain.setRange(0.0, 1.0);
    gain.setSingleStep(0.25);
    gain.setValue(0.6);
    QCOMPARE(gain.value(), 0.6);
    QCOMPARE(innerSlider(gain)->value(), 2);
    innerSlider(gain)->setValue(3);
    QCOMPARE(gain.value(), 0.75);
}

void TestCompounds::positionsOffTheGrid()
{
    QtOrvSpinBox popUp;
    QtOrvSliderSpinBox beside;
    popUp.setSingleStep(8);
    popUp.setValidate(true);
    beside.setSingleStep(8);
    beside.setValidate(true);

    // Only one of the two rounds the position of the dragged handle to the grid.
    for (QSlider *slider : {innerSlider(popUp), innerSlider(beside)}) {
        slider->setSliderDown(true);
        slider->setSliderPosition(13);
        slider->setSliderDown(false);
    }
    QCOMPARE(popUp.value(), 13);
    QCOMPARE(beside.value(), 16);

    // A click beside the handle: the slider rounds the value and the spin box takes it over.
    ValueSpy<QtOrvSpinBox> values(&popUp);
    innerSlider(popUp)->setValue(26);
    QCOMPARE(popUp.value(), 24);
    QCOMPARE(values, (QList<QVariantList>{{24}}));
}

void TestCompounds::keepValuesBetweenPositions()
{
    QtOrvSliderSpinBox widget;
    widget.setRange(0, 1000000);
    ValueSpy<QtOrvSliderSpinBox> values(&widget);

    widget.setValue(10000);
    for (const auto scale :
         {QtOrvSlider::ScaleSqrt, QtOrvSlider::ScaleLinear, QtOrvSlider::ScaleLog10}) {
        widget.setScaleType(scale);
        QCOMPARE(widget.slider()->scaleType(), scale);
    }
    QCOMPARE(widget.slider()->value(), 9990);
    QCOMPARE(widget.value(), 10000);
    QCOMPARE(values, (QList<QVariantList>{{10000}}));

    // A new range or step moves the handle, but does not change the value.
    widget.setRange(5000, 2000000);
    widget.setSingleStep(50);
    QCOMPARE(widget.value(), 10000);
    QVERIFY(qAbs(widget.slider()->value() - 10000) < 120);
    QCOMPARE(values.count(), 1);
    widget.setMinimum(12345);
    QCOMPARE(widget.value(), 12345);
    QCOMPARE(values, (QList<QVariantList>{{10000}, {12345}}));

    innerSlider(widget)->setValue(400);
    QCOMPARE(widget.value(), widget.slider()->value());
    QCOMPARE(values.last(), QVariantList{widget.value()});
}

// A camera may refuse or round a written value at once.
void TestCompounds::slotMayReplaceTheValue()
{
    QtOrvSliderSpinBox widget;
    QList<int> written;
    connect(&widget,
            static_cast<void (QtOrvSliderSpinBox::*)(int)>(&QtOrvSliderSpinBox::valueChanged),
            &widget, [&](int value) {
                written << value;
                widget.setValue(value - value % 10);
            });
    widget.setValue(47);
    QCOMPARE(widget.value(), 40);
    QCOMPARE(innerSlider(widget)->value(), 40);
    QCOMPARE(written, (QList<int>{47, 40}));
}

void TestCompounds::readOnlyHidesTheButton()
{
    QtOrvSpinBox widget;
    widget.show();
    widget.toolButton()->click();
    QVERIFY(widget.slider()->isVisible());
    widget.setReadOnly(true);
    QVERIFY(widget.isReadOnly() && widget.spinBox()->isReadOnly());
    QVERIFY(!widget.isSliderButtonVisible() && !widget.slider()->isVisible());
    widget.setReadOnly(false);
    QVERIFY(widget.isSliderButtonVisible());
    widget.setSliderButtonVisible(false);
    QVERIFY(!widget.toolButton()->isVisible());
}

// A hidden widget gets no mouse release.
void TestCompounds::hidingEndsADrag()
{
    struct Host : QWidget
    {
        void mouseReleaseEvent(QMouseEvent *) override { ++releases; }
        int releases = 0;
    };
    for (const bool isDrag : {true, false}) {
        Host window;
        QVBoxLayout layout(&window);
        QtOrvGainSlider gain;
        QtOrvSliderSpinBox beside;
        QtOrvSpinBox popUp(Qt::Horizontal);
        for (QWidget *widget : QList<QWidget *>{&gain, &beside, &popUp})
            layout.addWidget(widget);
        window.resize(400, 200);
        window.show();
        popUp.toolButton()->click();
        // The slider is hidden before the groove starts to repeat.
        connect(popUp.slider(), &QtOrvSlider::valueChanged, &popUp,
                [&] { popUp.setReadOnly(true); });

        const QList<QSlider *> held{innerSlider(gain), innerSlider(beside), innerSlider(popUp)};
        for (QSlider *slider : held) {
            const QPoint handle(7, slider->height() / 2);
            const QPoint groove(slider->width() * 3 / 4, slider->height() / 2);
            QTest::mousePress(slider, Qt::LeftButton, Qt::NoModifier, isDrag ? handle : groove);
            QCOMPARE(slider->isSliderDown(), isDrag);
            QCOMPARE(slider->value(), isDrag ? 0 : slider->pageStep());
        }
        popUp.slider()->hide();
        window.hide();
        if (!isDrag)
            QTest::qWait(700); // the groove repeats after half a second
        window.show();
        for (QSlider *slider : held) {
            QVERIFY(!slider->isSliderDown());
            QCOMPARE(slider->value(), isDrag ? 0 : slider->pageStep());
        }

        ValueSpy<QtOrvGainSlider> gains(&gain);
        ValueSpy<QtOrvSliderSpinBox> values(&beside);
        gain.setValue(60);
        beside.setValue(60);
        QCOMPARE(gains.count() + values.count(), 2);
        window.hide();
        window.show();
        QCOMPARE(window.releases, 0); // the host gets no release

        // Locking a slider ends a drag, too.
        QSlider *slider = innerSlider(beside);
        const int y = slider->height() / 2;
        beside.setValue(0);
        QTest::mousePress(slider, Qt::LeftButton, Qt::NoModifier, QPoint(7, y));
        beside.setEnabled(false);
        beside.setEnabled(true);
        QMouseEvent move(QEvent::MouseMove, QPointF(slider->width() / 2, y), Qt::LeftButton,
                         Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(slider, &move);
        QCOMPARE(beside.value(), 0);
    }
}

void TestCompounds::popUpTheSlider()
{
    QWidget window;
    QtOrvSpinBox widget(Qt::Horizontal, &window);
    widget.move(300, 300);
    window.show();
    QtOrvSlider *slider = widget.slider();

    const auto corner = [&] { return widget.toolButton()->mapToGlobal(QPoint(0, 0)); };
    widget.toolButton()->click();
    QVERIFY(slider->isVisible());
    QVERIFY(slider->width() > slider->height());
    QCOMPARE(slider->pos(), corner() + QPoint(widget.toolButton()->width(), 0));
    slider->hide();

    widget.setLayoutDirection(Qt::RightToLeft);
    QCoreApplication::sendPostedEvents();
    widget.toolButton()->click();
    QCOMPARE(slider->pos(), corner() - QPoint(slider->width(), 0));
    QVERIFY(slider->slider()->isRightToLeft());
    slider->hide();

    widget.setSliderOrientation(Qt::Vertical);
    widget.resizeSlider(80, 240);
    widget.toolButton()->click();
    QCOMPARE(slider->size(), QSize(80, 240));
    QCOMPARE(slider->pos(), corner() - QPoint(0, 240));
    widget.setEnabled(false);
    QVERIFY(!slider->isVisible());
}

void TestCompounds::popUpOnTheScreen()
{
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
        for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            QtOrvSpinBox widget(orientation);
            widget.setWindowFlags(Qt::FramelessWindowHint);
            widget.setLayoutDirection(direction);
            widget.show();
            const QPoint last = screen.bottomRight() - widget.rect().bottomRight();
            for (const QPoint corner : {screen.topLeft(), QPoint(last.x(), screen.top()),
                                        QPoint(screen.left(), last.y()), last}) {
                widget.move(corner);
                widget.toolButton()->click();
                const QRect slider(widget.slider()->pos(), widget.slider()->size());
                QVERIFY(screen.contains(slider));
                QVERIFY(!slider.intersects(widget.rect().translated(corner).adjusted(0, 3, 0, -3)));
                widget.slider()->hide();
            }
        }
    }
}

void TestCompounds::secondClickClosesTheSlider()
{
    QtOrvSpinBox widget;
    widget.show();
    QToolButton *button = widget.toolButton();
    const auto click = [=] { QTest::mouseClick(button, Qt::LeftButton); };
    click();
    QVERIFY(widget.slider()->isVisible());
    click();
    QVERIFY(!widget.slider()->isVisible());

    // A window manager may remove the focus from the slider before it delivers the click.
    click();
    QCursor::setPos(button->mapToGlobal(button->rect().center()));
    QFocusEvent out(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    QCoreApplication::sendEvent(innerSlider(widget), &out);
    QVERIFY(!widget.slider()->isVisible());
    click();
    QVERIFY(!widget.slider()->isVisible());
    click();
    QVERIFY(widget.slider()->isVisible());
}

// Losing the focus commits typed text, and destroying a widget removes its focus.
void TestCompounds::destroyedWithPendingText()
{
    auto *widget = new QtOrvSliderSpinBox;
    widget->spinBox()->setKeyboardTracking(false);
    widget->show();
    widget->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(widget));
    widget->spinBox()->setFocus();
    widget->spinBox()->selectAll();
    QTest::keyClicks(widget->spinBox(), "50");
    QCOMPARE(widget->value(), 0);

    QObject context;
    const auto *box = widget->spinBox();
    int taken = 0;
    int announced = 0;
    connect(box, static_cast<void (QSpinBox::*)(int)>(&QSpinBox::valueChanged), &context,
            [&](int value) { taken = value; });
    connect(widget,
            static_cast<void (QtOrvSliderSpinBox::*)(int)>(&QtOrvSliderSpinBox::valueChanged),
            &context, [&](int value) { announced = value; });
    delete widget;
    QCOMPARE(taken, 50);
    QCOMPARE(announced, 0);
}

// The widget and its focused part have the same accessible texts, and the part changes the widget's
// value.
void TestCompounds::accessibility()
{
    QtOrvSlider slider;
    slider.setScaleType(QtOrvSlider::ScaleLog10);
    slider.setRange(1, 1000);
    QtOrvDoubleSlider real;
    QtOrvSpinBox spinBox;
    spinBox.setLeftLabelText("Width");
    QtOrvSliderSpinBox sliderSpinBox;
    sliderSpinBox.setTopLabelText("Width");
    QtOrvGainSlider gain;
    QtOrvSpinBoxVal box;
    QtOrvDoubleSpinBoxVal realBox;
    for (QWidget *widget : QList<QWidget *>{&slider, &real, &gain, &box, &realBox})
        widget->setAccessibleName("Width");

    const QList<QPair<QWidget *, QWidget *>> parts{{&slider, slider.slider()},
                                                   {&real, real.slider()},
                                                   {&spinBox, spinBox.spinBox()},
                                                   {&spinBox, spinBox.slider()->slider()},
                                                   {&sliderSpinBox, sliderSpinBox.spinBox()},
                                                   {&sliderSpinBox, sliderSpinBox.slider()},
                                                   {&gain, gain.spinBox()},
                                                   {&gain, gain.slider()->slider()},
                                                   {&box, &box},
                                                   {&realBox, &realBox}};
    for (const auto &part : parts) {
        const QByteArray type = part.first->metaObject()->className();
        for (QWidget *widget : {part.first, part.second}) {
            QAccessibleInterface *interface = accessible(widget);
            QCOMPARE(interface->text(QAccessible::Name), QString("Width"));
            QVERIFY2(interface->valueInterface(), type);
            interface->valueInterface()->setCurrentValue(20);
            QCOMPARE(part.first->property("value").toInt(), 20);
            QCOMPARE(interface->valueInterface()->currentValue().toInt(), 20);
            QVERIFY(interface->text(QAccessible::Value).startsWith("20"));
            QCOMPARE(interface->valueInterface()->maximumValue(), part.first->property("maximum"));
            interface->valueInterface()->setCurrentValue(10);
        }
    }
    QCOMPARE(accessible(slider.slider())->role(), QAccessible::Slider);
    QCOMPARE(accessible(gain.spinBox())->role(), QAccessible::SpinBox);
    QAccessibleTextInterface *text = accessible(gain.spinBox())->textInterface();
    QVERIFY(text);
    QCOMPARE(text->text(0, text->characterCount()), QString("10.000"));
    QVERIFY(!accessible(spinBox.toolButton())->text(QAccessible::Name).isEmpty());
}

QTEST_MAIN(TestCompounds)
#include "tst_compounds.moc"
