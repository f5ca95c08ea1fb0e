// SPDX-License-Identifier: MIT
#include <controls.h>
#include <looks.h>
#include <pickerparts.h>

#include <GenApi/GenApi.h>
#include <OrvCam.h>
#include <OrvGenParam.h>
#include <history/historycaption.h>
#include <history/historywindow.h>
#include <openingprogress.h>
#include <orvcamconfig.h>
#include <orvcamconfigcolordialog.h>
#include <orvcamconfigframeabdialog.h>
#include <orvcamconfigoutputdialog.h>
#include <orvcamconfigpulsedialog.h>
#include <orvcamconfigstrobedialog.h>
#include <orvcamconfigtriggerdialog.h>
#include <orvcameraselectordialog.h>
#include <orvfeaturebrowser.h>
#include <orvgenparamtreeview.h>
#include <qtorvslider.h>
#include <qtorvspinbox.h>
#include <setipdialog.h>
#include <settings/settingstabledialog.h>

#include <QtTest>
#include <QtWidgets>

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace {

// Colours of the host, and buttons with more padding than in the style.
const char darkSheet[] =
    "QWidget { background-color: #23262b; color: #d8dade; }"
    "QPushButton, QToolButton { background-color: #3a3f47; border: 1px solid #5a606a;"
    "  border-radius: 4px; padding: 6px 24px; }"
    "QPushButton:checked { background-color: #2f5d8a; }"
    "QLineEdit, QComboBox, QAbstractSpinBox, QAbstractItemView, QTextEdit {"
    "  background-color: #1b1d21; border: 1px solid #5a606a; }"
    "QComboBox { padding: 2px 18px 2px 4px; }"
    "QHeaderView::section { background-color: #2d3138; padding: 4px 12px; border: none; }"
    "QMenu::item:selected, QMenuBar::item:selected { background-color: #2f5d8a; }"
    "QGroupBox { border: 1px solid #5a606a; margin-top: 1.5em; }"
    "QGroupBox::title { subcontrol-origin: margin; padding: 0 4px; }"
    "*:disabled { color: #6b7078; }";

QPalette darkPalette()
{
    const QColor window(0x35, 0x35, 0x35);
    const QColor base(0x23, 0x23, 0x23);
    const QColor faint(0x80, 0x80, 0x80);
    QPalette palette(window, window);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                            QPalette::ToolTipText, QPalette::BrightText}) {
        palette.setColor(role, Qt::white);
        palette.setColor(QPalette::Disabled, role, faint);
    }
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::AlternateBase, QColor(0x2b, 0x2b, 0x2b));
    palette.setColor(QPalette::ToolTipBase, base);
    palette.setColor(QPalette::Highlight, QColor(0x2a, 0x60, 0x9a));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(0x6c, 0xb2, 0xff));
    return palette;
}

enum Colors { Light, Dark, DarkSheet };

/// Language, colours, font and direction in which the windows are checked. High-resolution screens
/// need only a few of them, since only rounding differs there.
struct Condition
{
    const char *name;
    const char *language;
    Colors colors = Light;
    int points = 9;
    bool isRightToLeft = false;
    bool isForFineScreens = false;
};

// Colours do not depend on the language; the room for texts depends on language and font size.
const Condition conditions[] = {
    {"light, en", "en"},
    {"light, de", "de", Light, 9, false, true},
    {"light, ja", "ja"},
    {"dark, en", "en", Dark},
    {"sheet, de", "de", DarkSheet},
    {"sheet, ja", "ja", DarkSheet},
    {"18 points, de", "de", Light, 18, false, true},
    {"18 points, ja, dark", "ja", Dark, 18},
    {"right to left, de", "de", Light, 9, true},
    {"right to left, 18 points, sheet, en", "en", DarkSheet, 18, true},
};

using Window = std::unique_ptr<QWidget>;

} // namespace

/// Every window must be legible, accessible and usable without a mouse, in every condition.
class TestLooks : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void findsFaults();
    void windowsHaveNoFaults_data();
    void windowsHaveNoFaults();
    void editorsHaveNames();
    void cleanupTestCase();

private:
    void change(const Condition &condition);
    void translate(const QString &language);
    Window make(const QString &name);
    Window makeTree();
    Window makeBrowser();
    static Window makeDifferences();
    Window makePicker();
    static Window makeAddresses(unsigned camera);
    template<class Dialog>
    Window makeDialog();

    OrvCam::System *m_system = nullptr;
    OrvCam::Device *m_device = nullptr;
    QPalette m_lightPalette;
    QString m_current;
    std::vector<std::unique_ptr<QTranslator>> m_translators;
};

namespace {

OrvCam::Device *openCamera(OrvCam::System &system)
{
    OrvCam::InterfaceList *interfaces = system.GetInterfaceSet(OrvCam::InterfaceAll);
    OrvCam::Interface *first = interfaces->GetFirst();
    first->RefreshDevices(nullptr, 100);
    OrvCam::DeviceInfoList *cameras = first->GetDeviceInfoSet();
    int32_t code = OrvCam::Success;
    OrvCam::Device *device = OrvCam_CreateDevice(cameras->GetFirst(), &code, OrvCam::AccessControl);
    cameras->Release();
    interfaces->Release();
    return device;
}

/// Saves the picture under a name that matches the fault list, if a folder is set.
void keepPicture(QWidget &window, const QString &name)
{
    const QString folder = qEnvironmentVariable("ORV_LOOKS_PICTURES");
    if (folder.isEmpty())
        return;
    QString file = name;
    file.replace(QRegularExpression("\\W+"), "-");
    Looks::pictureOf(window).save(QDir(folder).filePath(file + ".png"));
}

/// Why a fault cannot be fixed here; null for other faults.
const char *reasonFor(const QString &window, const QString &fault)
{
    if (window == "frames" && fault.startsWith("cut: grBoxVideoAmplifier"))
        return "Qt gives a title no room for the blank edge of its first character";
    return nullptr;
}

/// Enables further controls of a dialog.
void switchOn(const QWidget &window)
{
    for (QCheckBox *box : window.findChildren<QCheckBox *>()) {
        if (box->isEnabled() && !box->isChecked())
            box->click();
    }
}

/// The table of the first feature that has a selector.
QWidget *openedTable(QWidget &window)
{
    QTreeView &tree = *static_cast<OrvGui::OrvFeatureBrowser &>(window).treeView();
    QDialog *table = nullptr;
    for (QModelIndex row = tree.model()->index(0, 0); row.isValid(); row = tree.indexBelow(row)) {
        emit tree.customContextMenuRequested(tree.visualRect(row).center());
        auto *menu = window.findChild<QMenu *>("FeatureMenu");
        if (auto *action = menu->findChild<QAction *>("table"))
            action->trigger();
        delete menu;
        table = window.findChild<QDialog *>("SelectorTable");
        if (table)
            break;
    }
    return table && QTest::qWaitFor([&] { return table->findChild<QTableWidget *>()->isEnabled(); })
               ? table
               : nullptr;
}

/// The widget to check: the window itself, or one that is opened from it.
QWidget *opened(QWidget &window, const QString &name)
{
    if (name == "about") {
        window.findChild<QAction *>("actionAbout")->trigger();
        return window.findChild<QDialog *>("OrvCamConfigAboutDialog");
    }
    if (name == "slider") {
        auto *box = window.findChild<QtOrvSpinBox *>("spBoxWidth");
        box->toolButton()->click();
        return box->slider();
    }
    if (name == "history") {
        window.findChild<OrvGui::HistoryCaption *>()->click();
        return window.findChild<OrvGui::HistoryWindow *>();
    }
    if (name == "values")
        return openedTable(window);
    return &window;
}

/// Cut cells are acceptable, since columns can be widened, but not in the picker's panes.
bool isTolerated(const Looks::Fault &fault)
{
    return fault.kind == Looks::Fault::CutCell && !fault.widget.contains("InfoTreeView");
}

QStringList faultsOf(QWidget &window, const QString &name)
{
    if (!QTest::qWaitForWindowExposed(&window))
        return {name + " is not shown"};
    if (window.focusWidget())
        window.focusWidget()->clearFocus(); // removes the selection, too
    QCoreApplication::processEvents();
    keepPicture(window, name);
    QStringList faults;
    for (const Looks::Fault &fault : Looks::faultsOf(window)) {
        if (!isTolerated(fault))
            faults << fault.toString();
    }
    return faults + Controls::namelessOf(window) + Controls::tabOrderFaultsOf(window) +
           Controls::sharedMnemonicsOf(window);
}

QStringList menuFaultsOf(const QWidget &window)
{
    QStringList faults;
    for (const QAction *action : window.findChild<QMenuBar *>()->actions()) {
        QMenu &menu = *action->menu();
        menu.popup(QPoint());
        faults << faultsOf(menu, QTest::currentDataTag() + ('-' + menu.objectName()));
        menu.close();
    }
    return faults;
}

} // namespace

void TestLooks::initTestCase()
{
    qputenv("ORVCAM_SIMULATION", "1");
    QApplication::setStyle("fusion");
    m_lightPalette = QApplication::style()->standardPalette();
    m_lightPalette.setColor(QPalette::Highlight, QColor(0x2a, 0x60, 0x9a)); // Qt's own is pale
    m_system = OrvCam_GetSystem();
    QVERIFY(m_system);
    m_device = openCamera(*m_system);
    QVERIFY(m_device);
    int32_t code = OrvCam::Success;
    GenApi::INodeMap *nodes = m_device->GetParamArray(&code)->GetNodeMap(&code);
    GenApi::CEnumerationPtr(nodes->GetNode("FrameMode"))->FromString("DualVideo"); // both frames
}

void TestLooks::cleanupTestCase()
{
    change(conditions[0]);
    if (m_device)
        m_device->Release();
    if (m_system)
        m_system->Release();
}

void TestLooks::change(const Condition &condition)
{
    if (m_current == QLatin1String(condition.name))
        return;
    m_current = QLatin1String(condition.name);
    qApp->setStyleSheet(condition.colors == DarkSheet ? QLatin1String(darkSheet) : QString());
    QApplication::setPalette(condition.colors == Dark ? darkPalette() : m_lightPalette);
    QApplication::setFont(QFont("DejaVu Sans", condition.points));
    translate(QLatin1String(condition.language));
    // Last, because a translator sets the direction of its language.
    QApplication::setLayoutDirection(condition.isRightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    QCoreApplication::sendPostedEvents();
    QApplication::setLayoutDirection(condition.isRightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
}

void TestLooks::translate(const QString &language)
{
    m_translators.clear();
    QLocale::setDefault(QLocale(language));
    if (language == QLatin1String("en"))
        return;
    const auto install = [&](const QString &name, const QString &folder) {
        m_translators.push_back(std::make_unique<QTranslator>());
        return m_translators.back()->load(name + '_' + language, folder) &&
               QCoreApplication::installTranslator(m_translators.back().get());
    };
    QVERIFY(install("orvcameraguiapi", ":/translations"));
    install("qtbase", QLibraryInfo::location(QLibraryInfo::TranslationsPath)); // may be missing
}

Window TestLooks::make(const QString &name)
{
    const QMap<QString, std::function<Window()>> makers = {
        {"picker", [this] { return makePicker(); }},
        {"address", [] { return makeAddresses(0xc0a80002); }},
        {"wrong address", [] { return makeAddresses(0x0a000001); }},
        {"opening", [] { return std::make_unique<OrvGui::OpeningProgress>("Camera"); }},
        {"tree", [this] { return makeTree(); }},
        {"browser", [this] { return makeBrowser(); }},
        {"values", [this] { return makeBrowser(); }},
        {"differences", [] { return makeDifferences(); }},
        {"history", [this] { return std::make_unique<OrvGui::OrvCamConfig>(m_device); }},
        {"main", [this] { return std::make_unique<OrvGui::OrvCamConfig>(m_device); }},
        {"about", [this] { return std::make_unique<OrvGui::OrvCamConfig>(m_device); }},
        {"slider", [this] { return makeDialog<OrvGui::OrvCamConfigPulseDialog>(); }},
        {"trigger", [this] { return makeDialog<OrvGui::OrvCamConfigTriggerDialog>(); }},
        {"pulse", [this] { return makeDialog<OrvGui::OrvCamConfigPulseDialog>(); }},
        {"strobe", [this] { return makeDialog<OrvGui::OrvCamConfigStrobeDialog>(); }},
        {"output", [this] { return makeDialog<OrvGui::OrvCamConfigOutputDialog>(); }},
        {"color", [this] { return makeDialog<OrvGui::OrvCamConfigColorDialog>(); }},
        {"frames", [this] { return makeDialog<OrvGui::OrvCamConfigFrameABDialog>(); }},
    };
    return makers.value(name)();
}

template<class Dialog>
Window TestLooks::makeDialog()
{
    return std::make_unique<Dialog>(m_device, nullptr);
}

/// With a camera that cannot be opened, which has another colour.
Window TestLooks::makePicker()
{
    auto picker = std::make_unique<OrvGui::OrvCameraSelectorDialog>(m_system);
    cameraTree(*picker)->setCurrentIndex(rowNamed(*cameraTree(*picker), "Packing"));
    return picker;
}

Window TestLooks::makeAddresses(unsigned camera)
{
    auto dialog = std::make_unique<SetIpDialog>();
    dialog->setNicMACAddress(0xDDDDDDDDDDDD);
    dialog->setMACAddress(0xDDDDDDDDDDDD);
    dialog->setNicIPAddress(0xc0a80001);
    dialog->setNicNetmask(0xffffff00);
    dialog->setNetmask(0xffffff00);
    dialog->setIPAddress(camera);
    return dialog;
}

Window TestLooks::makeTree()
{
    int32_t code = OrvCam::Success;
    auto view =
        std::make_unique<OrvGui::OrvGenParamTreeView>(m_device->GetParamArray(&code), nullptr);
    view->setVisibility(OrvGui::Guru);
    QTreeView &tree = *view->treeView();
    tree.expandAll();
    return view;
}

/// With a search that has more results at higher levels.
Window TestLooks::makeBrowser()
{
    int32_t code = OrvCam::Success;
    auto browser =
        std::make_unique<OrvGui::OrvFeatureBrowser>(m_device->GetParamArray(&code), nullptr);
    browser->search("gain");
    return browser;
}

Window TestLooks::makeDifferences()
{
    auto dialog = std::make_unique<OrvGui::SettingsTableDialog>("Settings", nullptr);
    dialog->setAttribute(Qt::WA_DeleteOnClose, false);
    dialog->setContents("This sentence says of a file with a long name what is not in it: " +
                            QString(60, 'x') + ".xml",
                        {"Feature", "In the file", "In the camera"},
                        {{"Gain [GainSelector=Red]", "1.5", "2"}, {"Width", "640", {}}});
    dialog->addAcceptButton("Load");
    dialog->addCloseButton(true);
    return dialog;
}

void TestLooks::windowsHaveNoFaults_data()
{
    QTest::addColumn<int>("condition");
    QTest::addColumn<QString>("name");
    const int count = int(sizeof conditions / sizeof *conditions);
    const bool isFine = qApp->devicePixelRatio() > 1;
    for (int i = 0; i < count; ++i) {
        if (isFine && !conditions[i].isForFineScreens)
            continue;
        for (const char *name : {"picker", "address", "wrong address", "opening", "tree", "browser",
                                 "values", "differences", "history", "main", "about", "trigger",
                                 "pulse", "slider", "strobe", "output", "color", "frames"})
            QTest::addRow("%s: %s", conditions[i].name, name) << i << QString(name);
    }
}

void TestLooks::windowsHaveNoFaults()
{
    QFETCH(int, condition);
    QFETCH(QString, name);
    change(conditions[condition]);
    const Window window = make(name);
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    switchOn(*window);

    QStringList faults;
    QWidget *shown = opened(*window, name);
    QVERIFY(shown);
    faults << faultsOf(*shown, QTest::currentDataTag());
    if (name == "main")
        faults << menuFaultsOf(*window);
    const char *reason = nullptr;
    QStringList unexpected;
    for (const QString &fault : std::as_const(faults)) {
        if (const char *known = reasonFor(name, fault))
            reason = known;
        else
            unexpected << fault;
    }
    if (reason && unexpected.isEmpty())
        QEXPECT_FAIL("", reason, Continue);
    const QString all = '\n' + (unexpected.isEmpty() ? faults : unexpected).join('\n');
    QVERIFY2(faults.isEmpty(), qPrintable(all));
}

/// The accessible name of each editor is that of its feature.
void TestLooks::editorsHaveNames()
{
    change(conditions[0]);
    const Window window = makeTree();
    window->show();
    QTreeView &tree = *static_cast<OrvGui::OrvGenParamTreeView &>(*window).treeView();
    QSet<QByteArray> kinds;
    for (QModelIndex row = tree.model()->index(0, 0); row.isValid(); row = tree.indexBelow(row)) {
        const QModelIndex cell = row.sibling(row.row(), 1);
        const std::unique_ptr<QWidget> editor(
            tree.itemDelegateForColumn(1)->createEditor(tree.viewport(), {}, cell));
        if (!editor)
            continue;
        QCOMPARE(Controls::spokenNameOf(*editor), row.data().toString());
        kinds.insert(editor->metaObject()->className());
    }
    QVERIFY2(kinds.size() >= 5, qPrintable(QString::number(kinds.size())));
}

void TestLooks::findsFaults()
{
    change(conditions[0]);
    QWidget window;
    auto *cut = new QLabel("This is longer than its place", &window);
    cut->setObjectName("cut");
    cut->setGeometry(10, 10, 60, 20);
    auto *pale = new QPushButton("P&ale", &window);
    pale->setObjectName("pale");
    pale->setStyleSheet("color: #909090; background: #808080");
    pale->setGeometry(10, 80, 100, 30);
    auto *box = new QCheckBox("Abov&a", &window);
    box->setGeometry(10, 40, 100, 30);
    auto *nameless = new QComboBox(&window);
    nameless->setObjectName("nameless");
    nameless->setGeometry(10, 120, 100, 30);
    auto *exempt = new QLabel("Disabled", &window);
    exempt->setGeometry(10, 160, 100, 20);
    exempt->setEnabled(false);
    window.setObjectName("wide");
    window.resize(3000, 200);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QStringList faults;
    for (const Looks::Fault &fault : Looks::faultsOf(window))
        faults << fault.toString().section(" (", 0, 0);
    faults.sort();
    faults.removeDuplicates(); // a mnemonic splits a text into parts
    QCOMPARE(faults.join(", "), QString("cut: cut, off the screen: wide, pale: pale"));
    QCOMPARE(Controls::namelessOf(window), QStringList{"nameless (QComboBox) has no name"});
    QCOMPARE(Controls::tabOrderFaultsOf(window).size(), 1);
    QCOMPARE(Controls::sharedMnemonicsOf(window).size(), 1);
}

QTEST_MAIN(TestLooks)

#include "tst_looks.moc"
