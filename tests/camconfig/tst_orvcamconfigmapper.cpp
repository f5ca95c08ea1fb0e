// SPDX-License-Identifier: MIT
#include "camconfigtestsupport.h"

#include <iorvcamconfigintconverter.h>
#include <memorynodemap.h>
#include <orvcamconfigmapper.h>
#include <qtorvslider.h>
#include <qtorvsliderspinbox.h>
#include <qtorvspinbox.h>
#include <qtorvspinboxval.h>

#include <cstring>

using namespace OrvGenApi;
using namespace OrvGui;

namespace {

/// A camera with a feature of each kind that can be bound. Not all names are ASCII.
struct Camera
{
    Camera()
        : number(map.addInteger("Länge", 5))
        , choice(map.addEnumeration("Quelle", {{"Aus", 0}, {"Größe", 1}, {"Auto", 2}}))
        , flag(map.addBoolean("Spiegel"))
        , command(map.addCommand("Auslösen"))
    {
        number.setLimits(0, 10);
        array = std::make_unique<OrvGenParam::NodeMapArray>(map);
    }

    MemoryNodeMap map;
    MemoryInteger &number;
    MemoryEnumeration &choice;
    MemoryBoolean &flag;
    MemoryCommand &command;
    std::unique_ptr<OrvGenParam::NodeMapArray> array;
};

const char intText[] = "Error while setting the Länge integer value!\r\nError Code: %1";
const char enumText[] = "Error while setting the Quelle enumeration value!\r\nError Code: %1";
const char booleanText[] = "Error while setting the Spiegel boolean value!\r\nError Code: %1";
const char commandText[] = "Error while executing the Auslösen command!\r\nError Code: %1";

/// A widget that is bound to its kind of feature, and how a user works with it. It starts at one
/// value and is edited to the next.
struct Control
{
    using Map = std::function<void(OrvCamConfigMapper &, OrvGenParam::Array *)>;

    ~Control() { delete owner.data(); }

    const char *errorText;
    qint64 first;
    qint64 edited;
    qint64 changed; ///< to what the camera changes it
    QPointer<QWidget> owner;
    std::function<QWidget *()> widget;
    Map map;
    std::function<void()> edit;
    std::function<qint64()> shown;
};

using Make = std::unique_ptr<Control> (*)();

std::unique_ptr<Control> control(const char *errorText, QVector<qint64> values, QWidget *owner,
                                 const Control::Map &map, const std::function<void()> &edit,
                                 const std::function<qint64()> &shown,
                                 const std::function<QWidget *()> &widget = {})
{
    return std::unique_ptr<Control>(new Control{errorText, values[0], values[1], values[2], owner,
                                                widget ? widget : [=] { return owner; }, map, edit,
                                                shown});
}

template<class Widget>
Control::Map toEnum(Widget *w)
{
    return [=](auto &m, auto *a) { m.mapEnumParam(a ? a->GetEnum("Quelle") : nullptr, w); };
}

std::unique_ptr<Control> combo()
{
    auto *w = new QComboBox;
    return control(
        enumText, {0, 1, 2}, w, toEnum(w), [=] { QTest::keyClick(w, Qt::Key_Down); },
        [=] { return w->currentIndex(); });
}

std::unique_ptr<Control> check()
{
    auto *w = new QCheckBox;
    return control(
        enumText, {0, 1, 1}, w, toEnum(w), [=] { QTest::keyClick(w, Qt::Key_Space); },
        [=] { return w->isChecked(); });
}

std::unique_ptr<Control> buttons()
{
    auto *box = new QWidget;
    auto *group = new QButtonGroup(box);
    auto *layout = new QVBoxLayout(box);
    for (int i = 0; i < 4; ++i) {
        auto *button = new QRadioButton;
        layout->addWidget(button);
        group->addButton(button);
    }
    box->show();
    return control(
        enumText, {0, 1, 2}, box, toEnum(group),
        [=] { QTest::keyClick(group->button(1), Qt::Key_Space); },
        [=] { return group->checkedId(); }, [=] { return group->buttons().value(1); });
}

std::unique_ptr<Control> tabs()
{
    auto *w = new QTabWidget;
    for (int i = 0; i < 4; ++i)
        w->addTab(new QWidget, QString());
    return control(
        enumText, {0, 1, 2}, w, toEnum(w), [=] { QTest::keyClick(w->tabBar(), Qt::Key_Right); },
        [=] { return w->currentIndex(); });
}

std::unique_ptr<Control> commandButton()
{
    auto *w = new QPushButton;
    return control(
        commandText, {0, 0, 0}, w,
        [=](auto &m, auto *a) {
            m.mapCommandParam(a ? a->GetCommand("Auslösen") : nullptr, w, nullptr);
        },
        [=] { QTest::keyClick(w, Qt::Key_Space); }, [] { return 0; });
}

std::unique_ptr<Control> booleanButton()
{
    auto *w = new QPushButton;
    w->setCheckable(true);
    return control(
        booleanText, {0, 1, 1}, w,
        [=](auto &m, auto *a) { m.mapBooleanParam(a ? a->GetBoolean("Spiegel") : nullptr, w); },
        [=] { QTest::keyClick(w, Qt::Key_Space); }, [=] { return w->isChecked(); });
}

std::unique_ptr<Control> lineEdit()
{
    auto *w = new QLineEdit;
    w->setValidator(new QIntValidator(w));
    return control(
        intText, {5, 6, 8}, w,
        [=](auto &m, auto *a) { m.mapIntParam(a ? a->GetInt("Länge") : nullptr, w); },
        [=] {
            w->selectAll();
            QTest::keyClicks(w, QStringLiteral("6"));
            QTest::keyClick(w, Qt::Key_Return);
        },
        [=] { return w->text().toLongLong(); });
}

template<class Widget>
std::unique_ptr<Control> number()
{
    auto *w = new Widget;
    QWidget *inner = w->template findChild<QSpinBox *>();
    return control(
        intText, {5, 6, 8}, w,
        [=](auto &m, auto *a) {
            OrvGenParam::Int *param = a ? a->GetInt("Länge") : nullptr;
            if constexpr (std::is_same<Widget, QSpinBox>() || std::is_same<Widget, QtOrvSpinBox>())
                m.mapIntParam(param, w);
            else
                m.mapIntParam(param, w, nullptr);
        },
        [=] { QTest::keyClick(inner ? inner : w, Qt::Key_Up); }, [=] { return w->value(); });
}

/// Does something to the feature that the control is bound to, whichever it is.
template<class Function>
auto feature(Camera &camera, const Control &control, Function function)
{
    if (control.errorText == booleanText)
        return function(camera.flag);
    if (control.errorText == commandText)
        return function(camera.command);
    if (control.errorText == enumText)
        return function(camera.choice);
    return function(camera.number);
}

void change(Camera &camera, const Control &control, qint64 value)
{
    feature(camera, control, [=](auto &node) {
        if constexpr (std::is_same<decltype(node), MemoryCommand &>())
            node.changed();
        else
            node.change(value);
    });
}
int writesOf(Camera &camera, const Control &control)
{
    return feature(camera, control, [](auto &node) { return node.writes(); });
}

/// Two entries, of which there is only the second, with the value 0.
class GapEnum final : public OrvGenParam::Enum
{
    struct Entry final : OrvGenParam::EnumEntry
    {
        int64_t GetValue() const override { return 0; }
        const char *GetSymbolic() const override { return "Da"; }
        const char *GetDisplayName() const override { return "Da"; }
        bool IsAvailable() const override { return true; }
    };
    mutable Entry m_entry;

public:
    const char *GetName() const override { return "Lücke"; }
    const char *GetDisplayName() const override { return ""; }
    const char *GetDescription() const override { return ""; }
    OrvGenParam::ParamType GetType() const override { return OrvGenParam::ParamEnum; }
    bool IsAvailable() const override { return true; }
    bool IsReadable() const override { return true; }
    bool IsWritable() const override { return true; }
    void RegisterEventSink(OrvGenParam::ParamEventSink *) override {}
    void UnregisterEventSink(OrvGenParam::ParamEventSink *) override {}
    uint32_t GetEntryCount() const override { return 2; }
    OrvGenParam::EnumEntry *GetEntry(uint32_t i) const override { return i ? &m_entry : nullptr; }
    int64_t GetIntValue(int32_t *) const override { return 0; }
    int32_t SetIntValue(int64_t) override { return 0; }
    const char *GetSymbolicValue(int32_t *) const override { return "Da"; }
    int32_t SetSymbolicValue(const char *) override { return 0; }
};

} // namespace

Q_DECLARE_METATYPE(Make)

class TestOrvCamConfigMapper : public QObject
{
    Q_OBJECT

private slots:
    void bothDirections_data() { controls(); }
    void bothDirections();
    void accessModes_data() { controls(); }
    void accessModes();
    void refusedWrites_data() { controls(); }
    void refusedWrites();
    void wheel_data() { controls(); }
    void wheel();
    void toolTips_data() { controls(); }
    void toolTips();
    void mappingAgain_data() { controls(); }
    void mappingAgain();
    void lifetimes_data() { controls(); }
    void lifetimes();
    void limits_data();
    void limits();
    void converters();
    void dependents();
    void entries();
    void commandTimer();
    void fromInside();
    void noGlitchesAndNoEcho();
    void typingIsLeftAlone();
    void drags_data() { twice("refused", "taken", "refused"); }
    void drags();
    void heldWhenRefused_data() { twice("groove", "spin button", "groove"); }
    void heldWhenRefused();

private:
    void controls();
    void twice(const char *column, const char *no, const char *yes);
};

void TestOrvCamConfigMapper::controls()
{
    QTest::addColumn<Make>("make");
    QTest::newRow("combo box") << Make(combo);
    QTest::newRow("check box") << Make(check);
    QTest::newRow("buttons") << Make(buttons);
    QTest::newRow("tabs") << Make(tabs);
    QTest::newRow("command") << Make(commandButton);
    QTest::newRow("boolean") << Make(booleanButton);
    QTest::newRow("line edit") << Make(lineEdit);
    QTest::newRow("spin box") << Make(number<QSpinBox>);
    QTest::newRow("spin box with slider") << Make(number<QtOrvSpinBox>);
    QTest::newRow("slider") << Make(number<QSlider>);
    QTest::newRow("slider and spin box") << Make(number<QtOrvSliderSpinBox>);
}

void TestOrvCamConfigMapper::bothDirections()
{
    QFETCH(Make, make);
    Camera camera;
    OrvCamConfigMapper mapper;
    const auto control = make();
    const auto writes = [&] { return writesOf(camera, *control); };
    // As a dialog that is given the same camera again and again does.
    for (int i = 0; i < 10; ++i) {
        mapper.unmapAll();
        QVERIFY(!control->widget()->isEnabled() || i == 0);
        control->map(mapper, camera.array.get());
    }
    QVERIFY(control->widget()->isEnabled());
    QCOMPARE(control->shown(), control->first);
    QCOMPARE(writes(), 0);

    control->edit();
    QCOMPARE(writes(), 1);
    QCOMPARE(control->shown(), control->edited);

    change(camera, *control, control->changed);
    QCOMPARE(control->shown(), control->changed);
    QCOMPARE(writes(), 1);

    // What two mappers show is the same, whoever changes it.
    OrvCamConfigMapper another;
    const auto twin = make();
    twin->map(another, camera.array.get());
    change(camera, *control, control->first);
    twin->edit();
    QCOMPARE(control->shown(), control->edited);
    QCOMPARE(writes(), 2);
    mapper.unmapAll();
    QVERIFY(!control->widget()->isEnabled() && twin->widget()->isEnabled());
}

void TestOrvCamConfigMapper::accessModes()
{
    QFETCH(Make, make);
    Camera camera;
    OrvCamConfigMapper mapper;
    const auto control = make();
    const auto setAccess = [&](GenApi::EAccessMode mode) {
        feature(camera, *control, [=](auto &node) { node.setAccessMode(mode); });
    };
    control->map(mapper, nullptr);
    QVERIFY(!control->widget()->isEnabled());
    for (GenApi::EAccessMode mode : {GenApi::RO, GenApi::NA}) {
        // As it is found, and as it becomes. What is found read-only stays as it stands.
        setAccess(mode);
        control->widget()->setEnabled(mode == GenApi::NA);
        control->map(mapper, camera.array.get());
        QVERIFY(!control->widget()->isEnabled());
        setAccess(GenApi::RW);
        QVERIFY(control->widget()->isEnabled());
        setAccess(mode);
        QVERIFY(!control->widget()->isEnabled());
        mapper.unmapAll();
    }
    setAccess(GenApi::RW);
    control->map(mapper, camera.array.get());

    // Write-only: nothing is read, but it can be set.
    const int reads = feature(camera, *control, [](auto &node) { return node.reads(); });
    setAccess(GenApi::WO);
    QVERIFY(control->widget()->isEnabled());
    QCOMPARE(feature(camera, *control, [](auto &node) { return node.reads(); }), reads);
    control->edit();
    QCOMPARE(writesOf(camera, *control), 1);

    // A camera that goes takes every feature with it.
    camera.array->detach(OrvCam::ErrorGone);
    QVERIFY(!control->widget()->isEnabled());
}

void TestOrvCamConfigMapper::refusedWrites()
{
    QFETCH(Make, make);
    Camera camera;
    OrvCamConfigMapper mapper;
    const auto control = make();
    control->map(mapper, camera.array.get());
    feature(camera, *control, [](auto &node) { node.onWrite(throwRefusal); });

    ErrorBoxes boxes;
    control->edit();
    QCOMPARE(boxes.texts, QStringList(QString::fromUtf8(control->errorText).arg(-5)));
    QCOMPARE(control->shown(), control->edited);
    QVERIFY(control->widget()->isEnabled());
    feature(camera, *control, [](auto &node) { node.changed(); });
    QCOMPARE(control->shown(), control->first);

    // It works as soon as the camera does; other failures have other codes.
    feature(camera, *control, [](auto &node) { node.onWrite({}); });
    control->edit();
    QCOMPARE(control->shown(), control->edited);
    QCOMPARE(writesOf(camera, *control), 2);
    change(camera, *control, control->first);
    feature(camera, *control, [](auto &node) { node.setAccessMode(GenApi::NA); });
    control->widget()->setEnabled(true);
    boxes.texts.clear();
    control->edit();
    QCOMPARE(boxes.texts, QStringList(QString::fromUtf8(control->errorText).arg(-4)));

    // The camera changes by itself what it lets nobody else change.
    feature(camera, *control, [&](auto &node) { node.setAccessMode(GenApi::RO); });
    change(camera, *control, control->changed);
    QCOMPARE(control->shown(), control->changed);

    // What cannot be read is not shown, and nobody is told.
    feature(camera, *control, [](auto &node) {
        node.onRead([] { throw GenICam::TimeoutException("late", __FILE__, __LINE__); });
        node.changed();
    });
    QCOMPARE(control->shown(), control->changed);
    feature(camera, *control, [](auto &node) { node.onRead({}); });
    change(camera, *control, control->first);
    QCOMPARE(control->shown(), control->first);
    QTest::qWait(20);
    QCOMPARE(boxes.texts.size(), 1);
}

/// The part of a control that the mouse and the keyboard reach.
QWidget *handleOf(const Control &control)
{
    if (auto *tabs = qobject_cast<QTabWidget *>(control.owner))
        return tabs->tabBar();
    QWidget *spinBox = control.owner->findChild<QSpinBox *>();
    return spinBox ? spinBox : control.widget();
}

void TestOrvCamConfigMapper::wheel()
{
    QFETCH(Make, make);
    Camera camera;
    OrvCamConfigMapper mapper;
    const auto control = make();
    control->map(mapper, camera.array.get());
    struct Window : QWidget
    {
        void wheelEvent(QWheelEvent *) override { ++passed; }
        int passed = 0;
    } window;
    QLineEdit elsewhere;
    auto *layout = new QVBoxLayout(&window);
    layout->addWidget(&elsewhere);
    layout->addWidget(control->owner);
    window.show();
    elsewhere.setFocus();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QList<QWidget *> parts = control->owner->findChildren<QWidget *>();
    for (QWidget *part : parts << control->owner) {
        if (part->window() != &window)
            continue;
        const int passed = window.passed;
        scroll(part);
        QCOMPARE(window.passed, passed + 1);
        QVERIFY(part->focusPolicy() != Qt::WheelFocus);
    }
    QCOMPARE(writesOf(camera, *control), 0);
    QCOMPARE(control->shown(), control->first);

    QWidget *const handle = handleOf(*control);
    handle->setFocus();
    scroll(handle);
    const bool isScrollable = qobject_cast<QComboBox *>(handle) ||
                              qobject_cast<QSlider *>(handle) || qobject_cast<QSpinBox *>(handle) ||
                              qobject_cast<QTabBar *>(handle);
    QCOMPARE(writesOf(camera, *control), int(isScrollable));
}

void TestOrvCamConfigMapper::toolTips()
{
    QFETCH(Make, make);
    Camera camera;
    const QString description = QStringLiteral("Größe < 5 µm, <img src='x'>");
    const auto control = make();
    feature(camera, *control, [&](auto &node) {
        node.properties().description = description.toStdString();
        node.properties().displayName = "The <b>Feature</b>";
    });
    camera.number.setUnit("<px>");
    camera.array = std::make_unique<OrvGenParam::NodeMapArray>(camera.map);
    auto *tabs = qobject_cast<QTabWidget *>(control->owner);
    QWidget *const widget = tabs ? tabs->tabBar() : control->widget();
    QWidget window;
    QLabel label(&window);
    label.setBuddy(widget);
    control->owner->setParent(&window);

    OrvCamConfigMapper mapper;
    control->map(mapper, camera.array.get());
    const auto lines = [](const QWidget &explained) {
        return QTextDocumentFragment::fromHtml(explained.toolTip()).toPlainText().split('\n');
    };
    const bool isNumber = control->errorText == intText;
    QStringList expected{"The <b>Feature</b>", description};
    if (isNumber)
        expected << "Range: 0 to 10"
                 << "Increment: 1"
                 << "Unit: <px>";
    expected << feature(camera, *control, [](auto &node) {
        return QString("Feature: %1").arg(QString::fromStdString(node.name()));
    });
    QCOMPARE(lines(*widget), expected);
    QCOMPARE(lines(label), expected);
    QCOMPARE(widget->accessibleDescription(), expected.join('\n'));

    camera.number.setLimits(0, 20);
    camera.number.changed();
    QCOMPARE(lines(*widget).contains("Range: 0 to 20"), isNumber);
    mapper.unmapAll();
    QCOMPARE(widget->toolTip() + label.toolTip(), QString());

    label.setToolTip("of the host");
    control->map(mapper, camera.array.get());
    QVERIFY(!widget->toolTip().isEmpty());
    QCOMPARE(label.toolTip(), QString("of the host"));
}

void TestOrvCamConfigMapper::mappingAgain()
{
    QFETCH(Make, make);
    Camera camera;
    OrvCamConfigMapper mapper;
    const auto former = make();
    const auto present = make();
    former->map(mapper, camera.array.get());
    present->map(mapper, camera.array.get());
    QVERIFY(!former->widget()->isEnabled() && present->widget()->isEnabled());

    change(camera, *present, present->changed);
    QCOMPARE(former->shown(), former->first);
    change(camera, *present, present->first);
    former->widget()->setEnabled(true);
    former->edit();
    QCOMPARE(writesOf(camera, *present), 0);
    present->edit();
    QCOMPARE(writesOf(camera, *present), 1);
}

void TestOrvCamConfigMapper::lifetimes()
{
    QFETCH(Make, make);
    Camera camera;
    auto mapper = std::make_unique<OrvCamConfigMapper>();
    auto control = make();
    control->map(*mapper, camera.array.get());

    // The mapper goes first: the widget is just a widget.
    mapper.reset();
    change(camera, *control, control->changed);
    QCOMPARE(control->shown(), control->first);
    control->edit();
    QCOMPARE(writesOf(camera, *control), 0);
    control.reset();

    // The widget goes first, also when another mapper has taken it over.
    mapper = std::make_unique<OrvCamConfigMapper>();
    for (bool taken : {false, true}) {
        control = make();
        control->map(*mapper, camera.array.get());
        OrvCamConfigMapper another;
        if (taken)
            control->map(another, camera.array.get());
        delete control->owner.data();
        change(camera, *control, control->first);
        mapper->unmapAll();
    }

    // The camera goes first.
    control = make();
    control->map(*mapper, camera.array.get());
    camera.array.reset();
    mapper->unmapAll();
    Camera next;
    control->map(*mapper, next.array.get());
    control->edit();
    QCOMPARE(writesOf(next, *control), 1);
    next.array.reset();
    mapper.reset();
}

void TestOrvCamConfigMapper::limits_data()
{
    QTest::addColumn<QVector<qlonglong>>("camera"); // minimum, maximum, increment, value
    QTest::addColumn<QVector<qlonglong>>("shown");
    const qlonglong cap = 2147483647;
    const qlonglong lowest = -cap - 1;
    using Numbers = QVector<qlonglong>;
    QTest::newRow("as they are") << Numbers{-20, 40, 4, 8} << Numbers{-20, 40, 4, 8};
    QTest::newRow("no increment") << Numbers{0, 10, 0, 7} << Numbers{0, 10, 1, 7};
    QTest::newRow("beyond 32 bits")
        << Numbers{0, 1ll << 40, 1, 1ll << 33} << Numbers{0, cap, 1, cap};
    QTest::newRow("all 64 bits") << Numbers{std::numeric_limits<qlonglong>::min(),
                                            std::numeric_limits<qlonglong>::max(), 1, -12}
                                 << Numbers{lowest, cap, 1, -12};
    QTest::newRow("increment beyond 32 bits")
        << Numbers{0, 1ll << 50, 1ll << 40, 0} << Numbers{0, cap, cap, 0};
}

void TestOrvCamConfigMapper::limits()
{
    QFETCH(QVector<qlonglong>, camera);
    QFETCH(QVector<qlonglong>, shown);
    Camera cam;
    const auto furnish = [&] {
        cam.number.setLimits(camera[0], camera[1]);
        cam.number.setIncrement(camera[2]);
        cam.number.change(camera[3]);
    };
    OrvGenParam::Int *param = cam.array->GetInt("Länge");
    QSpinBox plain;
    QtOrvSpinBox compact;
    QSlider slider;
    QtOrvSliderSpinBox wide;
    QLineEdit text;
    QIntValidator validator;
    text.setValidator(&validator);
    OrvCamConfigMapper mappers[5];

    const auto compare = [&](auto &widget) {
        QVERIFY((QVector<qlonglong>{widget.minimum(), widget.maximum(), widget.singleStep(),
                                    widget.value()}) == shown);
    };
    for (int whenMapped = 1; whenMapped >= 0; --whenMapped) {
        if (whenMapped)
            furnish();
        mappers[0].mapIntParam(param, &plain);
        mappers[1].mapIntParam(param, &compact);
        mappers[2].mapIntParam(param, &slider, nullptr);
        mappers[3].mapIntParam(param, &wide, nullptr);
        mappers[4].mapIntParam(param, &text);
        if (!whenMapped)
            furnish();
        compare(plain);
        compare(compact);
        compare(slider);
        compare(wide);
        QCOMPARE(text.text().toLongLong(), shown[3]);
        QCOMPARE(qlonglong(validator.bottom()), shown[0]);
        QCOMPARE(qlonglong(validator.top()), shown[1]);
        QCOMPARE(cam.number.writes(), 0);

        cam.number.setLimits(0, 5);
        cam.number.setIncrement(1);
        cam.number.change(3);
    }

    // A mapper with a cap of its own.
    OrvCamConfigMapper capped(4);
    capped.mapIntParam(param, &compact);
    QCOMPARE(compact.maximum(), 4);
}

void TestOrvCamConfigMapper::converters()
{
    /// Shows half of what the camera has.
    class Halves : public IOrvCamConfigIntConverter
    {
    public:
        long ToControl(long value, OrvGenParam::Int *) override { return value / 2; }
        long ToDevice(long value, OrvGenParam::Int *) override { return value * 2; }
    } halves;
    // Hosts count on the two being the first in the table.
    const auto slotOf = [](long (IOrvCamConfigIntConverter::*operation)(long, OrvGenParam::Int *)) {
        std::size_t offset = 0;
        std::memcpy(&offset, &operation, sizeof offset);
        return int(offset / sizeof(void *));
    };
    QCOMPARE(slotOf(&IOrvCamConfigIntConverter::ToControl), 0);
    QCOMPARE(slotOf(&IOrvCamConfigIntConverter::ToDevice), 1);

    Camera camera;
    camera.number.setLimits(0, 1ll << 40);
    camera.number.setIncrement(10);
    camera.number.change(70);
    OrvGenParam::Int *param = camera.array->GetInt("Länge");
    QSlider slider;
    QtOrvSliderSpinBox wide;
    OrvCamConfigMapper first;
    OrvCamConfigMapper second;
    first.mapIntParam(param, &slider, &halves);
    second.mapIntParam(param, &wide, &halves);
    QCOMPARE(wide.value(), 35);
    QCOMPARE(wide.maximum(), 2147483647);
    QCOMPARE(wide.singleStep(), 5);
    QCOMPARE(slider.singleStep(), 5);
    QTest::keyClick(wide.spinBox(), Qt::Key_Up);
    QCOMPARE(param->GetValue(), int64_t(80));
    QTest::keyClick(&slider, Qt::Key_Up);
    QCOMPARE(param->GetValue(), int64_t(90));
    QCOMPARE(wide.value(), 45);

    // What half a step makes 0 is 1. What the widget cannot show exactly is not written back.
    camera.number.setIncrement(1);
    camera.number.change(91);
    QCOMPARE(wide.singleStep(), 1);
    QCOMPARE(wide.value(), 45);
    QCOMPARE(param->GetValue(), int64_t(91));
    QCOMPARE(camera.number.writes(), 2);
}

void TestOrvCamConfigMapper::dependents()
{
    Camera camera;
    OrvCamConfigMapper mapper;
    QtOrvSpinBox spinBox;
    QLabel label;
    QPushButton button;
    QVector<QWidget *> dependents{&label, &button};
    const auto isEnabled = [&](bool on) {
        return spinBox.isEnabled() == on && label.isEnabled() == on && button.isEnabled() == on;
    };

    QVERIFY(!mapper.mapIntParam(nullptr, &spinBox, dependents));
    QVERIFY(isEnabled(false));
    QVERIFY(mapper.mapIntParam(camera.array->GetInt("Länge"), &spinBox, dependents));
    QVERIFY(isEnabled(true));
    camera.number.setAccessMode(GenApi::NA);
    QVERIFY(isEnabled(false));
    camera.number.setAccessMode(GenApi::RW);
    QVERIFY(isEnabled(true));

    // Only the first widget is let go when the name is bound to another one.
    QtOrvSpinBox another;
    mapper.mapIntParam(camera.array->GetInt("Länge"), &another);
    QVERIFY(!spinBox.isEnabled() && label.isEnabled() && another.isEnabled());
}

void TestOrvCamConfigMapper::entries()
{
    Camera camera;
    OrvGenParam::Enum *param = camera.array->GetEnum("Quelle");
    OrvCamConfigMapper mappers[3];
    const std::unique_ptr<Control> controls[] = {combo(), buttons(), tabs()};
    auto *const box = static_cast<QComboBox *>(controls[0]->owner.data());
    auto *const group = controls[1]->owner->findChild<QButtonGroup *>();
    auto *const pages = static_cast<QTabWidget *>(controls[2]->owner.data());
    const auto map = [&](OrvGenParam::Array &array) {
        for (int i = 0; i < 3; ++i) {
            mappers[i].unmapAll();
            controls[i]->map(mappers[i], &array);
        }
    };
    map(*camera.array);
    const auto items = [&] { return qobject_cast<QStandardItemModel *>(box->model()); };

    QCOMPARE(box->count(), 3);
    QCOMPARE(pages->count(), 3);
    const QString name = QStringLiteral("Größe");
    QCOMPARE(box->itemText(1), name);
    QCOMPARE(group->button(1)->text(), name);
    QCOMPARE(pages->tabText(1), name);
    QVERIFY(group->button(2)->isVisible());
    QVERIFY(group->buttons()[3]->isHidden());

    for (bool available : {false, true}) {
        camera.choice.entry("Größe").setAccessMode(available ? GenApi::RO : GenApi::NA);
        camera.choice.changed();
        QCOMPARE(items()->item(1)->isEnabled(), available);
        QCOMPARE(group->button(1)->isEnabled(), available);
        QCOMPARE(pages->widget(1)->isEnabled(), available);
        QVERIFY(items()->item(0)->isEnabled() && group->button(0)->isEnabled());
        QVERIFY(pages->widget(0)->isEnabled());
    }
    camera.choice.entry("Größe").setAccessMode(GenApi::NA);
    QTest::keyClick(box, Qt::Key_Down);
    QCOMPARE(param->GetIntValue(), int64_t(2)); // over the one that is not there

    // Unchecking writes nothing, checking writes once.
    const int writes = camera.choice.writes();
    QTest::mouseClick(group->button(0), Qt::LeftButton);
    QCOMPARE(camera.choice.writes(), writes + 1);
    QCOMPARE(qint64(box->currentIndex()), qint64(0));
    QCOMPARE(qint64(pages->currentIndex()), qint64(0));

    // A value without an entry: no item shows it.
    camera.choice.change(9);
    QCOMPARE(box->currentText(), QString());
    QCOMPARE(qint64(group->checkedId()), qint64(0));

    // The next camera's entries, of which the camera library does not know every one. Buttons that
    // the first camera used must not answer to its values.
    GapEnum gap;
    for (OrvCamConfigMapper &mapper : mappers)
        mapper.unmapAll();
    mappers[0].mapEnumParam(&gap, box);
    mappers[1].mapEnumParam(&gap, group);
    mappers[2].mapEnumParam(&gap, pages);
    for (OrvCamConfigMapper &mapper : mappers)
        mapper.OnParameterUpdate(&gap);
    QCOMPARE(box->count(), 2);
    QCOMPARE(box->currentText(), QStringLiteral("Da"));
    QVERIFY(!items()->item(0)->isEnabled() && items()->item(1)->isEnabled());
    QVERIFY(group->buttons()[0]->isHidden() && group->buttons()[2]->isHidden());
    QCOMPARE(group->checkedButton(), group->buttons()[1]);
    QVERIFY(pages->widget(0)->isHidden());
    QCOMPARE(qint64(pages->currentIndex()), qint64(1));

    // Values that are no ids of a group.
    const qint64 values[] = {-1, 0x81080001, 0x81080002};
    MemoryNodeMap odd;
    auto &oddChoice = odd.addEnumeration(
        "Quelle", {{"Auto", values[0]}, {"Mono", values[1]}, {"Bunt", values[2]}}, values[2]);
    OrvGenParam::NodeMapArray oddArray(odd);
    map(oddArray);
    const ErrorBoxes boxes;
    for (int i : {2, 0, 1}) {
        oddChoice.change(values[i]);
        QCOMPARE(group->checkedButton(), group->buttons()[i]);
        click(group->buttons()[(i + 1) % 3]);
        QCOMPARE(oddArray.GetEnum("Quelle")->GetIntValue(), int64_t(values[(i + 1) % 3]));
    }
    QCOMPARE(boxes.texts, QStringList());
    oddChoice.entry("Bunt").setAccessMode(GenApi::NA);
    oddChoice.changed();
    QVERIFY(group->buttons()[1]->isEnabled() && !group->buttons()[2]->isEnabled());
}

void TestOrvCamConfigMapper::commandTimer()
{
    Camera camera;
    OrvCamConfigMapper mapper;
    QPushButton button;
    QTimer timer;
    timer.setInterval(100000);
    ErrorBoxes boxes;
    for (bool refused : {false, true}) {
        camera.command.onWrite(refused ? throwRefusal : std::function<void()>());
        mapper.unmapAll();
        timer.stop();
        mapper.mapCommandParam(camera.array->GetCommand("Auslösen"), &button, &timer);
        button.click();
        QVERIFY(!button.isEnabled());
        QVERIFY(timer.isActive());
        QCOMPARE(boxes.texts.size(), int(refused));
    }
}

void TestOrvCamConfigMapper::fromInside()
{
    // Whoever hears of a change may do anything; what was under way must not go on with it.
    Camera first;
    Camera second;
    second.number.setLimits(0, 3);
    second.number.change(2);
    second.number.setAccessMode(GenApi::RO);
    auto mapper = std::make_unique<OrvCamConfigMapper>();
    QtOrvSpinBox spinBox;
    const auto on = [&](std::function<void()> act) {
        connect(&spinBox, static_cast<void (QtOrvSpinBox::*)(int)>(&QtOrvSpinBox::valueChanged),
                act);
    };

    // Given another camera while the range of the first is being shown.
    mapper->mapIntParam(first.array->GetInt("Länge"), &spinBox);
    on([&] {
        mapper->unmapAll();
        mapper->mapIntParam(second.array->GetInt("Länge"), &spinBox);
    });
    first.number.setLimits(6, 20);
    first.number.setIncrement(2);
    first.number.change(8);
    QCOMPARE(spinBox.value(), 2);
    QCOMPARE(spinBox.maximum(), 3);
    QCOMPARE(spinBox.singleStep(), 1);
    QVERIFY(!spinBox.isEnabled());
    mapper->unmapAll();

    // Let go, and destroyed.
    mapper->mapIntParam(first.array->GetInt("Länge"), &spinBox);
    on([&] { mapper->unmapAll(); });
    first.number.change(12);
    QVERIFY(!spinBox.isEnabled());
    mapper->mapIntParam(first.array->GetInt("Länge"), &spinBox);
    on([&] { mapper.reset(); });
    first.number.change(14);
    QVERIFY(!mapper);

    // Destroyed by the notification that a write causes, and while the box of a refusal is open.
    mapper = std::make_unique<OrvCamConfigMapper>();
    mapper->mapIntParam(first.array->GetInt("Länge"), &spinBox);
    on([&] { mapper.reset(); });
    QTest::keyClick(spinBox.spinBox(), Qt::Key_Up);
    QVERIFY(!mapper);
    mapper = std::make_unique<OrvCamConfigMapper>();
    mapper->mapIntParam(first.array->GetInt("Länge"), &spinBox);
    first.number.onWrite(throwRefusal);
    ErrorBoxes boxes;
    boxes.meanwhile = [&] {
        mapper.reset();
        first.array.reset();
    };
    QTest::keyClick(spinBox.spinBox(), Qt::Key_Up);
    QCOMPARE(boxes.texts.size(), 1);
    QVERIFY(!first.array);

    // Buttons, of which the others are not shown any more.
    const auto box = buttons();
    auto *group = box->owner->findChild<QButtonGroup *>();
    const auto onToggled = [&](std::function<void()> act) {
        connect(group,
                static_cast<void (QButtonGroup::*)(QAbstractButton *, bool)>(
                    &QButtonGroup::buttonToggled),
                act);
    };
    mapper = std::make_unique<OrvCamConfigMapper>();
    box->map(*mapper, second.array.get());
    onToggled([&] { mapper->unmapAll(); });
    second.choice.change(1);
    for (const QAbstractButton *button : group->buttons())
        QVERIFY(!button->isEnabled());
    second.choice.change(2);
    connect(group->button(2), &QAbstractButton::toggled, [&] { mapper.reset(); });
    box->map(*mapper, second.array.get());
    QVERIFY(!mapper);
    mapper = std::make_unique<OrvCamConfigMapper>();
    box->map(*mapper, second.array.get());
    onToggled([&] {
        mapper.reset();
        second.array.reset();
    });
    second.choice.change(0);
    QVERIFY(!mapper);
}

void TestOrvCamConfigMapper::noGlitchesAndNoEcho()
{
    // The new limits exclude the old value: what the spin boxes show in between is not written.
    Camera camera;
    OrvCamConfigMapper mappers[2];
    QtOrvSpinBox spinBox;
    QtOrvSliderSpinBox wide;
    mappers[0].mapIntParam(camera.array->GetInt("Länge"), &spinBox);
    mappers[1].mapIntParam(camera.array->GetInt("Länge"), &wide, nullptr);
    QSignalSpy changes(&spinBox, SIGNAL(valueChanged(int)));
    camera.number.bind([] { return int64_t(2); });
    camera.number.setLimits(0, 3);
    camera.number.changed();
    QCOMPARE(spinBox.value(), 2);
    QCOMPARE(wide.value(), 2);
    QCOMPARE(camera.number.writes(), 0);
    QVERIFY(!changes.isEmpty()); // whoever else listens still hears of it

    // A camera that makes something else of what it is given.
    int64_t value = 2;
    camera.number.bind([&] { return value; }, [&](int64_t v) { value = v / 3 * 3; });
    camera.number.setLimits(0, 9);
    camera.number.changed();
    QTest::keyClick(spinBox.spinBox(), Qt::Key_Up);
    QTest::keyClick(spinBox.spinBox(), Qt::Key_Up);
    QCOMPARE(spinBox.value(), 3);
    QCOMPARE(camera.number.writes(), 2);
}

void TestOrvCamConfigMapper::typingIsLeftAlone()
{
    Camera camera;
    camera.number.setLimits(0, 1000);
    camera.number.changed();
    OrvCamConfigMapper mappers[2];
    QtOrvSpinBox spinBox;
    QSpinBox plain;
    mappers[0].mapIntParam(camera.array->GetInt("Länge"), &spinBox);
    mappers[1].mapIntParam(camera.array->GetInt("Länge"), &plain);
    const auto typeInto = [&](QSpinBox *box) {
        box->selectAll();
        for (char key : {'1', '2', '3'}) {
            QTest::keyClick(box, key);
            camera.number.changed(); // as a feature that is polled
        }
        QTest::keyClick(box, Qt::Key_Return);
    };
    typeInto(spinBox.spinBox());
    QCOMPARE(camera.number.writes(), 1);
    QCOMPARE(spinBox.value(), 123);
    camera.number.change(5);
    typeInto(&plain);
    QCOMPARE(camera.number.writes(), 2);
    QCOMPARE(plain.value(), 123);

    OrvCamConfigMapper third;
    QLineEdit text;
    third.mapIntParam(camera.array->GetInt("Länge"), &text);
    text.show();
    text.setFocus();
    QVERIFY(QTest::qWaitForWindowActive(&text));
    text.selectAll();
    QTest::keyClicks(&text, QStringLiteral("45"));
    camera.number.changed();
    QTest::keyClick(&text, Qt::Key_Return);
    QCOMPARE(camera.number.writes(), 3);
    QCOMPARE(text.text(), QStringLiteral("45"));

    // One box for a number that is refused, however many keys it took.
    camera.number.onWrite(throwRefusal);
    camera.number.change(5);
    ErrorBoxes boxes;
    typeInto(spinBox.spinBox());
    QCOMPARE(boxes.texts.size(), 1);
}

void TestOrvCamConfigMapper::twice(const char *column, const char *no, const char *yes)
{
    QTest::addColumn<bool>(column);
    QTest::newRow(no) << false;
    QTest::newRow(yes) << true;
}

void TestOrvCamConfigMapper::drags()
{
    QFETCH(bool, refused);
    Camera camera;
    OrvGenParam::Int *param = camera.array->GetInt("Länge");
    if (refused)
        camera.number.onWrite(throwRefusal);
    QtOrvSpinBox compact;
    QtOrvSliderSpinBox wide;
    QSlider plain(Qt::Horizontal);
    OrvCamConfigMapper mapper;
    ErrorBoxes boxes;
    int dragged = 0;

    const auto drag = [&](QSlider *slider, const auto &map) {
        mapper.unmapAll();
        map();
        camera.number.setLimits(0, 100);
        camera.number.change(5);
        const int writes = camera.number.writes();
        boxes.texts.clear();
        slider->resize(slider->orientation() == Qt::Horizontal ? QSize(300, 30) : QSize(30, 300));
        const QPoint from = handleOf(slider);
        const QPoint step =
            slider->orientation() == Qt::Horizontal ? QPoint(10, 0) : QPoint(0, -10);
        dragBy(slider, from, step, 10, [&] { camera.number.changed(); }); // as if it were polled
        camera.number.setLimits(0, 120);
        camera.number.changed();
        QCOMPARE(camera.number.writes(), writes);
        dragged = slider->value();
        QVERIFY(dragged > 20);
        QTest::mouseRelease(slider, Qt::LeftButton);
        QCOMPARE(camera.number.writes(), writes + 1);
        QCOMPARE(param->GetValue(), int64_t(refused ? 5 : dragged));
        QCOMPARE(boxes.texts.size(), int(refused));
        QVERIFY(!slider->isSliderDown());
        QCOMPARE(slider->value(), dragged);
        QCOMPARE(slider->maximum(), 120);

        // A press without a move changes nothing.
        const QPoint there = handleOf(slider);
        QTest::mousePress(slider, Qt::LeftButton, {}, there);
        QVERIFY(slider->isSliderDown());
        QTest::mouseRelease(slider, Qt::LeftButton, {}, there);
        QCOMPARE(camera.number.writes(), writes + 1);
    };
    drag(compact.slider()->slider(), [&] { mapper.mapIntParam(param, &compact); });
    QCOMPARE(compact.value(), refused ? 5 : dragged);
    drag(wide.slider()->slider(), [&] { mapper.mapIntParam(param, &wide, nullptr); });
    drag(&plain, [&] { mapper.mapIntParam(param, &plain, nullptr); });

    // Taken from under the user's hand: nothing is written any more.
    camera.number.onWrite({});
    camera.number.change(5);
    const int writes = camera.number.writes();
    boxes.texts.clear();
    plain.setSliderDown(true);
    plain.setSliderPosition(50);
    camera.number.setAccessMode(GenApi::RO);
    QCOMPARE(plain.value(), 5);
    QVERIFY(!plain.isSliderDown());

    // Given another camera by whoever hears of the new limits: neither gets what was dragged.
    Camera other;
    camera.number.setAccessMode(GenApi::RW);
    mapper.unmapAll();
    mapper.mapIntParam(param, &plain, nullptr);
    plain.setSliderDown(true);
    plain.setSliderPosition(50);
    camera.number.setLimits(0, 90);
    connect(&plain, &QSlider::rangeChanged, [&] {
        mapper.unmapAll();
        mapper.mapIntParam(other.array->GetInt("Länge"), &plain, nullptr);
    });
    plain.setSliderDown(false);
    QCOMPARE(camera.number.writes() + other.number.writes(), writes);
    QCOMPARE(boxes.texts.size(), 0);
}

void TestOrvCamConfigMapper::heldWhenRefused()
{
    // The box takes the mouse away, so that the button is never seen to be released.
    QFETCH(bool, groove);
    Camera camera;
    camera.number.setLimits(0, 100);
    camera.number.change(50);
    camera.number.onWrite(throwRefusal);
    QtOrvSliderSpinBox wide;
    OrvCamConfigMapper mapper;
    mapper.mapIntParam(camera.array->GetInt("Länge"), &wide, nullptr);
    wide.resize(400, 60);
    wide.show();
    QVERIFY(QTest::qWaitForWindowExposed(&wide));
    QWidget *part = groove ? static_cast<QWidget *>(wide.slider()->slider()) : wide.spinBox();
    const QPoint point =
        groove ? QPoint(part->width() - 5, part->height() / 2) : QPoint(part->width() - 5, 5);

    ErrorBoxes boxes(1200); // longer than anything takes to repeat
    QTest::mousePress(part, Qt::LeftButton, {}, point);
    QCOMPARE(boxes.texts.size(), 1);
    QTest::qWait(700);
    QCOMPARE(boxes.texts.size(), 1);
    QCOMPARE(camera.number.writes(), 1);

    // While the camera takes it, a held button goes on writing.
    camera.number.onWrite({});
    camera.number.changed();
    QTest::mousePress(part, Qt::LeftButton, {}, point);
    QTest::qWait(1200);
    QTest::mouseRelease(part, Qt::LeftButton, {}, point);
    const int writes = camera.number.writes();
    QVERIFY(writes > 3);
    QTest::qWait(300);
    QCOMPARE(camera.number.writes(), writes);
}

QTEST_MAIN(TestOrvCamConfigMapper)
#include "tst_orvcamconfigmapper.moc"
