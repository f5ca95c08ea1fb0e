// SPDX-License-Identifier: MIT
#include "camconfigtestsupport.h"

#include <memorynodemap.h>
#include <orvcamconfigcolordialog.h>
#include <orvcamconfigoutputdialog.h>
#include <orvcamconfigpulsedialog.h>
#include <orvcamconfigstrobedialog.h>
#include <orvcamconfigtriggerdialog.h>
#include <qtorvslider.h>
#include <qtorvsliderspinbox.h>
#include <qtorvspinbox.h>
#include <qtorvspinboxval.h>

#include <QScreen>
#include <QWindow>

using namespace OrvGui;
using OrvSimulation::SimulatedCamera;

namespace {

enum Which { Strobe, Output, Color, Trigger, Pulse };

const auto all = {Strobe, Output, Color, Trigger, Pulse};

struct Control
{
    Which dialog;
    const char *name;
    const char *feature;
};

/// In tab order.
const Control controls[] = {
    {Strobe, "cmBoxStrobe1Mode", "Strobe1Mode"},
    {Strobe, "cmBoxStrobe1Ref", "Strobe1Reference"},
    {Strobe, "spBoxStrobe1Delay", "Strobe1Delay"},
    {Strobe, "spBoxStrobe1Width", "Strobe1Width"},
    {Strobe, "cmBoxStrobe2Mode", "Strobe2Mode"},
    {Strobe, "cmBoxStrobe2Ref", "Strobe2Reference"},
    {Strobe, "spBoxStrobe2Delay", "Strobe2Delay"},
    {Strobe, "spBoxStrobe2Width", "Strobe2Width"},
    {Strobe, "cmBoxOut1Polarity", "OUT1Polarity"},
    {Strobe, "cmBoxOut1Selector", "OUT1Selector"},
    {Strobe, "cmBoxOut2Polarity", "OUT2Polarity"},
    {Strobe, "cmBoxOut2Selector", "OUT2Selector"},

    {Output, "cmBoxTaps", "SensorADCBitDepth11"},
    {Output, "cmBoxDepth", "SensorADCBitDepth"},
    {Output, "cmBoxPixelFormat", "PixelFormat"},
    {Output, "chBoxEnableLut", "LUTEnable"},
    {Output, "cmBoxLut", "LUTSelector"},
    {Output, "cmBoxDpc", "DefectPixelCorrection"},
    {Output, "spBoxDpcDynThres", "DefectPixelThreshold"},
    {Output, "cmBoxHpc", "HotPixelCorrection"},
    {Output, "spBoxHpcDynThres", "HotPixelThreshold"},
    {Output, "chBoxHorMirror", "ReverseX"},
    {Output, "chBoxVerMirror", "ReverseY"},
    {Output, "cmBoxTestMode", "TestImageSelector"},

    {Color, "cmBoxWhiteBalance", "BalanceWhiteAuto"},
    {Color, "cmBoxTrackingSpeed", "AutoTrackingSpeed"},
    {Color, "spBoxRed", "RedCoefficient"},
    {Color, "spBoxGreen", "GreenCoefficient"},
    {Color, "spBoxBlue", "BlueCoefficient"},

    {Trigger, "cmBoxTriggerSource", "TriggerSource"},
    {Trigger, "cmBoxTriggerEdge", "TriggerActivation"},
    {Trigger, "cmBoxTriggerDebounce", "TriggerDebounce"},

    {Pulse, "cmBoxGranularity", "PulseGenGranularity"},
    {Pulse, "spBoxPeriod", "PulseGenPeriod"},
    {Pulse, "spBoxWidth", "PulseGenWidth"},
    {Pulse, "spBoxNumPulses", "PulseGenNumPulses"},
};

/// The simulated camera, with all functions switched on that the controls depend on, and optionally
/// without one feature.
struct Camera : SimulatedDevice
{
    explicit Camera(const QByteArray &missing = QByteArray())
    {
        set("TriggerMode", "On");
        set("PulseGenMode", "Burst");
        set("DefectPixelCorrection", "Dynamic");
        set("HotPixelCorrection", "Dynamic");
        device.part.missing = {missing};
        m_before = SimulatedDevice::writes();
    }

    /// The number of writes since the constructor.
    int writes() const { return int(SimulatedDevice::writes() - m_before); }

private:
    quint64 m_before;
};

std::unique_ptr<OrvCamConfigDialog> open(Which which, OrvCam::Device *device)
{
    std::unique_ptr<OrvCamConfigDialog> dialog;
    switch (which) {
    case Strobe:
        dialog = std::make_unique<OrvCamConfigStrobeDialog>(device);
        break;
    case Output:
        dialog = std::make_unique<OrvCamConfigOutputDialog>(device);
        break;
    case Color:
        dialog = std::make_unique<OrvCamConfigColorDialog>(device);
        break;
    case Trigger:
        dialog = std::make_unique<OrvCamConfigTriggerDialog>(device);
        break;
    case Pulse:
        dialog = std::make_unique<OrvCamConfigPulseDialog>(device);
        break;
    }
    dialog->show();
    dialog->activateWindow();
    if (!QTest::qWaitForWindowActive(dialog.get()))
        qFatal("The dialog does not become active");
    return dialog;
}

QString textOf(const std::unique_ptr<OrvCamConfigDialog> &dialog, const QByteArray &label)
{
    return part<QLabel>(*dialog, label)->text();
}

/// The value in the form in which the feature writes it.
QString shown(QWidget *widget)
{
    if (auto *combo = qobject_cast<QComboBox *>(widget))
        return combo->currentText();
    if (auto *check = qobject_cast<QCheckBox *>(widget))
        return check->isChecked() ? QStringLiteral("1") : QStringLiteral("0");
    return widget->property("value").toString();
}

/// Edits a control to another value with keyboard and mouse.
void edit(QWidget *widget)
{
    if (auto *combo = qobject_cast<QComboBox *>(widget)) {
        const int before = combo->currentIndex();
        QTest::keyClick(combo, Qt::Key_Down);
        if (combo->currentIndex() == before)
            QTest::keyClick(combo, Qt::Key_Up);
    } else if (qobject_cast<QCheckBox *>(widget)) {
        click(widget);
    } else {
        type(widget, QStringLiteral("777"));
    }
}

/// A control near the end of the dialog.
const char *lastOf(Which which)
{
    const char *name = nullptr;
    for (const Control &control : controls) {
        if (control.dialog == which)
            name = control.name;
    }
    return which == Pulse ? "radioBtnContinious" : name;
}

QImage pictureOf(const std::unique_ptr<OrvCamConfigDialog> &dialog)
{
    return part<QLabel>(*dialog, "lblStrobeImage")->property("pixmap").value<QPixmap>().toImage();
}

QImage resource(const char *name)
{
    const QImage image(QStringLiteral(":/images/res/%1.bmp").arg(QLatin1String(name)));
    if (image.isNull())
        qFatal("There is no picture %s", name);
    return QPixmap::fromImage(image).toImage();
}

} // namespace

Q_DECLARE_METATYPE(const Control *)

class TestStrobeOutputColor : public QObject
{
    Q_OBJECT

private slots:
    void changesGoBothWays_data();
    void changesGoBothWays();
    void disabledWithoutCamera();
    void closingIsSignalled();
    void tabOrder();

    void pictureShowsReferences();
    void pictureFollowsColoursAndFont();
    void fitsASmallScreen();

    void missingCoefficientDisablesControls();
    void unityButtons();
    void automaticWhiteBalance();
    void statisticsOfOtherCamera();
};

void TestStrobeOutputColor::changesGoBothWays_data()
{
    QTest::addColumn<const Control *>("control");
    for (const Control &control : controls)
        QTest::newRow(control.name) << &control;
}

void TestStrobeOutputColor::changesGoBothWays()
{
    QFETCH(const Control *, control);
    Camera camera;
    const auto dialog = open(control->dialog, &camera.device);
    dialog->SetDevice(&camera.device); // a second call must not bind anything twice
    QWidget *widget = part(*dialog, control->name);
    QVERIFY(widget->isEnabled());
    const QString before = camera.get(control->feature);
    QCOMPARE(shown(widget), before);
    QCOMPARE(camera.writes(), 0);

    edit(widget);
    const QString edited = camera.get(control->feature);
    QVERIFY(edited != before);
    QCOMPARE(shown(widget), edited);
    QCOMPARE(camera.writes(), 1);

    camera.set(control->feature, before.toLatin1());
    QCOMPARE(shown(widget), before);
    QCOMPARE(camera.get(control->feature), before);
    QTest::qWait(5);
    QCOMPARE(camera.writes(), 2); // the one above, and no reply by the dialog
}

// Only the controls of the missing coefficient are disabled.
void TestStrobeOutputColor::missingCoefficientDisablesControls()
{
    for (const char *color : {"Red", "Green", "Blue"}) {
        Camera camera(QByteArray(color) + "Coefficient");
        const auto dialog = open(Color, &camera.device);
        for (const QByteArray other : {"Red", "Green", "Blue"}) {
            for (const char *name : {"spBox%1", "pushBtn%1Unity"}) {
                const QByteArray control = QByteArray(name).replace("%1", other);
                QVERIFY2(part(*dialog, control)->isEnabled() == (other != color), control);
            }
        }
        QCOMPARE(part(*dialog, "grBoxStatistics")->isEnabled(), QByteArray(color) != "Red");
    }
}

void TestStrobeOutputColor::disabledWithoutCamera()
{
    Camera camera;
    for (Which which : all) {
        const auto dialog = open(which, nullptr);
        QVERIFY(!dialog->isEnabled());
        dialog->SetDevice(&camera.device);
        QVERIFY(dialog->isEnabled());
        camera.device.error = OrvCam::Success - 7;
        dialog->SetDevice(&camera.device);
        QVERIFY(!dialog->isEnabled());
        camera.device.error = OrvCam::Success;

        // First the parameters are not available, then the device is closed.
        OrvGenApi::MemoryNodeMap nothing;
        NodeMapDevice gone(nothing);
        dialog->SetDevice(&gone);
        QVERIFY(dialog->isEnabled());
        gone.Release();
        dialog->SetDevice(&gone);
        QVERIFY(!dialog->isEnabled());
    }
}

void TestStrobeOutputColor::closingIsSignalled()
{
    Camera camera;
    for (Which which : all) {
        auto dialog = open(which, &camera.device);
        QSignalSpy closings(dialog.get(), &OrvCamConfigDialog::closing);
        int expected = 0;
        for (bool escape : {false, true, false}) {
            dialog->show();
            if (escape)
                QTest::keyClick(dialog.get(), Qt::Key_Escape);
            else
                dialog->close();
            QVERIFY(!dialog->isVisible());
            QCOMPARE(closings.size(), ++expected);
        }
        dialog->reject(); // no effect on a closed dialog
        QCOMPARE(closings.size(), expected);

        // Return commits numbers; it neither closes the dialog nor presses a button.
        dialog->show();
        QTest::keyClick(dialog.get(), Qt::Key_Return);
        QVERIFY(dialog->isVisible());
        QCOMPARE(camera.writes(), 0);

        // A host may destroy the dialog in a slot of the signal.
        connect(dialog.get(), &OrvCamConfigDialog::closing, [&] { dialog.reset(); });
        dialog->close();
        QVERIFY(!dialog);
    }
}

void TestStrobeOutputColor::tabOrder()
{
    Camera camera;
    for (Which which : {Strobe, Output, Color}) {
        QStringList expected;
        for (const Control &control : controls) {
            if (control.dialog == which)
                expected << QLatin1String(control.name);
        }
        const auto dialog = open(which, &camera.device);
        part(*dialog, expected.first().toLatin1())->setFocus();
        QStringList visited;
        for (int presses = 0; presses < 40; ++presses) {
            QWidget *widget = dialog->focusWidget();
            while (widget && !expected.contains(widget->objectName()))
                widget = widget->parentWidget();
            const QString name = widget ? widget->objectName() : QString(); // Unity
            if (!name.isEmpty() && visited.value(visited.size() - 1) != name) {
                if (name == visited.value(0))
                    break;
                visited << name;
            }
            QTest::keyClick(dialog->focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(visited, expected);
    }
}

void TestStrobeOutputColor::pictureShowsReferences()
{
    Camera camera;
    auto dialog = open(Strobe, &camera.device);
    for (const auto *spinBox : dialog->findChildren<QtOrvSliderSpinBox *>())
        QCOMPARE(spinBox->slider()->scaleType(), QtOrvSlider::ScaleLog10);
    QCOMPARE(pictureOf(dialog), resource("strobe1Exp_strobe2Read"));
    QTest::keyClick(part(*dialog, "cmBoxStrobe1Ref"), Qt::Key_Down);
    QCOMPARE(pictureOf(dialog), resource("strobeBothRead"));
    QTest::keyClick(part(*dialog, "cmBoxStrobe2Ref"), Qt::Key_Up);
    QCOMPARE(pictureOf(dialog), resource("strobe1Read_strobe2Exp"));
    camera.set("Strobe1Reference", "ExposureStart");
    QCOMPARE(pictureOf(dialog), resource("strobeBothExp"));
    camera.set("Strobe2Reference", "ReadoutStart");
    QCOMPARE(pictureOf(dialog), resource("strobe1Exp_strobe2Read"));

    // If the camera lacks a reference, the picture does not change.
    camera.device.part.missing = {"Strobe2Reference"};
    dialog->SetDevice(&camera.device);
    camera.set("Strobe1Reference", "ReadoutStart");
    QCOMPARE(part<QComboBox>(*dialog, "cmBoxStrobe1Ref")->currentText(),
             QStringLiteral("ReadoutStart"));
    QCOMPARE(pictureOf(dialog), resource("strobe1Exp_strobe2Read"));
    camera.device.part.missing = {"Strobe1Reference"};
    dialog = open(Strobe, &camera.device);
    camera.set("Strobe2Reference", "ExposureStart");
    camera.set("Strobe2Reference", "ReadoutStart");
    QCOMPARE(pictureOf(dialog), resource("strobeBothExp"));
}

void TestStrobeOutputColor::pictureFollowsColoursAndFont()
{
    Camera camera;
    const auto dialog = open(Strobe, &camera.device);
    auto *label = part<QLabel>(*dialog, "lblStrobeImage");
    const QImage light = label->grab().toImage();
    const QSize size = label->sizeHint();
    camera.set("Strobe1Reference", "ReadoutStart");
    QVERIFY(label->grab().toImage() != light);

    const QColor ground(53, 53, 53);
    QPalette dark(ground);
    dark.setColor(QPalette::WindowText, Qt::white);
    dialog->setPalette(dark);
    const QImage image = label->grab().toImage();
    int groundPixels = 0;
    for (int x = 0; x < image.width(); ++x) {
        for (int y = 0; y < image.height(); ++y)
            groundPixels += image.pixelColor(x, y) == ground ? 1 : 0;
    }
    const int pixels = image.width() * image.height();
    QVERIFY(2 * groundPixels > pixels && groundPixels < pixels * 95 / 100);

    QFont large = label->font();
    large.setPointSize(2 * large.pointSize());
    label->setFont(large);
    QVERIFY(label->sizeHint().width() > size.width() && label->sizeHint().height() > size.height());
    QVERIFY(label->width() >= label->sizeHint().width() ||
            QTest::qWaitFor([&] { return label->width() >= label->sizeHint().width(); }));
}

void TestStrobeOutputColor::fitsASmallScreen()
{
    const QFont before = QApplication::font();
    QFont large = before;
    large.setPointSize(5 * before.pointSize());
    QApplication::setFont(large);
    Camera camera;
    for (const Which which : all) {
        const auto dialog = open(which, &camera.device);
        const QRect screen = dialog->windowHandle()->screen()->availableGeometry();
        QVERIFY2(screen.contains(dialog->geometry()), qPrintable(dialog->objectName()));
        // The Tab key scrolls to the last control.
        QWidget *last = part(*dialog, lastOf(which));
        last->setFocus(Qt::TabFocusReason);
        QTest::keyClick(dialog->focusWidget(), Qt::Key_Backtab);
        QTest::keyClick(dialog->focusWidget(), Qt::Key_Tab);
        QVERIFY2(!last->visibleRegion().isEmpty(), lastOf(which));
        dialog->close();
        dialog->show(); // a second time
        QVERIFY(screen.contains(dialog->geometry()));
    }
    QApplication::setFont(before);
}

void TestStrobeOutputColor::unityButtons()
{
    Camera camera;
    const auto dialog = open(Color, &camera.device);
    dialog->SetDevice(&camera.device);
    int writes = 0;
    for (const char *color : {"Red", "Green", "Blue"}) {
        const QByteArray feature = QByteArray(color) + "Coefficient";
        auto *button = part<QPushButton>(*dialog, "pushBtn" + QByteArray(color) + "Unity");
        camera.set(feature, "1000");
        QCOMPARE(camera.writes(), ++writes);
        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(camera.get(feature), QStringLiteral("256"));
        QCOMPARE(camera.writes(), ++writes);
        QCOMPARE(textOf(dialog, "lbl" + QByteArray(color) + "Coef"), QStringLiteral("256"));
        QTest::mouseClick(button, Qt::LeftButton); // the coefficient is 256 already
        QCOMPARE(camera.writes(), writes);
    }
}

void TestStrobeOutputColor::automaticWhiteBalance()
{
    Camera camera;
    const auto dialog = open(Color, &camera.device);
    const auto wait = [&](int seconds) {
        camera.camera.advance(seconds);
        camera.map->Poll(1000 * seconds);
    };
    const auto follows = [&](const char *color) {
        const QString value = camera.get(QByteArray(color) + "Coefficient");
        return textOf(dialog, "lbl" + QByteArray(color) + "Coef") == value &&
               shown(part(*dialog, "spBox" + QByteArray(color))) == value;
    };
    QTest::keyClick(part(*dialog, "cmBoxWhiteBalance"), Qt::Key_End);
    QCOMPARE(camera.get("BalanceWhiteAuto"), QStringLiteral("Continuous"));

    const QString red = camera.get("RedCoefficient");
    const QString blue = camera.get("BlueCoefficient");
    for (int i = 0; i < 20; ++i) {
        wait(1);
        for (const char *color : {"Red", "Green", "Blue"})
            QVERIFY2(follows(color), color);
    }
    QVERIFY(camera.get("RedCoefficient") != red);
    QVERIFY(camera.get("BlueCoefficient") != blue);
    QCOMPARE(camera.writes(), 1);

    // The statistics are updated while the user holds a slider.
    auto *spinBox = part<QtOrvSpinBox>(*dialog, "spBoxRed");
    QTest::mouseClick(spinBox->toolButton(), Qt::LeftButton);
    QSlider *slider = spinBox->slider()->slider();
    dragBy(slider, handleOf(slider), QPoint(0, -slider->height() / 4), 1);
    wait(1);
    QCOMPARE(textOf(dialog, "lblRedCoef"), camera.get("RedCoefficient"));
    QTest::mouseRelease(slider, Qt::LeftButton);
}

void TestStrobeOutputColor::statisticsOfOtherCamera()
{
    Camera first;
    const auto text = SimulatedCamera::description();
    DescribedDevice second(OrvDescription::NodeMap::fromText(text->data(), text->size(), "second"));
    second.set("RedCoefficient", "2222");
    const auto dialog = open(Color, &first.device);
    QCOMPARE(textOf(dialog, "lblRedCoef"), QStringLiteral("320"));
    dialog->SetDevice(&second.device);
    QCOMPARE(textOf(dialog, "lblRedCoef"), QStringLiteral("2222"));

    first.set("RedCoefficient", "100");
    QCOMPARE(textOf(dialog, "lblRedCoef"), QStringLiteral("2222"));
    QCOMPARE(part<QtOrvSpinBox>(*dialog, "spBoxRed")->value(), 2222);
    QTest::mouseClick(part(*dialog, "pushBtnRedUnity"), Qt::LeftButton);
    QCOMPARE(first.get("RedCoefficient"), QStringLiteral("100"));
    QCOMPARE(second.get("RedCoefficient"), QStringLiteral("256"));

    dialog->SetDevice(nullptr);
    second.set("RedCoefficient", "300");
    QCOMPARE(textOf(dialog, "lblRedCoef"), QStringLiteral("256"));
    QTest::mouseClick(part(*dialog, "pushBtnRedUnity"), Qt::LeftButton);
    QCOMPARE(second.get("RedCoefficient"), QStringLiteral("300"));
}

QTEST_MAIN(TestStrobeOutputColor)
#include "tst_strobeoutputcolor.moc"
