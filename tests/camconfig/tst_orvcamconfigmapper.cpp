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

/// A camera with a feature of each kind that can be bound. Some names contain non-ASCII characters.
struct Camera
{
    Camera()
        : number(map.addInteger("Länge", 5))
        , choice(map.addEnumeration("Quelle", {{"Aus", 0}, {"Größe", 1}, {"Auto", 2}}))
        , flag(map.addBoolean("Spiegel"))
        , command(map.addCommand("Auslösen"))
    {
        number.setLimits(0, 10);
        makeArray();
    }

    void makeArray()
    {
        array = std::make_unique<OrvGenParam::NodeMapArray>(map);
        length = array->GetInt("Länge");
    }

    MemoryNodeMap map;
    MemoryInteger &number;
    MemoryEnumeration &choice;
    MemoryBoolean &flag;
    MemoryCommand &command;
    std::unique_ptr<OrvGenParam::NodeMapArray> array;
    OrvGenParam::Int *length;
};

constexpr char intText[] = "Error while setting the Länge integer value!\r\nError Code: %1";
constexpr char enumText[] = "Error while setting the Quelle enumeration value!\r\nError Code: %1";
constexpr char booleanText[] = "Error while setting the Spiegel boolean value!\r\nError Code: %1";
constexpr char commandText[] = "Error while executing the Auslösen command!\r\nError Code: %1";

/// A widget of a kind that can be bound, and the keys with which a user edits it.
struct Control
{
    using Map = std::function<void(OrvCamConfigMapper &, OrvGenParam::Array *)>;

    ~Control() { delete owner.data(); }
    Q_DISABLE_COPY(Control)

    qint64 shown() const
    {
        return group ? group->checkedId() : owner->property(property).toLongLong();
    }
    void edit() const
    {
        for (int key : keys)
            QTest::keyClick(input, static_cast<Qt::Key>(key));
    }

    const char *errorText;
    const char *property;    ///< name of the value's property
    QPointer<QWidget> owner; ///< the widget or its container
    QPointer<QWidget> input; ///< the receiver of the keys
    QVector<int> keys;       ///< they change `first` to `edited`
    qint64 first;
    qint64 edited;
    qint64 changed; ///< the value after a change by the camera
    Map map;
    QPointer<QWidget> widget = owner; ///< the widget that is enabled and disabled
    QPointer<QButtonGroup> group = {};
};

template<class Widget>
Control::Map mapChoice(Widget *w)
{
    return [=](auto &m, auto *a) { m.mapEnumParam(a ? a->GetEnum("Quelle") : nullptr, w); };
}

template<class Widget>
Control makeChoice(const char *property, int key, int changed)
{
    auto *w = new Widget;
    return {enumText, property, w, w, {key}, 0, 1, changed, mapChoice(w)};
}

Control makeButtons()
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
    QWidget *second = group->buttons()[1];
    return {enumText, "", box, second, {Qt::Key_Space}, 0, 1, 2, mapChoice(group), second, group};
}

Control makeTabs()
{
    auto *w = new QTabWidget;
    for (int i = 0; i < 4; ++i)
        w->addTab(new QWidget, QString());
    return {enumText, "currentIndex", w, w->tabBar(), {Qt::Key_Right}, 0, 1, 2, mapChoice(w)};
}

template<class Param, class Bind>
Control makeButton(const char *errorText, Param *(OrvGenParam::Array::*get)(const char *) const,
                   const char *feature, int last, Bind bind)
{
    auto *w = new QPushButton;
    w->setCheckable(last);
    const auto map = [=](auto &m, auto *a) { bind(m, a ? (a->*get)(feature) : nullptr, w); };
    return {errorText, "checked", w, w, {Qt::Key_Space}, 0, last, last, map};
}

template<class Widget, class... Extra>
Control makeNumber(const char *property, const QVector<int> &keys, Extra... extra)
{
    auto *w = new Widget;
    if constexpr (std::is_same<Widget, QLineEdit>())
        w->setValidator(new QIntValidator(w));
    QWidget *spinBox = w->template findChild<QSpinBox *>();
    const auto map = [=](auto &m, auto *a) {
        m.mapIntParam(a ? a->GetInt("Länge") : nullptr, w, extra...);
    };
    return {intText, property, w, spinBox ? spinBox : w, keys, 5, 6, 8, map};
}

Control makeControl(int kind)
{
    using Array = OrvGenParam::Array;
    IOrvCamConfigIntConverter *const none = nullptr;
    const QVector<int> up{Qt::Key_Up};
    switch (kind) {
    case MapEnumComboBox:
        return makeChoice<QComboBox>("currentIndex", Qt::Key_Down, 2);
    case MapEnumCheckBox:
        return makeChoice<QCheckBox>("checked", Qt::Key_Space, 1);
    case MapEnumButtons:
        return makeButtons();
    case MapEnumTabs:
        return makeTabs();
    case MapCommandButton:
        return makeButton(commandText, &Array::GetCommand, "Auslösen", 0,
                          [](auto &m, auto *p, auto *w) { m.mapCommandParam(p, w, nullptr); });
    case MapBooleanButton:
        return makeButton(booleanText, &Array::GetBoolean, "Spiegel", 1,
                          [](auto &m, auto *p, auto *w) { m.mapBooleanParam(p, w); });
    case MapIntLineEdit:
        return makeNumber<QLineEdit>("text", {Qt::Key_Backspace, Qt::Key_6, Qt::Key_Return});
    case MapIntSpinBox:
        return makeNumber<QSpinBox>("value", up);
    case MapIntOrvSpinBox:
        return makeNumber<QtOrvSpinBox>("value", up);
    case MapIntSlider:
        return makeNumber<QSlider>("value", up, none);
    default:
        return makeNumber<QtOrvSliderSpinBox>("value", up, none);
    }
}

const auto compoundChanged = static_cast<void (QtOrvSpinBox::*)(int)>(&QtOrvSpinBox::valueChanged);

/// A mapper, and a control that it can bind to a camera's feature.
struct Bench : Camera
{
    explicit Bench(int kindOfControl) : kind(kindOfControl), control(makeControl(kind)) {}

    void bind() { control.map(*mapper, array.get()); }

    /// Calls the function with the control's feature.
    template<class Function>
    auto feature(Function function)
    {
        if (kind == MapBooleanButton)
            return function(flag);
        if (kind == MapCommandButton)
            return function(command);
        if (kind < MapCommandButton)
            return function(choice);
        return function(number);
    }
    void change(qint64 value)
    {
        feature([=](auto &node) {
            if constexpr (std::is_same<decltype(node), MemoryCommand &>())
                node.changed();
            else
                node.change(value);
        });
    }
    void setAccess(GenApi::EAccessMode mode)
    {
        feature([=](auto &node) { node.setAccessMode(mode); });
    }
    void onWrite(const std::function<void()> &act)
    {
        feature([&](auto &node) { node.onWrite(act); });
    }
    void notify()
    {
        feature([](auto &node) { node.changed(); });
    }
    int writes()
    {
        return feature([](auto &node) { return node.writes(); });
    }
    int reads()
    {
        return feature([](auto &node) { return node.reads(); });
    }

    const int kind;
    const Control control;
    QWidget *const widget = control.widget;
    std::unique_ptr<OrvCamConfigMapper> mapper = std::make_unique<OrvCamConfigMapper>();
};

/// Two entries: the first is null, the second has the value 0.
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

/// The controls for an enumeration, each with a mapper of its own.
struct Choices
{
    void map(OrvGenParam::Array &array)
    {
        for (int i = 0; i < 3; ++i) {
            mappers[i].unmapAll();
            controls[i].map(mappers[i], &array);
        }
    }
    /// Whether the entry can be chosen, for each of the controls.
    QVector<bool> isEnabled(int entry) const
    {
        const auto *items = qobject_cast<QStandardItemModel *>(box->model());
        return {items->item(entry)->isEnabled(), buttons[entry]->isEnabled(),
                tabs->widget(entry)->isEnabled()};
    }

    OrvCamConfigMapper mappers[3];
    const Control controls[3] = {makeControl(MapEnumComboBox), makeButtons(), makeTabs()};
    QComboBox *const box = static_cast<QComboBox *>(controls[0].owner.data());
    QButtonGroup *const group = controls[1].group;
    const QList<QAbstractButton *> buttons = group->buttons();
    QTabWidget *const tabs = static_cast<QTabWidget *>(controls[2].owner.data());
};

} // namespace

class TestOrvCamConfigMapper : public QObject
{
    Q_OBJECT

private slots:
    void changesGoBothWays_data() { kinds(); }
    void changesGoBothWays();
    void enabledWhileWritable_data() { kinds(); }
    void enabledWhileWritable();
    void refusedWriteIsReported_data() { kinds(); }
    void refusedWriteIsReported();
    void wheelNeedsFocus_data() { kinds(); }
    void wheelNeedsFocus();
    void toolTipExplainsFeature_data() { kinds(); }
    void toolTipExplainsFeature();
    void mappingAgainReleasesFormerWidget_data() { kinds(); }
    void mappingAgainReleasesFormerWidget();
    void partsDestroyedInAnyOrder_data() { kinds(); }
    void partsDestroyedInAnyOrder();
    void limitsFitWidget_data() { kinds({6, 7, 8, 9, 10}); }
    void limitsFitWidget();
    void converterChangesUnit();
    void dependentsFollowSpinBox();
    void entriesFillControls();
    void entriesOfNextCamera();
    void entryValuesBeyondIds();
    void commandStartsTimer();
    void receiverMayMapOtherCamera();
    void receiverMayEndBinding();
    void receiverOfButtonsMayEndBinding();
    void shownValueIsNotWritten_data() { kinds({7, 8, 10}); }
    void shownValueIsNotWritten();
    void notificationKeepsTyping_data() { kinds({6, 7, 8, 10}); }
    void notificationKeepsTyping();
    void dragIsOneWrite_data() { kinds({8, 9, 10}); }
    void dragIsOneWrite();
    void dragEndsWithBinding();
    void refusalReleasesHeldInput_data();
    void refusalReleasesHeldInput();

private:
    void kinds(const QVector<int> &kinds = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10});
};

void TestOrvCamConfigMapper::kinds(const QVector<int> &kinds)
{
    const char *const names[] = {"combo box", "check box", "buttons",       "tabs",
                                 "command",   "boolean",   "line edit",     "spin box",
                                 "compact",   "slider",    "slider and box"};
    QTest::addColumn<int>("kind");
    for (int kind : kinds)
        QTest::newRow(names[kind]) << kind;
}

void TestOrvCamConfigMapper::changesGoBothWays()
{
    QFETCH(int, kind);
    Bench b(kind);
    // A dialog does the same if it gets the same camera repeatedly.
    for (int i = 0; i < 10; ++i) {
        b.mapper->unmapAll();
        QVERIFY(!b.widget->isEnabled() || i == 0);
        b.bind();
    }
    QVERIFY(b.widget->isEnabled());
    QCOMPARE(b.control.shown(), b.control.first);
    QCOMPARE(b.writes(), 0);
    b.control.edit();
    QCOMPARE(b.writes(), 1);
    QCOMPARE(b.control.shown(), b.control.edited);
    b.change(b.control.changed);
    QCOMPARE(b.control.shown(), b.control.changed);
    QCOMPARE(b.writes(), 1);

    // A change made through one mapper is shown by another.
    OrvCamConfigMapper another;
    const Control twin = makeControl(kind);
    twin.map(another, b.array.get());
    b.change(b.control.first);
    twin.edit();
    QCOMPARE(b.control.shown(), b.control.edited);
    QCOMPARE(b.writes(), 2);
    b.mapper->unmapAll();
    QVERIFY(!b.widget->isEnabled() && twin.widget->isEnabled());
}

void TestOrvCamConfigMapper::enabledWhileWritable()
{
    QFETCH(int, kind);
    Bench b(kind);
    b.control.map(*b.mapper, nullptr);
    QVERIFY(!b.widget->isEnabled());
    for (GenApi::EAccessMode mode : {GenApi::RO, GenApi::NA}) {
        // At mapping (a read-only feature leaves the state unchanged) and on a notification.
        for (bool wasEnabled : {true, false}) {
            b.setAccess(mode);
            b.widget->setEnabled(wasEnabled);
            b.bind();
            QCOMPARE(b.widget->isEnabled(), wasEnabled && mode == GenApi::RO);
            b.setAccess(GenApi::RW);
            QVERIFY(b.widget->isEnabled());
            b.setAccess(mode);
            QVERIFY(!b.widget->isEnabled());
            b.mapper->unmapAll();
        }
    }
    b.setAccess(GenApi::RW);
    b.bind();

    // A write-only feature is not read, but can be set.
    const int reads = b.reads();
    b.setAccess(GenApi::WO);
    QVERIFY(b.widget->isEnabled());
    QCOMPARE(b.reads(), reads);
    b.control.edit();
    QCOMPARE(b.writes(), 1);

    b.array->detach(OrvCam::ErrorGone);
    QVERIFY(!b.widget->isEnabled());
}

void TestOrvCamConfigMapper::refusedWriteIsReported()
{
    QFETCH(int, kind);
    Bench b(kind);
    b.bind();
    ErrorBoxes boxes;
    const QString text = QString::fromUtf8(b.control.errorText);
    b.onWrite(throwRefusal);
    b.control.edit();
    QCOMPARE(boxes.texts, QStringList(text.arg(-5)));
    QCOMPARE(b.control.shown(), b.control.edited);
    QVERIFY(b.widget->isEnabled());
    b.notify();
    QCOMPARE(b.control.shown(), b.control.first);

    // Writing works again as soon as the camera accepts it. Other failures have other codes.
    b.onWrite({});
    b.control.edit();
    QCOMPARE(b.control.shown(), b.control.edited);
    QCOMPARE(b.writes(), 2);
    b.change(b.control.first);
    b.setAccess(GenApi::NA);
    b.widget->setEnabled(true);
    b.control.edit();
    QCOMPARE(boxes.texts, QStringList({text.arg(-5), text.arg(-4)}));

    // A feature that only the camera changes. A failed read leaves the control unchanged and opens
    // no box.
    b.setAccess(GenApi::RO);
    b.change(b.control.changed);
    QCOMPARE(b.control.shown(), b.control.changed);
    b.feature([](auto &node) {
        node.onRead([] { throw GenICam::TimeoutException("late", __FILE__, __LINE__); });
        node.changed();
        node.onRead({});
    });
    QCOMPARE(b.control.shown(), b.control.changed);
    b.change(b.control.first);
    QCOMPARE(b.control.shown(), b.control.first);
    QTest::qWait(20);
    QCOMPARE(boxes.texts.size(), 2);
}

void TestOrvCamConfigMapper::wheelNeedsFocus()
{
    QFETCH(int, kind);
    Bench b(kind);
    b.bind();
    struct Window : QWidget
    {
        void wheelEvent(QWheelEvent *) override { ++passed; }
        int passed = 0;
    } window;
    QLineEdit elsewhere;
    auto *layout = new QVBoxLayout(&window);
    layout->addWidget(&elsewhere);
    layout->addWidget(b.control.owner);
    window.show();
    elsewhere.setFocus();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QList<QWidget *> parts = b.control.owner->findChildren<QWidget *>();
    for (QWidget *part : parts << b.control.owner) {
        if (part->window() != &window)
            continue;
        const int passed = window.passed;
        scroll(part);
        QCOMPARE(window.passed, passed + 1);
        QVERIFY(part->focusPolicy() != Qt::WheelFocus);
    }
    QCOMPARE(b.writes(), 0);
    QCOMPARE(b.control.shown(), b.control.first);

    b.control.input->setFocus();
    scroll(b.control.input);
    const bool isButton = qobject_cast<QAbstractButton *>(b.control.input);
    QCOMPARE(b.writes(), int(!isButton && kind != MapIntLineEdit));
}

void TestOrvCamConfigMapper::toolTipExplainsFeature()
{
    QFETCH(int, kind);
    Bench b(kind);
    const QString description = QStringLiteral("Größe < 5 µm, <img src='x'>");
    const QString name = b.feature([&](auto &node) {
        node.properties().description = description.toStdString();
        node.properties().displayName = "The <b>Feature</b>";
        return QString::fromStdString(node.name());
    });
    b.number.setUnit("<px>");
    b.makeArray();
    QWidget *const widget = kind == MapEnumTabs ? b.control.input.data() : b.widget;
    QWidget window;
    QLabel label(&window);
    label.setBuddy(widget);
    b.control.owner->setParent(&window);

    b.bind();
    const auto lines = [](const QWidget &explained) {
        return QTextDocumentFragment::fromHtml(explained.toolTip()).toPlainText().split('\n');
    };
    const bool isNumber = kind >= MapIntLineEdit;
    QStringList expected{"The <b>Feature</b>", description};
    if (isNumber)
        expected += {"Range: 0 to 10", "Increment: 1", "Unit: <px>"};
    expected << "Feature: " + name;
    QCOMPARE(lines(*widget), expected);
    QCOMPARE(lines(label), expected);
    QCOMPARE(widget->accessibleDescription(), expected.join('\n'));

    b.number.setLimits(0, 20);
    b.number.changed();
    QCOMPARE(lines(*widget).contains("Range: 0 to 20"), isNumber);
    b.mapper->unmapAll();
    QCOMPARE(widget->toolTip() + label.toolTip(), QString());

    label.setToolTip("of the host");
    b.bind();
    QVERIFY(!widget->toolTip().isEmpty());
    QCOMPARE(label.toolTip(), QString("of the host"));
    delete b.control.owner.data(); // before its parent
}

void TestOrvCamConfigMapper::mappingAgainReleasesFormerWidget()
{
    QFETCH(int, kind);
    Bench b(kind);
    const Control former = makeControl(kind);
    former.map(*b.mapper, b.array.get());
    b.bind();
    QVERIFY(!former.widget->isEnabled() && b.widget->isEnabled());

    b.change(b.control.changed);
    QCOMPARE(former.shown(), former.first);
    b.change(b.control.first);
    former.widget->setEnabled(true);
    former.edit();
    QCOMPARE(b.writes(), 0);
    b.control.edit();
    QCOMPARE(b.writes(), 1);
}

void TestOrvCamConfigMapper::partsDestroyedInAnyOrder()
{
    QFETCH(int, kind);
    {
        Bench b(kind);
        b.bind();
        b.mapper.reset();
        b.change(b.control.changed);
        QCOMPARE(b.control.shown(), b.control.first);
        b.control.edit();
        QCOMPARE(b.writes(), 0);
    }
    for (bool taken : {false, true}) { // mapped by another mapper as well
        Bench b(kind);
        b.bind();
        OrvCamConfigMapper another;
        if (taken)
            b.control.map(another, b.array.get());
        delete b.control.owner.data();
        b.change(b.control.first);
        b.mapper->unmapAll();
    }
    Bench b(kind);
    b.bind();
    b.array.reset();
    b.mapper->unmapAll();
    Bench next(kind);
    b.control.map(*b.mapper, next.array.get());
    b.control.edit();
    QCOMPARE(next.writes(), 1);
    next.array.reset();
}

void TestOrvCamConfigMapper::limitsFitWidget()
{
    QFETCH(int, kind);
    using Numbers = QVector<qlonglong>; // minimum, maximum, increment, value
    using Limits32 = std::numeric_limits<int>;
    using Limits64 = std::numeric_limits<qlonglong>;
    const qlonglong cap = Limits32::max();
    const std::pair<Numbers, Numbers> cases[] = {
        {{-20, 40, 4, 8}, {-20, 40, 4, 8}},
        {{0, 10, 0, 7}, {0, 10, 1, 7}},
        {{0, 1ll << 40, 1, 1ll << 33}, {0, cap, 1, cap}},
        {{Limits64::min(), Limits64::max(), 1, -12}, {Limits32::min(), cap, 1, -12}},
        {{0, 1ll << 50, 1ll << 40, 0}, {0, cap, cap, 0}}};
    Bench b(kind);
    const auto *edit = qobject_cast<QLineEdit *>(b.widget);
    const QObject *limited = edit ? static_cast<const QObject *>(edit->validator()) : b.widget;
    const auto maximum = [=] { return limited->property(edit ? "top" : "maximum").toLongLong(); };
    const auto setNumbers = [&](const Numbers &numbers) {
        b.number.setLimits(numbers[0], numbers[1]);
        b.number.setIncrement(numbers[2]);
        b.number.change(numbers[3]);
    };
    for (const auto &[held, expected] : cases) {
        for (bool isMappedFirst : {false, true}) {
            setNumbers(isMappedFirst ? Numbers{0, 5, 1, 3} : held);
            b.bind();
            setNumbers(held);
            QCOMPARE(limited->property(edit ? "bottom" : "minimum").toLongLong(), expected[0]);
            QCOMPARE(maximum(), expected[1]);
            QVERIFY(edit || limited->property("singleStep").toLongLong() == expected[2]);
            QCOMPARE(b.control.shown(), expected[3]);
        }
    }
    QCOMPARE(b.writes(), 0);
    OrvCamConfigMapper capped(4);
    b.control.map(capped, b.array.get());
    QCOMPARE(maximum(), 4);
}

void TestOrvCamConfigMapper::converterChangesUnit()
{
    /// Shows half of the camera's value.
    class Halves : public IOrvCamConfigIntConverter
    {
    public:
        long ToControl(long value, OrvGenParam::Int *) override { return value / 2; }
        long ToDevice(long value, OrvGenParam::Int *) override { return value * 2; }
    } halves;
    // Binary compatibility: the two functions are the first virtual ones.
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
    QSlider slider;
    QtOrvSliderSpinBox wide;
    OrvCamConfigMapper mappers[2];
    mappers[0].mapIntParam(camera.length, &slider, &halves);
    mappers[1].mapIntParam(camera.length, &wide, &halves);
    QCOMPARE(wide.value(), 35);
    QCOMPARE(wide.maximum(), 2147483647);
    QCOMPARE(wide.singleStep(), 5);
    QCOMPARE(slider.singleStep(), 5);
    QTest::keyClick(wide.spinBox(), Qt::Key_Up);
    QCOMPARE(camera.length->GetValue(), int64_t(80));
    QTest::keyClick(&slider, Qt::Key_Up);
    QCOMPARE(camera.length->GetValue(), int64_t(90));
    QCOMPARE(wide.value(), 45);

    // An increment that converts to 0 becomes 1. A value that the widget cannot show exactly is not
    // written back.
    camera.number.setIncrement(1);
    camera.number.change(91);
    QCOMPARE(wide.singleStep(), 1);
    QCOMPARE(wide.value(), 45);
    QCOMPARE(camera.length->GetValue(), int64_t(91));
    QCOMPARE(camera.number.writes(), 2);
}

void TestOrvCamConfigMapper::dependentsFollowSpinBox()
{
    Camera camera;
    OrvCamConfigMapper mapper;
    QtOrvSpinBox spinBox;
    QLabel label;
    QPushButton button;
    QVector<QWidget *> dependents{&label, &button};
    const auto isEnabled = [&](bool expected) {
        return spinBox.isEnabled() == expected && label.isEnabled() == expected &&
               button.isEnabled() == expected;
    };

    QVERIFY(!mapper.mapIntParam(nullptr, &spinBox, dependents));
    QVERIFY(isEnabled(false));
    QVERIFY(mapper.mapIntParam(camera.length, &spinBox, dependents));
    QVERIFY(isEnabled(true));
    camera.number.setAccessMode(GenApi::NA);
    QVERIFY(isEnabled(false));
    camera.number.setAccessMode(GenApi::RW);
    QVERIFY(isEnabled(true));

    // When the feature is mapped to another widget, only the first widget is disabled, not its
    // dependents.
    QtOrvSpinBox another;
    mapper.mapIntParam(camera.length, &another);
    QVERIFY(!spinBox.isEnabled() && label.isEnabled() && another.isEnabled());
}

void TestOrvCamConfigMapper::entriesFillControls()
{
    Camera camera;
    Choices choices;
    choices.map(*camera.array);
    const QString name = QStringLiteral("Größe");
    QCOMPARE(choices.box->count(), 3);
    QCOMPARE(choices.tabs->count(), 3);
    QCOMPARE(choices.box->itemText(1), name);
    QCOMPARE(choices.group->button(1)->text(), name);
    QCOMPARE(choices.tabs->tabText(1), name);
    QVERIFY(choices.group->button(2)->isVisible());
    QVERIFY(choices.buttons[3]->isHidden());

    for (bool available : {false, true, false}) {
        camera.choice.entry("Größe").setAccessMode(available ? GenApi::RO : GenApi::NA);
        camera.choice.changed();
        QCOMPARE(choices.isEnabled(1), QVector<bool>(3, available));
        QCOMPARE(choices.isEnabled(0), QVector<bool>(3, true));
    }
    QTest::keyClick(choices.box, Qt::Key_Down);
    QCOMPARE(camera.array->GetEnum("Quelle")->GetIntValue(), int64_t(2)); // the next enabled one

    // Checking a button causes one write, although another button is unchecked.
    const int writes = camera.choice.writes();
    QTest::mouseClick(choices.group->button(0), Qt::LeftButton);
    QCOMPARE(camera.choice.writes(), writes + 1);
    QCOMPARE(choices.box->currentIndex(), 0);
    QCOMPARE(choices.tabs->currentIndex(), 0);

    // A value without an entry.
    camera.choice.change(9);
    QCOMPARE(choices.box->currentText(), QString());
    QCOMPARE(choices.group->checkedId(), 0);
}

void TestOrvCamConfigMapper::entriesOfNextCamera()
{
    // One entry of the next camera is null. Buttons without an entry must not keep the values of
    // the first camera.
    Camera camera;
    Choices choices;
    choices.map(*camera.array);
    GapEnum gap;
    for (OrvCamConfigMapper &mapper : choices.mappers)
        mapper.unmapAll();
    choices.mappers[0].mapEnumParam(&gap, choices.box);
    choices.mappers[1].mapEnumParam(&gap, choices.group);
    choices.mappers[2].mapEnumParam(&gap, choices.tabs);
    for (OrvCamConfigMapper &mapper : choices.mappers)
        mapper.OnParameterUpdate(&gap);
    QCOMPARE(choices.box->count(), 2);
    QCOMPARE(choices.box->currentText(), QStringLiteral("Da"));
    QVERIFY(!choices.isEnabled(0)[0] && choices.isEnabled(1)[0]);
    QVERIFY(choices.buttons[0]->isHidden() && choices.buttons[2]->isHidden());
    QCOMPARE(choices.group->checkedButton(), choices.buttons[1]);
    QVERIFY(choices.tabs->widget(0)->isHidden());
    QCOMPARE(choices.tabs->currentIndex(), 1);

    // The removed tabs are back.
    choices.map(*camera.array);
    QCOMPARE(choices.tabs->count(), 3);
}

void TestOrvCamConfigMapper::entryValuesBeyondIds()
{
    const qint64 values[] = {-1, 0x81080001, 0x81080002};
    MemoryNodeMap map;
    auto &choice = map.addEnumeration(
        "Quelle", {{"Auto", values[0]}, {"Mono", values[1]}, {"Bunt", values[2]}}, values[2]);
    OrvGenParam::NodeMapArray array(map);
    const Control control = makeButtons();
    const QList<QAbstractButton *> buttons = control.group->buttons();
    OrvCamConfigMapper mapper;
    control.map(mapper, &array);
    const ErrorBoxes boxes;
    for (int i : {2, 0, 1}) {
        choice.change(values[i]);
        QCOMPARE(control.group->checkedButton(), buttons[i]);
        click(buttons[(i + 1) % 3]);
        QCOMPARE(array.GetEnum("Quelle")->GetIntValue(), int64_t(values[(i + 1) % 3]));
    }
    QCOMPARE(boxes.texts, QStringList());
    choice.entry("Bunt").setAccessMode(GenApi::NA);
    choice.changed();
    QVERIFY(buttons[1]->isEnabled() && !buttons[2]->isEnabled());
}

void TestOrvCamConfigMapper::commandStartsTimer()
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

void TestOrvCamConfigMapper::receiverMayMapOtherCamera()
{
    // While the limits of the first camera are applied to the widget.
    Bench b(MapIntOrvSpinBox);
    Camera second;
    second.number.setLimits(0, 3);
    second.number.change(2);
    second.number.setAccessMode(GenApi::RO);
    b.bind();
    connect(static_cast<QtOrvSpinBox *>(b.widget), compoundChanged, [&] {
        b.mapper->unmapAll();
        b.control.map(*b.mapper, second.array.get());
    });
    b.number.setLimits(6, 20);
    b.number.setIncrement(2);
    b.number.change(8);
    QCOMPARE(b.control.shown(), 2);
    QCOMPARE(b.widget->property("maximum"), QVariant(3));
    QCOMPARE(b.widget->property("singleStep"), QVariant(1));
    QVERIFY(!b.widget->isEnabled());
    QCOMPARE(b.writes() + second.number.writes(), 0);
}

void TestOrvCamConfigMapper::receiverMayEndBinding()
{
    Bench b(MapIntOrvSpinBox);
    const auto bind = [&](const std::function<void()> &receiver) {
        b.mapper = std::make_unique<OrvCamConfigMapper>();
        b.bind();
        connect(static_cast<QtOrvSpinBox *>(b.widget), compoundChanged, receiver);
    };
    bind([&] { b.mapper->unmapAll(); });
    b.change(1);
    QVERIFY(!b.widget->isEnabled());
    bind([&] { b.mapper.reset(); });
    b.change(2);
    QVERIFY(!b.mapper);

    // During the notification of a write, and while the error box is open.
    bind([&] { b.mapper.reset(); });
    b.control.edit();
    QVERIFY(!b.mapper);
    bind([] {});
    b.onWrite(throwRefusal);
    ErrorBoxes boxes;
    boxes.whileOpen = [&] {
        b.mapper.reset();
        b.array.reset();
    };
    b.control.edit();
    QCOMPARE(boxes.texts.size(), 1);
    QVERIFY(!b.array);
}

void TestOrvCamConfigMapper::receiverOfButtonsMayEndBinding()
{
    Bench b(MapEnumButtons);
    QButtonGroup *const group = b.control.group;
    const auto toggled =
        static_cast<void (QButtonGroup::*)(QAbstractButton *, bool)>(&QButtonGroup::buttonToggled);
    b.bind();
    connect(group, toggled, [&] { b.mapper->unmapAll(); });
    b.change(1);
    for (const QAbstractButton *button : group->buttons())
        QVERIFY(!button->isEnabled());

    b.change(2);
    connect(group->button(2), &QAbstractButton::toggled, [&] { b.mapper.reset(); });
    b.bind();
    QVERIFY(!b.mapper);

    b.mapper = std::make_unique<OrvCamConfigMapper>();
    b.bind();
    connect(group, toggled, [&] {
        b.mapper.reset();
        b.array.reset();
    });
    b.change(0);
    QVERIFY(!b.mapper);
}

void TestOrvCamConfigMapper::shownValueIsNotWritten()
{
    // The new limits exclude the old value, so the spin boxes show values in between.
    QFETCH(int, kind);
    Bench b(kind);
    b.bind();
    QSignalSpy changes(b.widget, SIGNAL(valueChanged(int)));
    b.number.bind([] { return int64_t(2); });
    b.number.setLimits(0, 3);
    b.number.changed();
    QCOMPARE(b.control.shown(), 2);
    QCOMPARE(b.writes(), 0);
    QVERIFY(!changes.isEmpty()); // other receivers still get the signal

    // A camera that rounds written values.
    int64_t value = 2;
    b.number.bind([&] { return value; }, [&](int64_t v) { value = v / 3 * 3; });
    b.number.setLimits(0, 9);
    b.number.changed();
    b.control.edit();
    b.control.edit();
    QCOMPARE(b.control.shown(), 3);
    QCOMPARE(b.writes(), 2);
}

void TestOrvCamConfigMapper::notificationKeepsTyping()
{
    QFETCH(int, kind);
    Bench b(kind);
    b.number.setLimits(0, 1000);
    b.bind();
    b.control.owner->show();
    b.control.input->setFocus();
    QVERIFY(QTest::qWaitForWindowActive(b.control.owner));
    const auto enterNumber = [&] {
        QMetaObject::invokeMethod(b.control.input, "selectAll");
        for (char key : {'1', '2', '3'}) {
            QTest::keyClick(b.control.input, key);
            b.number.changed(); // as polling would
        }
        QTest::keyClick(b.control.input, Qt::Key_Return);
    };
    enterNumber();
    QCOMPARE(b.writes(), 1);
    QCOMPARE(b.control.shown(), 123);

    // One error box per rejected number, not per key.
    b.change(5);
    b.onWrite(throwRefusal);
    const ErrorBoxes boxes;
    enterNumber();
    QCOMPARE(boxes.texts.size(), 1);
}

void TestOrvCamConfigMapper::dragIsOneWrite()
{
    QFETCH(int, kind);
    for (bool refused : {false, true}) {
        Bench b(kind);
        b.number.setLimits(0, 100);
        b.onWrite(refused ? throwRefusal : std::function<void()>());
        b.bind();
        const ErrorBoxes boxes;
        auto *slider = qobject_cast<QSlider *>(b.widget);
        if (!slider)
            slider = b.widget->findChild<QSlider *>();
        const bool isHorizontal = slider->orientation() == Qt::Horizontal;
        slider->resize(isHorizontal ? QSize(300, 30) : QSize(30, 300));
        const QPoint step = isHorizontal ? QPoint(10, 0) : QPoint(0, -10);
        dragBy(slider, handleOf(slider), step, 10, [&] { b.number.changed(); });
        b.number.setLimits(0, 120);
        b.number.changed();
        QCOMPARE(b.writes(), 0);
        const int dragged = slider->value();
        QVERIFY(dragged > 20);
        QTest::mouseRelease(slider, Qt::LeftButton);
        QCOMPARE(b.writes(), 1);
        QCOMPARE(b.length->GetValue(), int64_t(refused ? 5 : dragged));
        QCOMPARE(boxes.texts.size(), int(refused));
        QVERIFY(!slider->isSliderDown());
        QCOMPARE(slider->value(), dragged);
        QCOMPARE(slider->maximum(), 120);

        // Press and release without a move.
        const QPoint there = handleOf(slider);
        QTest::mousePress(slider, Qt::LeftButton, {}, there);
        QVERIFY(slider->isSliderDown());
        QTest::mouseRelease(slider, Qt::LeftButton, {}, there);
        QCOMPARE(b.writes(), 1);
        QCOMPARE(b.control.shown(), qint64(refused ? 5 : dragged));
    }
}

void TestOrvCamConfigMapper::dragEndsWithBinding()
{
    Bench b(MapIntSlider);
    Camera other;
    b.number.setLimits(0, 100);
    auto &slider = static_cast<QSlider &>(*b.widget);
    const ErrorBoxes boxes;
    const auto drag = [&] {
        b.bind();
        slider.setSliderDown(true);
        slider.setSliderPosition(50);
    };
    drag();
    b.setAccess(GenApi::RO);
    QCOMPARE(slider.value(), 5);
    QVERIFY(!slider.isSliderDown());

    // A slot connected to the new limits maps another camera: neither camera gets the dragged
    // value.
    b.setAccess(GenApi::RW);
    b.mapper->unmapAll();
    drag();
    b.number.setLimits(0, 90);
    connect(&slider, &QSlider::rangeChanged, [&] {
        b.mapper->unmapAll();
        b.control.map(*b.mapper, other.array.get());
    });
    slider.setSliderDown(false);
    QCOMPARE(b.writes() + other.number.writes(), 0);
    QCOMPARE(boxes.texts.size(), 0);

    // The first signal at the end of a drag destroys the mapper.
    Bench compound(MapIntOrvSpinBox);
    compound.bind();
    connect(static_cast<QtOrvSpinBox *>(compound.widget),
            static_cast<void (QtOrvSpinBox::*)(const QString &)>(&QtOrvSpinBox::valueChanged),
            [&] { compound.mapper.reset(); });
    auto *handle = compound.widget->findChild<QSlider *>();
    handle->setSliderDown(true);
    handle->setSliderPosition(7);
    QVERIFY(compound.mapper);
    handle->setSliderDown(false);
    QVERIFY(!compound.mapper);
    QCOMPARE(compound.writes(), 0);
}

void TestOrvCamConfigMapper::refusalReleasesHeldInput_data()
{
    QTest::addColumn<bool>("groove");
    QTest::newRow("spin button") << false;
    QTest::newRow("groove") << true;
}

void TestOrvCamConfigMapper::refusalReleasesHeldInput()
{
    // The error box grabs the mouse, so the widget gets no release of the button.
    QFETCH(bool, groove);
    Bench b(MapIntOrvSliderSpinBox);
    b.number.setLimits(0, 100);
    b.number.change(50);
    b.onWrite(throwRefusal);
    b.bind();
    b.widget->resize(400, 60);
    b.widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(b.widget));
    QWidget *part = groove ? b.widget->findChild<QSlider *>() : b.control.input.data();
    const QPoint point(part->width() - 5, groove ? part->height() / 2 : 5);

    ErrorBoxes boxes(1200); // longer than any auto-repeat delay
    QTest::mousePress(part, Qt::LeftButton, {}, point);
    QCOMPARE(boxes.texts.size(), 1);
    QTest::qWait(700);
    QCOMPARE(boxes.texts.size(), 1);
    QCOMPARE(b.writes(), 1);

    // If the writes succeed, holding the button repeats them.
    b.onWrite({});
    b.notify();
    QTest::mousePress(part, Qt::LeftButton, {}, point);
    QTest::qWait(1200);
    QTest::mouseRelease(part, Qt::LeftButton, {}, point);
    const int writes = b.writes();
    QVERIFY(writes > 3);
    QTest::qWait(300);
    QCOMPARE(b.writes(), writes);
}

QTEST_MAIN(TestOrvCamConfigMapper)
#include "tst_orvcamconfigmapper.moc"
