// SPDX-License-Identifier: MIT
#include "orvgenparamtreeview.h"

#include "base/readablecolors.h"
#include "base/treeviewresizer.h"
#include "genparamtree/featurecell.h"
#include "samplenodemap.h"
#include "treedriver.h"

#include <QtTest>
#include <QtWidgets>

#include <memory>
#include <numeric>
#include <stdexcept>
#include <thread>

using OrvGui::OrvGenParamTreeView;

namespace {

/// A visible tree of a node map in memory.
struct MemoryTree
{
    MemoryTree() { driver.show(); }

    SampleNodeMap map;
    OrvGenParamTreeView view{&map, nullptr};
    TreeDriver driver{view};
    QTreeView &tree = *view.treeView();
};

/// A category that loses features, and fails, while it is visible.
class BrokenCategory : public OrvGenApi::DeclaredCategory
{
public:
    using DeclaredCategory::DeclaredCategory;
    void GetFeatures(GenApi::FeatureList_t &features) const override
    {
        fail();
        DeclaredCategory::GetFeatures(features);
        features.resize(std::min(features.size(), size));
    }
    GenApi::EVisibility GetVisibility() const override
    {
        fail();
        return DeclaredCategory::GetVisibility();
    }
    GenApi::EInterfaceType GetPrincipalInterfaceType() const override
    {
        fail();
        return DeclaredCategory::GetPrincipalInterfaceType();
    }

    bool isFailing = false;
    size_t size = 100;

private:
    void fail() const
    {
        if (isFailing)
            throw GenICam::TimeoutException("no answer", __FILE__, __LINE__);
    }
};

/// Counts how often a widget is shown from now on.
struct ShowCounter : QObject
{
    explicit ShowCounter(QWidget *widget) { widget->installEventFilter(this); }
    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::Show ? 1 : 0;
        return false;
    }
    int count = 0;
};

/// Input of a user to a feature, and its effect. `inputWhilePolling()` interprets the script.
struct Input
{
    const char *feature = nullptr;
    const char *script = nullptr;
    const char *written = nullptr; ///< null: no write
    const char *edited = nullptr;  ///< the feature whose editor is open at the end; null: none
};

struct PaintedColours
{
    explicit PaintedColours(const QImage &cell)
    {
        QHash<QRgb, int> counts;
        for (int y = 0; y < cell.height(); ++y) {
            for (int x = 0; x < cell.width(); ++x)
                ++counts[cell.pixel(x, y)];
        }
        const auto isLess = [&](QRgb a, QRgb b) { return counts[a] < counts[b]; };
        const QList<QRgb> all = counts.keys();
        background = *std::max_element(all.begin(), all.end(), isLess);
        for (const QRgb colour : all)
            contrast = qMax(contrast, OrvGui::contrast(background, colour));
    }

    QRgb background = 0;
    double contrast = 1; ///< the highest contrast of the background with any pixel
};

/// Changes the value so that its text gets longer or shorter.
void changeByCamera(OrvGenApi::Node &node)
{
    if (auto *integer = dynamic_cast<OrvGenApi::MemoryInteger *>(&node))
        integer->change(1024);
    if (auto *number = dynamic_cast<OrvGenApi::MemoryFloat *>(&node))
        number->change(77);
}

} // namespace

Q_DECLARE_METATYPE(Input)

class TestOrvGenParamTreeView : public QObject
{
    Q_OBJECT

private slots:
    void withoutNodeMap();
    void levelsAndSpans();
    void description();
    void texts();
    void colours_data();
    void colours();
    void initialColumnWidths();

    void inputWhilePolling_data();
    void inputWhilePolling();
    void scrollingAndSearching();
    void choosingWithTheMouse();
    void listOpensOnce();
    void clickElsewhereEndsEditing();
    void untouchedEditors();
    void levelWhileEditing();
    void writesUserChangesOnly();

    void dragsColumnWidths();
    void columnBorders();

    void savedState();
    void restoredState();
    void invalidStates();

    void nodeMapDestroyedWhileEditing_data();
    void nodeMapDestroyedWhileEditing();
    void parametersReplacedByWrite();
    void changedOnAnotherThread();
    void readsVisibleRowsOnly();
    void levelKeepsCurrentRow();
    void levelOfALargeTree();
    void brokenCategories();
};

void TestOrvGenParamTreeView::withoutNodeMap()
{
    OrvGenParamTreeView view;
    QCOMPARE(view.saveState(), "");
    view.loadState("&amp;W200&amp;V1");
    QCOMPARE(view.visibility(), OrvGui::Basic);
    QVERIFY(!view.treeView()->model());
    view.setParams(static_cast<GenApi::INodeMap *>(nullptr));
    view.setParams(static_cast<OrvGenParam::Array *>(nullptr));
    QVERIFY(!view.treeView()->model());
}

void TestOrvGenParamTreeView::levelsAndSpans()
{
    SampleNodeMap map;
    OrvGenParamTreeView view(&map, nullptr);
    QTreeView *tree = view.treeView();
    const QAbstractItemModel *model = tree->model();
    TreeDriver driver(view);

    for (int row = 0; row < 4; ++row)
        QVERIFY(tree->isFirstColumnSpanned(row, QModelIndex()));
    QVERIFY(!tree->isFirstColumnSpanned(0, model->index(0, 0)));
    QVERIFY(!driver.cell("FirmwareKey").isValid());

    // A level takes effect at once; the model stays the same.
    auto *levels = view.findChild<QComboBox *>("cbVisibility");
    levels->setCurrentIndex(2);
    QCOMPARE(view.visibility(), OrvGui::Guru);
    QVERIFY(driver.cell("FirmwareKey").isValid());
    QCOMPARE(tree->model(), model);
    QVERIFY(tree->isFirstColumnSpanned(3, QModelIndex()));

    // A new tree uses the current level, and its visible categories span the columns.
    SampleNodeMap second;
    const auto selections = [&] { return int(tree->findChildren<QItemSelectionModel *>().size()); };
    const int before = selections();
    view.setParams(&second);
    QCOMPARE(selections(), before);
    QVERIFY(driver.cell("FirmwareKey").isValid());
    QVERIFY(tree->isFirstColumnSpanned(0, driver.cell("TransportLayerControl", 0)));
    view.clearParams();
    QVERIFY(!tree->model());
}

void TestOrvGenParamTreeView::description()
{
    MemoryTree shown;
    TreeDriver &driver = shown.driver;
    auto *panel = shown.view.findChild<QTextBrowser *>("whatsThisLabel");
    QVERIFY(panel->toPlainText().isEmpty());

    driver.click("Width", 0);
    QCOMPARE(driver.tree().currentIndex(), driver.cell("Width", 0));
    QVERIFY(panel->toPlainText().contains("Width of the image in pixels."));
    QVERIFY(panel->toPlainText().contains("Min: 16, Max: 1280\n"));
    shown.map.integer("Width").setLimits(16, 640); // a change by the camera itself
    QVERIFY(panel->toPlainText().contains("Min: 16, Max: 640\n"));

    shown.map.integer("Width").properties().description = "\xb5s"; // not valid UTF-8
    shown.map.integer("Width").changed();
    QVERIFY(panel->toPlainText().contains("\u00b5s"));
    // A camera's text cannot make the panel open a file.
    QTemporaryFile picture;
    QVERIFY(picture.open() && QImage(20, 20, QImage::Format_RGB32).save(&picture, "PNG"));
    QCOMPARE(panel->loadResource(QTextDocument::ImageResource, QUrl(picture.fileName())),
             QVariant());
    driver.click("DeviceControl", 0);
    QVERIFY(panel->toPlainText().startsWith("Name: Device Control"));
    driver.tree().setCurrentIndex(QModelIndex());
    QVERIFY(panel->toPlainText().isEmpty());
    driver.click("GevMACAddress", 0);
    QVERIFY(!panel->toPlainText().isEmpty());
    shown.view.setVisibility(OrvGui::Basic);
    QVERIFY(!driver.tree().currentIndex().isValid());
    QVERIFY(panel->toPlainText().isEmpty());
    driver.click("Width", 0);
    shown.view.clearParams();
    QVERIFY(panel->toPlainText().isEmpty());
}

void TestOrvGenParamTreeView::texts()
{
    SampleNodeMap map;
    const GenParamTreeModel model(&map);
    const auto text = [&](const char *feature, const QVariant &value, const char *locale = "C") {
        auto *node = dynamic_cast<GenApi::IValue *>(map.GetNode(feature));
        return OrvGui::featureText(node, value, QLocale(locale));
    };
    QCOMPARE(text("ReverseX", true), QString("True"));
    QCOMPARE(text("BinningHorizontal", QVariant::fromValue(-1234567L)), QString("-1234567 px"));
    QCOMPARE(text("DeviceUserID", "1e3"), QString("1e3"));

    auto &exposure = map.number("ExposureTime");
    const std::pair<double, const char *> numbers[] = {{1234567.25, "1234567.25 us"},
                                                       {10, "10 us"},
                                                       {-0.1, "-0.1 us"},
                                                       {0.000123456, "0.000123456 us"},
                                                       {1e-7, "1e-07 us"},
                                                       {1e300, "1e+300 us"},
                                                       {0, "0 us"}};
    for (const auto &number : numbers)
        QCOMPARE(text("ExposureTime", number.first), QString(number.second));
    QCOMPARE(text("ExposureTime", 1234567.25, "de"), QString("1234567,25 us"));
    exposure.setNotation(GenApi::fnFixed, 3);
    QCOMPARE(text("ExposureTime", 1.5), QString("1.500 us"));
    exposure.setNotation(GenApi::fnScientific, 2);
    QCOMPARE(text("ExposureTime", 1234.5), QString("1.23e+03 us"));
}

void TestOrvGenParamTreeView::colours_data()
{
    QTest::addColumn<QPalette>("palette");
    QTest::addColumn<QString>("styleSheet");
    QPalette dark;
    for (const auto role : {QPalette::Window, QPalette::Button, QPalette::AlternateBase})
        dark.setColor(role, QColor(53, 53, 53));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        dark.setColor(role, Qt::white);
    dark.setColor(QPalette::Base, QColor(25, 25, 25));
    QTest::newRow("light") << QPalette() << "";
    QTest::newRow("dark") << dark << "";
    QTest::newRow("everything") << QPalette()
                                << "QWidget { background-color: #202020; color: #e0e0e0; }";
    QTest::newRow("tree") << QPalette() << "QTreeView { background-color: #1e1e1e; color: #ddd; }";
    QTest::newRow("background only") << QPalette() << "QTreeView { background-color: #1e1e1e; }";
}

// Every cell must be legible with the host's colours, and a category added by a higher level must
// have the same colour in both columns.
void TestOrvGenParamTreeView::colours()
{
    QFETCH(QPalette, palette);
    QFETCH(QString, styleSheet);
    const QPalette before = QApplication::palette();
    QApplication::setStyle("Fusion");
    QApplication::setPalette(palette);
    qApp->setStyleSheet(styleSheet);
    {
        MemoryTree shown; // its level changes from the lowest upwards
        const QTreeView &tree = shown.tree;
        const QImage picture = tree.viewport()->grab().toImage();
        const auto colours = [&](const char *feature, int column) {
            const QRect rect = tree.visualRect(shown.driver.cell(feature, column));
            return PaintedColours(picture.copy(rect.adjusted(2, 2, -8, -2)));
        };
        for (const char *feature : {"DeviceControl", "GigEVision", "DeviceUserID", "ReverseX",
                                    "ExposureTime", "GainSelector", "Gain"})
            QVERIFY2(colours(feature, 0).contrast >= 4.5, feature);
        for (const char *feature :
             {"DeviceModelName", "DeviceReset", "DeviceTemperature", "FirmwareKey", "Width"})
            QVERIFY2(colours(feature, 1).contrast >= 4.5, feature);
        QCOMPARE(colours("GigEVision", 1).background, colours("GigEVision", 0).background);
        QVERIFY(colours("GigEVision", 0).background != colours("DeviceUserID", 0).background);
    }
    qApp->setStyleSheet(QString());
    QApplication::setPalette(before);
}

void TestOrvGenParamTreeView::initialColumnWidths()
{
    SampleNodeMap map;
    OrvGenParamTreeView view(&map, nullptr);
    view.resize(800, 400);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QTreeView *tree = view.treeView();
    const int half = tree->viewport()->width() / 2;
    QVERIFY2(qAbs(tree->columnWidth(0) - half) < 10, qPrintable(QString::number(half)));

    // Only once, and not after a width has been restored.
    tree->setColumnWidth(0, 123);
    view.hide();
    view.show();
    QCOMPARE(tree->columnWidth(0), 123);

    OrvGenParamTreeView restored(&map, nullptr);
    restored.loadState("&amp;W77");
    restored.show();
    QVERIFY(QTest::qWaitForWindowExposed(&restored));
    QCOMPARE(restored.treeView()->columnWidth(0), 77);
}

void TestOrvGenParamTreeView::inputWhilePolling_data()
{
    QTest::addColumn<Input>("row");
    const auto row = [](const char *name, const Input &input) { QTest::newRow(name) << input; };
    row("integer", {"Width", "click 640 Return", "640"});
    row("hexadecimal", {"GevDeviceModeCapability", "click c Return", "0xC"});
    row("float", {"ExposureTime", "click 512.5 Return", "512.5"});
    row("address", {"GevPersistentIPAddress", "click 10.1.2.3 Return", "167838211"});
    row("string", {"DeviceUserID", "click mycamera elsewhere", "mycamera"});
    row("untouched follows", {"Width", "click camera 64 Return", "64"});
    row("followed and left", {"Width", "click camera elsewhere"});
    row("touched stays", {"Width", "click 64 camera 0 Return", "640"});
    row("stepped stays", {"ExposureTime", "click Up camera Return", "10001"});
    row("too small", {"Width", "click 640 Backspace Backspace Return"});
    row("cleared", {"Width", "click Backspace elsewhere"});
    row("escape", {"Width", "click 640 Escape"});

    row("list escaped", {"PixelFormat", "click Down Escape Down wheel elsewhere"});
    row("list unchanged", {"PixelFormat", "click Return Down wheel elsewhere"});
    row("list left", {"PixelFormat", "click elsewhere Down wheel"});
    row("list passed", {"PixelFormat", "click Down Tab", nullptr, "ReverseX"});
    row("list chosen", {"PixelFormat", "click Down Return", "Mono12"});
    row("list of truth values", {"ReverseX", "click Up Return", "1"});
    row("list of integers", {"BinningHorizontal", "click Down Return", "2"});
    row("list of floats", {"Gain", "click Down Return", "3"});

    row("wheel", {"Width", "click wheel elsewhere"});
    row("wheel after a step", {"ExposureTime", "click Up Up Up wheel elsewhere", "10002"});
    row("wheel over a button", {"DeviceReset", "click wheel elsewhere"});

    row("F2", {"Width", "name F2 640 Return", "640"});
    row("Return", {"PixelFormat", "name Return Down Return", "Mono12"});
    row("Return of what is read only", {"DeviceModelName", "name Return Down"});
    row("again", {"Width", "name F2 Escape F2 32 Return", "32"});
    row("Tab", {"ReverseX", "name F2 Tab", nullptr, "ExposureTime"});
    row("Tab after typing", {"Width", "name F2 640 Tab", "640", "BinningHorizontal"});
    row("Backtab", {"ExposureTime", "name F2 Backtab", nullptr, "ReverseX"});
    row("Tab at the end", {"GevDeviceModeCapability", "name F2 Tab"});
    row("arrows in a line", {"DeviceUserID", "click a Up b Down Return", "ab"});
    row("arrows after it", {"DeviceUserID", "name F2 a Return Down Down Up", "a"});
}

// The camera gets the user's input only. The node is polled between any two keys, as if the user
// typed slowly.
void TestOrvGenParamTreeView::inputWhilePolling()
{
    QFETCH(Input, row);
    MemoryTree shown;
    TreeDriver &driver = shown.driver;
    shown.map.integer("Width").change(16);
    OrvGenApi::Node &node = *shown.map.node(row.feature);
    node.properties().pollingTime = 100;
    const auto wait = [&] { shown.map.Poll(1000); };

    const QMetaEnum keys = QMetaEnum::fromType<Qt::Key>();
    for (const QString &word : QString::fromLatin1(row.script).split(' ')) {
        const int key = keys.keyToValue(qPrintable("Key_" + word));
        if (word == "click" || word == "name")
            driver.click(row.feature, word == "click" ? 1 : 0);
        else if (word == "elsewhere")
            driver.click("AcquisitionControl", 0);
        else if (word == "wheel")
            driver.turnWheel(row.feature);
        else if (word == "camera")
            changeByCamera(node);
        else if (word.size() > 1 && key != -1)
            driver.press(Qt::Key(key));
        else
            std::for_each(word.begin(), word.end(), [&](QChar character) {
                driver.type(character);
                wait();
            });
        wait();
    }
    QVERIFY(!QApplication::activePopupWidget() || row.edited);
    QCOMPARE(dynamic_cast<OrvGenApi::MemoryAccess &>(node).writes(), row.written ? 1 : 0);
    if (row.written)
        QCOMPARE(dynamic_cast<GenApi::IValue &>(node).ToString().c_str(), row.written);
    QCOMPARE(driver.isEditing(), row.edited != nullptr);
    if (row.edited)
        QVERIFY(driver.tree().indexWidget(driver.cell(row.edited)));
}

// The wheel scrolls unless it is over an editor in use; letters search the names.
void TestOrvGenParamTreeView::scrollingAndSearching()
{
    MemoryTree shown;
    TreeDriver &driver = shown.driver;
    shown.view.resize(500, 300);
    const QScrollBar &bar = *shown.tree.verticalScrollBar();
    for (const char *feature : {"Width", "DeviceUserID", "DeviceReset"}) {
        driver.click(feature);
        QVERIFY(driver.isEditing());
        const int before = bar.value();
        driver.turnWheel(feature);
        QVERIFY2(bar.value() > before, feature);
    }
    driver.click("DeviceModelName");
    QCOMPARE(shown.tree.currentIndex().column(), 1);
    driver.type("rev");
    QCOMPARE(shown.tree.currentIndex(), driver.cell("ReverseX", 0));
    driver.press(Qt::Key_Escape);
    driver.press(Qt::Key_F2);
    QVERIFY(driver.editor<QComboBox>());
}

void TestOrvGenParamTreeView::choosingWithTheMouse()
{
    struct Choice
    {
        const char *feature;
        int row;
        const char *written;
    };
    MemoryTree shown;
    for (const Choice &choice : {Choice{"ReverseX", 0, "1"},
                                 {"PixelFormat", 1, "Mono12"},
                                 {"BinningHorizontal", 1, "2"},
                                 {"Gain", 2, "3"}}) {
        shown.driver.click(choice.feature);
        auto *comboBox = shown.driver.editor<QComboBox>();
        QVERIFY(comboBox);
        QAbstractItemView *list = comboBox->view();
        QTRY_VERIFY(list->window()->windowHandle()->isExposed());
        const QRect entry = list->visualRect(list->model()->index(choice.row, 0));
        TreeDriver::click(*list->viewport(), entry.center());
        QTRY_VERIFY(!shown.driver.isEditing());
        QVERIFY(!QApplication::activePopupWidget());
        QCOMPARE(shown.map.get<GenApi::IValue>(choice.feature).ToString().c_str(), choice.written);
    }
}

// The node notifies after a write and after a change by the camera; the list must not open again.
void TestOrvGenParamTreeView::listOpensOnce()
{
    MemoryTree shown;
    SampleNodeMap &map = shown.map;
    TreeDriver &driver = shown.driver;
    for (const bool byCamera : {false, true}) {
        driver.tree().setCurrentIndex(QModelIndex());
        driver.click("PixelFormat");
        QPointer<QComboBox> comboBox(driver.editor<QComboBox>());
        QVERIFY(comboBox);
        ShowCounter counter(comboBox->view()->window());
        driver.press(byCamera ? Qt::Key_Up : Qt::Key_Down);
        map.enumeration("PixelFormat").changed(); // with the same value
        QCOMPARE(comboBox->view()->currentIndex().row(), 1 - comboBox->currentIndex());
        if (byCamera) {
            map.enumeration("PixelFormat").change(0x01080001);
        } else {
            driver.press(Qt::Key_Return);
        }
        QVERIFY(!driver.isEditing());
        QVERIFY(!QApplication::activePopupWidget());
        QCOMPARE(counter.count, 0);
        QCOMPARE(driver.text("PixelFormat"), byCamera ? QString("Mono8") : QString("Mono12"));
    }
}

void TestOrvGenParamTreeView::clickElsewhereEndsEditing()
{
    MemoryTree shown;
    auto &width = shown.map.integer("Width");
    TreeDriver &driver = shown.driver;

    // A click into the editor does not end editing. A click on another row does, and so does one in
    // another window of the program.
    driver.click("Width");
    auto *spinBox = driver.editor<QSpinBox>();
    spinBox->setValue(640);
    TreeDriver::click(*spinBox, spinBox->rect().center());
    QCOMPARE(driver.editor<QSpinBox>(), spinBox);
    driver.click("DeviceControl", 0);
    QTRY_VERIFY(!driver.editor<QSpinBox>());
    QCOMPARE(width.GetValue(), int64_t(640));
    QCOMPARE(driver.tree().currentIndex(), driver.cell("DeviceControl", 0));

    QWidget elsewhere;
    elsewhere.setGeometry(900, 50, 100, 100);
    elsewhere.show();
    QVERIFY(QTest::qWaitForWindowExposed(&elsewhere));
    shown.view.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&shown.view));
    driver.click("Width");
    driver.editor<QSpinBox>()->setValue(320);
    TreeDriver::click(elsewhere, QPoint(50, 50));
    QTRY_VERIFY(!driver.isEditing());
    QCOMPARE(width.GetValue(), int64_t(320));
}

// Closing an editor without input writes nothing, whether the editor shows the value exactly,
// rounded or not at all. If the user enters the shown value, it is written.
void TestOrvGenParamTreeView::untouchedEditors()
{
    const auto fail = [] { throw GenICam::TimeoutException("no answer", __FILE__, __LINE__); };
    SampleNodeMap map;
    auto &rounded = map.addFloat("Rounded", 0.125, "DeviceControl");
    rounded.setLimits(0, 24);
    auto &password = map.addString("Password", "secret", "DeviceControl");
    auto &mode = map.addEnumeration("Mode", {{"A", 0}, {"B", 1}}, 1, "DeviceControl");
    auto &flag = map.addBoolean("Flag", false, "DeviceControl");
    password.setAccessMode(GenApi::WO);
    mode.setAccessMode(GenApi::WO);
    auto &address = map.integer("GevPersistentIPAddress");
    auto &exposure = map.number("ExposureTime");
    address.onRead(fail);
    exposure.onRead(fail);
    flag.onRead(fail);

    struct Row
    {
        QByteArray feature, keys;
        const char *after;
        std::function<int()> writes;
        std::function<QString()> value;
    };
    const auto of = [](auto &node, const char *keys, const char *after) {
        const auto value = [&node] {
            node.onRead({});
            node.setAccessMode(GenApi::RW);
            return QString(node.ToString().c_str());
        };
        return Row{node.GetName().c_str(), keys, after, [&node] { return node.writes(); }, value};
    };
    const Row rows[] = {of(rounded, "0.13", "0.13"),
                        of(map.addInteger("Big", 1LL << 33, "DeviceControl"), "0", "0"),
                        of(map.integer("FirmwareKey"), "0", "0"),
                        of(password, "new", "new"),
                        of(address, "10.0.0.1", "167772161"),
                        of(exposure, "10", "10"),
                        of(mode, "A", "A"),
                        of(flag, "T", "1"),
                        of(map.integer("BinningHorizontal"), "2", "2")};
    OrvGenParamTreeView view(&map, nullptr);
    TreeDriver driver(view);
    driver.show();
    for (const Row &row : rows) {
        const QByteArray &feature = row.feature;
        driver.click(feature);
        QVERIFY2(driver.isEditing(), feature);
        const bool isList = driver.editor<QComboBox>();
        QCOMPARE(QApplication::activePopupWidget() != nullptr, isList);
        if (isList)
            driver.press(Qt::Key_Escape);
        else
            QVERIFY(!driver.editor<QLineEdit>()->text().contains("Value not"));
        driver.click("DeviceControl", 0);
        QTRY_VERIFY(!driver.isEditing());
        QVERIFY2(row.writes() == 0, feature);

        driver.click(feature);
        driver.type(row.keys);
        driver.press(Qt::Key_Return);
        QTRY_VERIFY(!driver.isEditing());
        QVERIFY2(row.writes() == 1, feature);
        QCOMPARE(row.value(), QString(row.after));
    }

    // A number without limits gets no editor.
    map.integer("Width").bindMax([fail]() -> int64_t {
        fail();
        return 0;
    });
    map.integer("Width").changed();
    driver.click("Width");
    QVERIFY(!driver.isEditing());
}

// A new level that hides the edited feature: the input is written, and the neighbours are not.
void TestOrvGenParamTreeView::levelWhileEditing()
{
    OrvGenApi::MemoryNodeMap map("Levels");
    SampleNodeMap next;
    std::vector<OrvGenApi::MemoryInteger *> features;
    for (int i = 0; i < 6; ++i) {
        features.push_back(&map.addInteger("Feature" + std::to_string(i), i, "All"));
        features.back()->setLimits(0, 100);
        features.back()->properties().visibility = i % 5 ? GenApi::Guru : GenApi::Beginner;
    }
    OrvGenParamTreeView view(&map, nullptr);
    TreeDriver driver(view);
    driver.show();
    const QAbstractItemModel &model = *driver.tree().model();
    driver.click("Feature3");
    driver.type("77");
    view.setVisibility(OrvGui::Basic);
    QVERIFY(!driver.isEditing());
    QCOMPARE(model.rowCount(model.index(0, 0)), 2);
    view.setVisibility(OrvGui::Guru);
    QCOMPARE(model.rowCount(model.index(0, 0)), 6);
    QVERIFY(!driver.isEditing());
    for (const auto *feature : features)
        QCOMPARE(feature->writes(), feature == features[3] ? 1 : 0);
    QCOMPARE(features[3]->GetValue(), int64_t(77));

    // A host may replace the tree in a callback of this write.
    const GenApi::CallbackHandleType handle = GenApi::Register(
        features[3], [&](GenApi::INode *) { view.setParams(&next); }, GenApi::cbPostOutsideLock);
    driver.click("Feature3");
    driver.type("78");
    view.setVisibility(OrvGui::Basic);
    GenApi::Deregister(handle);
    QCOMPARE(features[3]->GetValue(), int64_t(78));
    QVERIFY(driver.cell("Width").isValid() && !driver.cell("FirmwareKey").isValid());
}

// An incomplete address is not written, nor is a change by the camera while the list is open. The
// smallest step of a large number is written.
void TestOrvGenParamTreeView::writesUserChangesOnly()
{
    SampleNodeMap map;
    auto &large = map.addFloat("Large", 1e12, "DeviceControl");
    large.setLimits(0, 1e13);
    auto &listed = map.addInteger("Listed", 2, "DeviceControl");
    listed.setValidValues({0, 1, 2, 4});
    OrvGenParamTreeView view(&map, nullptr);
    TreeDriver driver(view);
    driver.show();

    driver.click("GevPersistentIPAddress");
    driver.type("192.168");
    view.setVisibility(OrvGui::Expert);
    QVERIFY(!driver.isEditing());
    QCOMPARE(map.integer("GevPersistentIPAddress").writes(), 0);

    driver.click("Large");
    driver.press(Qt::Key_Up);
    driver.press(Qt::Key_Return);
    QCOMPARE(large.writes(), 1);
    QCOMPARE(large.GetValue() - 1e12, 1.0);

    for (const int64_t value : {4, 3}) {
        driver.click("Listed");
        QVERIFY(QApplication::activePopupWidget());
        listed.change(value);
        QTRY_VERIFY(!driver.isEditing());
        QCOMPARE(listed.writes(), 0);
        driver.click("Large", 0);
    }

    // If no entry is available, the editor shows a message and writes nothing.
    auto &format = map.enumeration("PixelFormat");
    for (const char *entry : {"Mono8", "Mono12"})
        format.entry(entry).setAccessMode(GenApi::NA);
    driver.click("PixelFormat");
    QVERIFY(driver.editor<QLineEdit>());
    QCOMPARE(driver.editor<QLineEdit>()->text(), QString("Mono8 (no entry is available)"));
    driver.type("x");
    driver.press(Qt::Key_Return);
    QVERIFY(!driver.isEditing());
    QCOMPARE(format.writes(), 0);

    // A host may insert another filter model and use a delegate of its own.
    QTreeView &tree = driver.tree();
    QAbstractItemModel *const model = tree.model();
    QAbstractItemDelegate *const delegate = tree.itemDelegateForColumn(1);
    view.setVisibility(OrvGui::Guru);
    QVERIFY(driver.cell("FirmwareKey").isValid());
    QSortFilterProxyModel filter;
    filter.setSourceModel(model);
    tree.setModel(&filter);
    tree.setItemDelegateForColumn(1, nullptr);
    tree.expandAll();
    tree.setCurrentIndex(filter.index(0, 1, filter.index(0, 0)));
    tree.edit(tree.currentIndex());
    view.setVisibility(OrvGui::Basic);
    tree.setItemDelegateForColumn(1, delegate);
    tree.setModel(model);
    QVERIFY(!driver.cell("FirmwareKey").isValid());
}

void TestOrvGenParamTreeView::dragsColumnWidths()
{
    MemoryTree shown;
    TreeDriver &driver = shown.driver;
    QTreeView &tree = shown.tree;
    const auto dragBorder = [&](int y, int by) {
        const QPoint from(tree.columnWidth(0) - 1, y);
        driver.drag(from, from + QPoint(by, 0));
    };
    const int y = tree.visualRect(driver.cell("ExposureTime")).center().y();

    tree.setColumnWidth(0, 300);
    dragBorder(y, 50);
    QCOMPARE(tree.columnWidth(0), 350);
    QVERIFY(!tree.currentIndex().isValid());
    dragBorder(y, -2000);
    QCOMPARE(tree.columnWidth(0), 10);
    tree.setColumnWidth(0, 300);

    // Dragging beside an open editor, which ends like with any other click.
    for (const char *feature : {"Width", "DeviceReset"}) {
        const int width = tree.columnWidth(0);
        driver.click(feature);
        QVERIFY(driver.isEditing());
        dragBorder(tree.visualRect(driver.cell(feature)).center().y() + 4, 20);
        QCOMPARE(tree.columnWidth(0), width + 20);
        QTRY_VERIFY(!driver.isEditing());
    }
}

void TestOrvGenParamTreeView::columnBorders()
{
    MemoryTree shown;
    TreeDriver &driver = shown.driver;
    QTreeView &tree = shown.tree;
    auto &resizer = *tree.findChild<TreeViewResizer *>();
    const QRect rect = tree.visualRect(driver.cell("ExposureTime", 0));
    const QPoint border(rect.right(), rect.center().y() + 4);
    for (const int distance : {-4, 0, 4})
        QCOMPARE(resizer.ifResizable(border + QPoint(distance, 0)).column(), 0);
    for (const int distance : {-5, 5})
        QVERIFY(!resizer.ifResizable(border + QPoint(distance, 0)).isValid());

    QWindow *window = shown.view.windowHandle();
    const auto inWindow = [&](const QPoint &at) { return tree.viewport()->mapTo(&shown.view, at); };
    QTest::mouseMove(window, inWindow(border));
    QTRY_COMPARE(tree.viewport()->cursor().shape(), Qt::SplitHCursor);
    QTest::mouseMove(window, inWindow(border - QPoint(30, 0)));
    QTRY_COMPARE(tree.viewport()->cursor().shape(), Qt::ArrowCursor);
}

void TestOrvGenParamTreeView::savedState()
{
    SampleNodeMap map;
    map.addCategory("TransportLayer", "DeviceControl").properties().displayName = "Transport Layer";
    OrvGenParamTreeView view(&map, nullptr);
    QTreeView *tree = view.treeView();
    TreeDriver driver(view);

    tree->setColumnWidth(0, 200);
    QCOMPARE(view.saveState(), "&amp;W200&amp;V0");
    for (const char *category : {"DeviceControl", "TransportLayer", "ImageFormatControl"})
        tree->expand(driver.cell(category, 0));
    tree->setColumnWidth(0, 250);
    view.setVisibility(OrvGui::Expert);
    QCOMPARE(view.saveState(), "Device Control&lt;Device Control/Transport Layer&lt;"
                               "Image Format Control&lt;&amp;W250&amp;V1");

    // An expanded category within a collapsed one is saved.
    tree->collapse(driver.cell("DeviceControl", 0));
    QCOMPARE(view.saveState(),
             "Device Control/Transport Layer&lt;Image Format Control&lt;&amp;W250&amp;V1");
}

void TestOrvGenParamTreeView::restoredState()
{
    SampleNodeMap map;
    map.addCategory("Device").properties().displayName = "Device";
    map.addInteger("InDevice", 0, "Device");
    OrvGenParamTreeView view(&map, nullptr);
    QTreeView *tree = view.treeView();
    TreeDriver driver(view);
    const auto expanded = [&](const char *category) {
        return tree->isExpanded(driver.cell(category, 0));
    };

    tree->setColumnWidth(0, 111);
    view.loadState("Device Control&lt;&amp;W0&amp;V2");
    QVERIFY(expanded("DeviceControl"));
    QVERIFY(expanded("Device")); // the text contains "Device"
    QVERIFY(!expanded("ImageFormatControl"));
    QCOMPARE(tree->columnWidth(0), 111);
    QCOMPARE(view.visibility(), OrvGui::Guru);

    // The states of the categories at the former level count.
    view.setVisibility(OrvGui::Basic);
    view.loadState("Transport Layer Control&lt;Transport Layer Control/GigE Vision&lt;&amp;V1");
    QVERIFY(!expanded("DeviceControl"));
    QVERIFY(expanded("TransportLayerControl"));
    QCOMPARE(view.visibility(), OrvGui::Expert);
    QVERIFY(!expanded("GigEVision"));
    view.loadState("Transport Layer Control&lt;Transport Layer Control/GigE Vision&lt;");
    QVERIFY(expanded("GigEVision"));
    view.loadState(nullptr);
    view.loadState("");
    QVERIFY(expanded("GigEVision"));

    const QByteArray state(view.saveState());
    view.loadState("&amp;W90");
    QVERIFY(QByteArray(view.saveState()) != state);
    view.setParams(&map);
    view.loadState(state.constData());
    view.loadState(view.saveState()); // returned by the view itself
    QCOMPARE(QByteArray(view.saveState()), state);
}

void TestOrvGenParamTreeView::invalidStates()
{
    SampleNodeMap map;
    OrvGenParamTreeView view(&map, nullptr);
    const QByteArray before(view.saveState());
    view.loadState("&amp;W");
    view.loadState("&amp;W5000000"); // exceeds the maximum width
    view.loadState("&amp;W-3");
    view.loadState("&W12&V2");
    QCOMPARE(QByteArray(view.saveState()), before);
    view.loadState("&amp;W88 and what follows&amp;V2nd");
    QCOMPARE(view.saveState(), "&amp;W88&amp;V2");
    view.loadState("&amp;V7"); // an invalid level: none is selected
    QCOMPARE(view.saveState(), "&amp;W88&amp;V-1");

    QVERIFY_EXCEPTION_THROWN(view.loadState("&amp;Wide"), std::invalid_argument);
    QVERIFY_EXCEPTION_THROWN(view.loadState("&amp;V99999999999"), std::out_of_range);
}

void TestOrvGenParamTreeView::nodeMapDestroyedWhileEditing_data()
{
    QTest::addColumn<QString>("feature");
    QTest::addColumn<QString>("how");
    for (const char *feature : {"Width", "Gain", "PixelFormat", "DeviceUserID", "DeviceReset",
                                "GevPersistentIPAddress"}) {
        for (const char *how : {"replace", "clear", "delete"}) {
            const QByteArray name = QByteArray(feature) + ' ' + how;
            QTest::newRow(name.constData()) << feature << how;
        }
    }
}

// The node map is destroyed right after the tree has released it, while an editor is open and
// Return is still in Qt's event queue. The sanitizers report any access to it.
void TestOrvGenParamTreeView::nodeMapDestroyedWhileEditing()
{
    QFETCH(QString, feature);
    QFETCH(QString, how);

    auto map = std::make_unique<SampleNodeMap>();
    SampleNodeMap next;
    auto view = std::make_unique<OrvGenParamTreeView>(map.get(), nullptr);
    TreeDriver driver(*view);
    driver.show();
    driver.click(feature.toLatin1().constData());
    QVERIFY(driver.isEditing());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_1);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);

    if (how == QLatin1String("replace"))
        view->setParams(&next);
    else if (how == QLatin1String("clear"))
        view->clearParams();
    else
        view.reset();
    map.reset();
    QVERIFY(!QApplication::activePopupWidget());

    QWidget elsewhere;
    elsewhere.show();
    QVERIFY(QTest::qWaitForWindowExposed(&elsewhere));
    TreeDriver::click(elsewhere, QPoint(5, 5));
    QTest::qWait(20);
    if (view && view->treeView()->model()) {
        driver.show();
        driver.click("Width");
        driver.type("640");
        driver.press(Qt::Key_Return);
        QTRY_COMPARE(next.integer("Width").GetValue(), int64_t(640));
    }
}

// A host may set other parameters in a callback of a write.
void TestOrvGenParamTreeView::parametersReplacedByWrite()
{
    for (const char *feature : {"Width", "PixelFormat", "DeviceReset"}) {
        SampleNodeMap next;
        MemoryTree shown;
        TreeDriver &driver = shown.driver;
        const GenApi::CallbackHandleType handle = GenApi::Register(
            shown.map.GetNode(feature), [&](GenApi::INode *) { shown.view.setParams(&next); },
            GenApi::cbPostOutsideLock);

        driver.click(feature);
        QVERIFY(driver.isEditing());
        if (auto *button = driver.editor<QPushButton>()) {
            TreeDriver::click(*button, button->rect().center());
        } else {
            driver.press(Qt::Key_Down);
            driver.press(Qt::Key_Return);
        }
        QTRY_VERIFY(!driver.isEditing());
        QTest::qWait(20);
        QVERIFY(!QApplication::activePopupWidget());
        GenApi::Deregister(handle);
        shown.map.integer("Width").change(16);
        QVERIFY(driver.text("Width") != QString("16"));
    }
}

void TestOrvGenParamTreeView::changedOnAnotherThread()
{
    MemoryTree shown;
    SampleNodeMap &map = shown.map;
    TreeDriver &driver = shown.driver;
    QSignalSpy changes(driver.tree().model(), &QAbstractItemModel::dataChanged);
    std::thread([&map] { map.integer("Width").change(320); }).join();
    QTRY_COMPARE(changes.count(), 1);
    QCOMPARE(changes.first().first().toModelIndex(), driver.cell("Width"));
    QCOMPARE(driver.text("Width"), QString("320"));

    // Pending notifications are dropped when the parameters are removed.
    std::thread([&map] { map.integer("Width").change(640); }).join();
    shown.view.clearParams();
    QCoreApplication::processEvents();
    QCOMPARE(changes.count(), 1);
}

// Rows that have been visible have been read once; other rows have not been read.
void TestOrvGenParamTreeView::readsVisibleRowsOnly()
{
    OrvGenApi::MemoryNodeMap map("Many");
    std::vector<OrvGenApi::MemoryInteger *> features;
    map.addCategory("All");
    for (int i = 0; i < 300; ++i)
        features.push_back(&map.addInteger("Feature" + std::to_string(i), i, "All"));
    OrvGenParamTreeView view(&map, nullptr);
    TreeDriver driver(view);
    QCOMPARE(features.front()->reads(), 0);
    driver.show();
    QTRY_VERIFY(features.front()->reads() > 0);
    QTest::qWait(50);

    QTreeView &tree = driver.tree();
    const auto isOnScreen = [&](size_t i) {
        const QModelIndex cell = driver.cell(features[i]->GetName().c_str());
        return tree.viewport()->rect().intersects(tree.visualRect(cell));
    };
    int seen = 0;
    for (size_t i = 0; i < features.size(); ++i) {
        QCOMPARE(features[i]->reads(), isOnScreen(i) ? 1 : 0);
        seen += features[i]->reads();
    }
    QVERIFY(seen > 10 && seen < 100);

    const auto total = [&features] {
        return std::accumulate(features.begin(), features.end(), 0,
                               [](int sum, const auto *feature) { return sum + feature->reads(); });
    };
    view.hide();
    view.show();
    QVERIFY(QTest::qWaitForWindowActive(&view));
    for (int y = 5; y < tree.viewport()->height(); y += 15)
        QTest::mouseMove(view.windowHandle(), tree.viewport()->mapTo(&view, QPoint(300, y)));
    view.resize(800, 600);
    tree.viewport()->repaint();
    QTest::qWait(50);
    QCOMPARE(total(), seen);

    // Scrolling reads each row once, when it becomes visible.
    QScrollBar &bar = *tree.verticalScrollBar();
    for (int i = -40; i <= 40; ++i) {
        bar.setValue(bar.maximum() * qAbs(i) / 40);
        tree.viewport()->repaint();
    }
    QCOMPARE(total(), int(features.size()));
}

void TestOrvGenParamTreeView::levelKeepsCurrentRow()
{
    OrvGenApi::MemoryNodeMap map("Places");
    for (int i = 0; i < 60; ++i) {
        const std::string category = i < 30 ? "First" : "Second";
        map.addInteger("Feature" + std::to_string(i), i, category).properties().visibility =
            i % 3 ? GenApi::Guru : GenApi::Beginner;
    }
    map.addCategory("Hidden").properties().visibility = GenApi::Guru;
    map.addInteger("Inside", 0, "Hidden");
    OrvGenParamTreeView view(&map, nullptr);
    TreeDriver driver(view);
    driver.show();
    QTreeView &tree = driver.tree();
    const QAbstractItemModelTester tester(tree.model(),
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    const auto current = [&] { return tree.currentIndex().data().toString(); };
    tree.collapse(driver.cell("Hidden", 0));
    tree.setCurrentIndex(driver.cell("Feature33", 0));
    tree.scrollTo(tree.currentIndex(), QAbstractItemView::PositionAtTop);
    for (const OrvGui::Visibility level : {OrvGui::Basic, OrvGui::Guru}) {
        view.setVisibility(level);
        QCOMPARE(current(), QString("Feature33"));
        QCOMPARE(tree.selectionModel()->selectedRows().size(), 1);
        QVERIFY(tree.selectionModel()->isSelected(tree.currentIndex()));
        for (const char *category : {"First", "Second"}) {
            QVERIFY(tree.isExpanded(driver.cell(category, 0)));
            QVERIFY(tree.isFirstColumnSpanned(driver.cell(category, 0).row(), QModelIndex()));
        }
    }
    QVERIFY(!tree.isExpanded(driver.cell("Hidden", 0)));

    // The current row moves to a neighbour when it is hidden.
    for (const auto &[before, after] :
         {std::pair{"Feature34", "Feature36"}, {"Feature59", "Feature57"}}) {
        tree.setCurrentIndex(driver.cell(before, 0));
        view.setVisibility(OrvGui::Basic);
        QCOMPARE(current(), QString(after));
        view.setVisibility(OrvGui::Guru);
    }
    tree.expand(driver.cell("Hidden", 0));
    tree.setCurrentIndex(driver.cell("Inside", 0));
    view.setVisibility(OrvGui::Basic);
    QVERIFY(!tree.currentIndex().isValid());
    view.setVisibility(OrvGui::Guru);

    // A feature in two categories stays current in the same category.
    map.category("Second").addFeature(*map.node("Feature0"));
    view.setParams(&map);
    driver.show();
    const QModelIndex second = driver.cell("Second", 0);
    tree.setCurrentIndex(second.model()->index(second.model()->rowCount(second) - 1, 0, second));
    QCOMPARE(current(), QString("Feature0"));
    view.setVisibility(OrvGui::Basic);
    QCOMPARE(current(), QString("Feature0"));
    QCOMPARE(tree.currentIndex().parent().data().toString(), QString("Second"));
}

// Changing the level must not take time proportional to hidden rows times expanded rows: with this
// tree, that would be minutes.
void TestOrvGenParamTreeView::levelOfALargeTree()
{
#ifdef ORV_ADDRESS_SANITIZER // a hundred times slower
    constexpr int count = 1000;
#else
    constexpr int count = 5000;
#endif
    OrvGenApi::MemoryNodeMap map("Large");
    for (int i = 0; i < 100; ++i)
        map.addCategory("Category" + std::to_string(i));
    for (int i = 0; i < count; ++i) {
        map.addInteger("Feature" + std::to_string(i), i, "Category" + std::to_string(i % 100))
            .properties()
            .visibility = static_cast<GenApi::EVisibility>(i / 100 % 3);
    }
    OrvGenParamTreeView view(&map, nullptr);
    TreeDriver driver(view);
    driver.show();

    QElapsedTimer timer;
    timer.start();
    view.setVisibility(OrvGui::Basic);
    view.setVisibility(OrvGui::Guru);
    QVERIFY2(timer.elapsed() < 10000, qPrintable(QString::number(timer.elapsed())));
    const QAbstractItemModel &model = *driver.tree().model();
    for (const int row : {0, 99}) {
        QVERIFY(driver.tree().isExpanded(model.index(row, 0)));
        QCOMPARE(model.rowCount(model.index(row, 0)), count / 100);
    }
}

// An exception that reaches Qt's event loop would end the program.
void TestOrvGenParamTreeView::brokenCategories()
{
    SampleNodeMap map;
    OrvGenApi::NodeProperties properties;
    properties.name = "Broken";
    BrokenCategory broken(map, properties);
    map.root().addFeature(broken);
    for (const char *feature : {"Width", "FirmwareKey", "DeviceTemperature", "Gain"})
        broken.addFeature(*map.node(feature));
    broken.addFeature(broken);
    OrvGenParamTreeView view(&map, nullptr);
    TreeDriver driver(view);
    driver.show();
    const auto useIt = [&] {
        for (const OrvGui::Visibility level : {OrvGui::Basic, OrvGui::Expert, OrvGui::Guru}) {
            view.setVisibility(level);
            driver.tree().expandAll();
            map.integer("Width").change(level);
            view.grab();
            driver.click("Width", 0);
            driver.press(Qt::Key_Down);
        }
    };
    useIt();
    broken.size = 2;
    useIt();
    broken.isFailing = true;
    useIt();
    view.setParams(&map);
    QVERIFY(driver.cell("Width").isValid());
    useIt();
}

QTEST_MAIN(TestOrvGenParamTreeView)
#include "tst_orvgenparamtreeview.moc"
