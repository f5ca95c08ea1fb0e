// SPDX-License-Identifier: MIT
#include "qtorvdoubleslider.h"
#include "qtorvdoublespinboxval.h"
#include "qtorvgainslider.h"
#include "qtorvslider.h"
#include "qtorvsliderspinbox.h"
#include "qtorvspinbox.h"
#include "qtorvspinboxval.h"

#include <xdotool.h>

#include <QtTest>
#include <QtWidgets>

struct KeyCase
{
    const char *up = nullptr;
    const char *down = nullptr;
    QtOrvSlider::ScaleType scale = QtOrvSlider::ScaleLog10;
    int step = 1; ///< validated if greater than 1
    Qt::LayoutDirection direction = Qt::LeftToRight;
    int minimum = 1;
    int maximum = 1000000;
};
Q_DECLARE_METATYPE(KeyCase)

/** Operates the value widgets as a user does: xdotool sends keys through the X server. */
class TestValueWidgetInput : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void movesByEveryKey_data();
    void movesByEveryKey();
    void dragAfterKeys();
    void tabOrder();
    void popsUpByKeyboard();
    void losingFocusClosesPopUp();

private:
    void show(const QList<QWidget *> &widgets);

    QWidget *window = nullptr;
};

namespace {

// The handle of a horizontal slider at its minimum.
QPoint handleOf(const QSlider *slider)
{
    return QPoint(7, slider->height() / 2);
}

QList<int> numbers(const QSignalSpy &spy)
{
    QList<int> result;
    for (const QVariantList &arguments : spy)
        result << arguments.first().toInt();
    return result;
}

} // namespace

void TestValueWidgetInput::init()
{
    window = new QWidget;
    window->setWindowFlags(Qt::FramelessWindowHint);
    new QVBoxLayout(window);
}

void TestValueWidgetInput::cleanup()
{
    delete window;
}

void TestValueWidgetInput::show(const QList<QWidget *> &widgets)
{
    for (QWidget *widget : widgets)
        window->layout()->addWidget(widget);
    window->setGeometry(100, 300, 600, 300);
    window->show();
    window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window));
    widgets.first()->setFocus();
}

void TestValueWidgetInput::movesByEveryKey_data()
{
    QTest::addColumn<KeyCase>("row");
    const auto log = QtOrvSlider::ScaleLog10;
    const auto root = QtOrvSlider::ScaleSqrt;
    QTest::newRow("log") << KeyCase{"Right", "Left", log};
    QTest::newRow("log, Up and Down") << KeyCase{"Up", "Down", log};
    QTest::newRow("log, mirrored") << KeyCase{"Left", "Right", log, 1, Qt::RightToLeft};
    QTest::newRow("log, on a grid") << KeyCase{"Right", "Left", log, 64};
    QTest::newRow("root, on a coarse grid") << KeyCase{"Right", "Left", root, 30000};
    QTest::newRow("log, ends off the grid")
        << KeyCase{"Right", "Left", log, 134, Qt::LeftToRight, 208, 2778};
    QTest::newRow("root, ends off the grid")
        << KeyCase{"Right", "Left", root, 218, Qt::LeftToRight, 123, 346};
    QTest::newRow("root, by pages") << KeyCase{"Page_Up", "Page_Down", root, 30000};
}

void TestValueWidgetInput::movesByEveryKey()
{
    QFETCH(KeyCase, row);
    auto *slider = new QtOrvSlider(Qt::Horizontal);
    slider->setScaleType(row.scale);
    slider->setRange(row.minimum, row.maximum);
    slider->setSingleStep(row.step);
    slider->setValidate(row.step > 1);
    slider->setLayoutDirection(row.direction);
    show({slider});
    QSignalSpy values(slider, &QtOrvSlider::valueChanged);

    // Key presses in groups, from one end to the other and back.
    for (const bool upward : {true, false}) {
        const int end = upward ? slider->maximum() : slider->minimum();
        for (int burst = 0; burst < 10 && slider->value() != end; ++burst) {
            const int before = slider->value();
            values.clear();
            press(QVector<QString>(100, upward ? row.up : row.down).toList());
            QTRY_VERIFY(slider->value() == end || values.count() == 100);
            int last = before;
            for (const int value : numbers(values)) {
                QVERIFY(upward ? value > last : value < last);
                QVERIFY(qAbs(value - last) >= row.step || value == end ||
                        last == slider->maximum());
                QVERIFY(value >= row.minimum && value <= row.maximum);
                last = value;
            }
            QCOMPARE(slider->value(), last);
        }
        QCOMPARE(slider->value(), end);
    }
}

void TestValueWidgetInput::dragAfterKeys()
{
    auto *slider = new QtOrvSlider(Qt::Horizontal);
    slider->setScaleType(QtOrvSlider::ScaleLog10);
    slider->setRange(0, 1000000);
    show({slider});
    QSignalSpy moved(slider, &QtOrvSlider::sliderMoved);
    press({"Left"});
    point(slider->slider(), handleOf(slider->slider()), {"mousedown", "1"});
    xdotool({"mousemove_relative", "1", "0"});
    QTRY_COMPARE(moved.count(), 1);
    QCOMPARE(slider->slider()->value(), 101); // a second position of the value 0
    xdotool({"mouseup", "1"});
}

void TestValueWidgetInput::tabOrder()
{
    auto *slider = new QtOrvSlider;
    auto *real = new QtOrvDoubleSlider;
    auto *popUp = new QtOrvSpinBox;
    auto *beside = new QtOrvSliderSpinBox;
    auto *gain = new QtOrvGainSlider;
    show({slider, real, popUp, beside, gain});
    QSignalSpy sliderOut(slider, &QtOrvSlider::focusOut);
    QSignalSpy realOut(real, &QtOrvDoubleSlider::focusOut);

    const QList<QWidget *> stops{real->slider(),      popUp->spinBox(),
                                 popUp->toolButton(), beside->slider()->slider(),
                                 beside->spinBox(),   gain->slider()->slider(),
                                 gain->spinBox(),     slider->slider()};
    QCOMPARE(QApplication::focusWidget(), slider->slider());
    for (QWidget *stop : stops) {
        press({"Tab"});
        QTRY_COMPARE(QApplication::focusWidget(), stop);
    }
    for (int i = int(stops.count()) - 2; i >= 0; --i) {
        press({"shift+Tab"});
        QTRY_COMPARE(QApplication::focusWidget(), stops.at(i));
    }
    QCOMPARE(sliderOut.count(), 2);
    QCOMPARE(realOut.count(), 1);
}

void TestValueWidgetInput::popsUpByKeyboard()
{
    auto *widget = new QtOrvSpinBox;
    widget->setValidate(true);
    show({widget});
    QtOrvSlider *slider = widget->slider();
    for (const char *close : {"Escape", "Return", "Tab"}) {
        widget->setValue(50);
        widget->toolButton()->setFocus();
        press({"space"});
        QTRY_COMPARE(QApplication::focusWidget(), slider->slider());
        QVERIFY(slider->isVisible());
        press({"Up", "Up", "Page_Down"});
        QTRY_COMPARE(widget->value(), 42);
        press({close});
        QTRY_VERIFY(!slider->isVisible());
        QTRY_COMPARE(QApplication::focusWidget(), widget->toolButton());
    }
}

void TestValueWidgetInput::losingFocusClosesPopUp()
{
    auto *widget = new QtOrvSpinBox;
    auto *other = new QLineEdit;
    show({widget, other});
    QSignalSpy out(widget->slider(), &QtOrvSlider::focusOut);
    point(widget->toolButton(), widget->toolButton()->rect().center(), {"click", "1"});
    QTRY_COMPARE(QApplication::focusWidget(), widget->slider()->slider());
    QCOMPARE(out.count(), 0);
    window->activateWindow();
    QTRY_VERIFY(!widget->slider()->isVisible());
    QCOMPARE(out.count(), 1);
}

QTEST_MAIN(TestValueWidgetInput)
#include "tst_valuewidgetinput.moc"
