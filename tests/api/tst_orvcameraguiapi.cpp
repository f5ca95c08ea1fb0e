// SPDX-License-Identifier: MIT
#include "api/hostwindow.h"
#include "ccalls.h"

#include <Base/GCException.h>
#include <memorynodemap.h>
#include <xwindow.h>

#include <QAbstractNativeEventFilter>
#include <QtTest>
#include <QtWidgets>

using OrvGui::IOrvGenParamTreeView;

namespace {

QWidget &widget(IOrvGenParamTreeView *view)
{
    return dynamic_cast<QWidget &>(*view);
}

QTreeView &tree(IOrvGenParamTreeView *view)
{
    return *widget(view).findChild<QTreeView *>();
}

/// Features in two categories, at two levels.
struct Features : OrvGenApi::MemoryNodeMap
{
    Features() : MemoryNodeMap("Features")
    {
        addCategory("First");
        addInteger("Width", 640, "First");
        addCategory("Second").properties().visibility = GenApi::Expert;
        addString("Name", "name", "Second");
    }
};

/// Counts the X server's refusals to reparent a window that the library passes on to the host.
struct Refusals : QAbstractNativeEventFilter
{
    using Result = std::conditional_t<(QT_VERSION < 0x060000), long, qintptr>;

    Refusals() { QCoreApplication::instance()->installNativeEventFilter(this); }
    bool nativeEventFilter(const QByteArray &, void *message, Result *) override
    {
        const auto *error = static_cast<xcb_generic_error_t *>(message);
        const bool isOne = error->response_type == 0 && error->error_code == XCB_MATCH &&
                           error->major_code == XCB_REPARENT_WINDOW;
        count += isOne ? 1 : 0;
        return isOne;
    }
    int count = 0;
};

/// A node map that throws when a tree registers for its features.
struct BrokenFeatures : Features
{
    GenApi::INode *GetNode(const GenICam::gcstring &) const override
    {
        throw GenICam::RuntimeException("broken", __FILE__, __LINE__);
    }
};

} // namespace

/// The library in a program without Qt: the test creates no application object.
class TestOrvCameraGuiApi : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void createsTheApplication();
    void windowTitles_data();
    void windowTitles();
    void stateLevelAndLanguage();
    void configurationWindow();
    void sourcesWithoutFeatures();
    void insideAnotherWindow();
    void missingForeignWindow();
    void resizeDuringQueryIsReported();

private:
    bool shows(xcb_window_t panel, IOrvGenParamTreeView *view)
    {
        const QImage expected = widget(view).grab().toImage();
        return m_screen.picture(panel) == expected.convertToFormat(QImage::Format_RGB32);
    }

    XView m_screen;
};

// Every test has closed its windows.
void TestOrvCameraGuiApi::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
    QVERIFY(QGuiApplication::topLevelWindows().isEmpty());
}

void TestOrvCameraGuiApi::createsTheApplication()
{
    qputenv("ORVCAM_SIMULATION", "1");
    QVERIFY(!QCoreApplication::instance());
    closeTreeInC(nullptr);
    QVERIFY(!QCoreApplication::instance());

    OrvCamSystem *system = OrvCam_GetSystem();
    OrvCam_RefreshDevices(system, 200);
    OrvCamDevice *device =
        OrvCam_CreateDevice(OrvCam_GetDeviceInfo(system, 0), nullptr, OrvCam_AccessControl);
    IOrvGenParamTreeView *first = openTreeInC(OrvCam_GetParamArray(device, nullptr), 0);
    const auto *application = qobject_cast<QApplication *>(QCoreApplication::instance());
    QVERIFY(application);
    QCOMPARE(widget(first).windowTitle(), QStringLiteral("Paramètres"));
    QVERIFY(QTest::qWaitForWindowExposed(&widget(first)));
    QVERIFY(tree(first).model()->rowCount() > 5);

    IOrvGenParamTreeView *second = openTreeInC(nullptr, 0);
    QCOMPARE(QCoreApplication::instance(), application);
    QVERIFY(!tree(second).model());
    closeTreeInC(first);
    closeTreeInC(second);
    OrvCam_ReleaseDevice(device);
    OrvCam_ReleaseSystem(system);
    QCOMPARE(QCoreApplication::instance(), application);
}

void TestOrvCameraGuiApi::windowTitles_data()
{
    QTest::addColumn<QString>("title");
    QTest::newRow("none") << QString();
    QTest::newRow("empty") << QString("");
    QTest::newRow("others") << QStringLiteral("Камера 参数 \U0001F4F7");
}

void TestOrvCameraGuiApi::windowTitles()
{
    QFETCH(QString, title);
    const auto check = [&title](IOrvGenParamTreeView *view) {
        QCOMPARE(widget(view).windowTitle(), title);
        QVERIFY(widget(view).isVisible());
        DestroyGenParamTreeView(view);
    };
    Features map;
    const QByteArray narrow = title.toUtf8();
    const char *text = title.isNull() ? nullptr : narrow.constData();
    check(CreateGenParamTreeViewForNodemapA(&map, text, 0));
    check(CreateGenParamTreeViewForArrayA(nullptr, text, 0));

    const std::wstring wide = title.toStdWString();
    const wchar_t *wideText = title.isNull() ? nullptr : wide.c_str();
    check(openWideTreeInC(&map, wideText));
    check(CreateGenParamTreeViewForArrayW(nullptr, wideText, 0));
}

void TestOrvCameraGuiApi::sourcesWithoutFeatures()
{
    OrvGenApi::MemoryNodeMap empty("Empty");
    BrokenFeatures broken;
    for (GenApi::INodeMap *source :
         {static_cast<GenApi::INodeMap *>(&empty), static_cast<GenApi::INodeMap *>(&broken),
          static_cast<GenApi::INodeMap *>(nullptr)}) {
        IOrvGenParamTreeView *view = CreateGenParamTreeViewForNodemapA(source, "Nothing", 0);
        QVERIFY(widget(view).isVisible());
        QCOMPARE(tree(view).model() ? tree(view).model()->rowCount() : 0, 0);
        DestroyGenParamTreeView(view);
    }
}

// The functions for hosts that cannot call methods.
void TestOrvCameraGuiApi::stateLevelAndLanguage()
{
    Features map;
    IOrvGenParamTreeView *view = CreateGenParamTreeViewForNodemapA(&map, "", 0);
    SetGenParamTreeViewVisibility(view, 7);
    QCOMPARE(GetGenParamTreeViewVisibility(view), 0);
    SetGenParamTreeViewVisibility(view, 2);
    const QByteArray state = SaveGenParamTreeViewState(view);
    SetGenParamTreeViewVisibility(view, 1);
    QCOMPARE(LoadGenParamTreeViewState(view, state), 1);
    QCOMPARE(GetGenParamTreeViewVisibility(view), 2);
    QCOMPARE(LoadGenParamTreeViewState(view, "&amp;Wx&amp;V1"), 0);
    QCOMPARE(LoadGenParamTreeViewState(view, "&amp;W90&amp;V7"), 0);
    QCOMPARE(GetGenParamTreeViewVisibility(view), 2);
    QCOMPARE(LoadGenParamTreeViewState(view, nullptr), 0);
    QCOMPARE(LoadGenParamTreeViewState(nullptr, state), 0);
    QVERIFY(!SaveGenParamTreeViewState(nullptr));
    SetFeatureBrowserVisibility(nullptr, 1);
    QCOMPARE(GetFeatureBrowserVisibility(nullptr), 0);
    DestroyGenParamTreeView(view);

    const auto captionIn = [&](const char *language) -> QString {
        const int isKnown = OrvCameraGuiApi_SetLanguage(language);
        IOrvGenParamTreeView *other = CreateGenParamTreeViewForNodemapA(&map, "", 0);
        const QString text = tree(other).model()->headerData(1, Qt::Horizontal).toString();
        DestroyGenParamTreeView(other);
        return QString::number(isKnown) + text;
    };
    QCOMPARE(captionIn("de_AT"), QString("1Wert"));
    QCOMPARE(captionIn("tlh"), QString("0Wert"));
    QCOMPARE(captionIn("fr"), QString("0Wert"));
    QCOMPARE(captionIn("en"), QString("1Value"));
    QCOMPARE(captionIn(nullptr), QString("1Value"));
}

void TestOrvCameraGuiApi::configurationWindow()
{
    OrvGuiCamConfig *window = CreateCamConfig(nullptr);
    QCOMPARE(OrvCameraGuiApi_ProcessEvents(0), 1);
    QTimer::singleShot(10, QCoreApplication::instance(), [] {
        for (QWidget *opened : QApplication::topLevelWidgets()) {
            if (opened->isVisible())
                opened->close();
        }
    });
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(OrvCameraGuiApi_ProcessEvents(60000), 0);
    QVERIFY(timer.elapsed() < 30000);
    DestroyCamConfig(window);
    DestroyCamConfig(nullptr);
}

void TestOrvCameraGuiApi::insideAnotherWindow()
{
    const quint32 hostColour = 0xff205080;
    const quint32 panelColour = 0xff00ff00;
    QVERIFY(m_screen.isConnected());
    const xcb_window_t host =
        m_screen.makeWindow(m_screen.screen().root, QRect(0, 0, 700, 500), hostColour);
    const xcb_window_t panel = m_screen.makeWindow(host, QRect(20, 30, 600, 400), panelColour);
    QTRY_COMPARE(m_screen.picture(panel).pixel(599, 399), panelColour);

    Features map;
    DestroyGenParamTreeView(
        CreateGenParamTreeViewForNodemapA(nullptr, "", 0)); // creates the application
    Refusals refusals;
    IOrvGenParamTreeView *view = CreateGenParamTreeViewForNodemapA(&map, "Inside", panel);
    tree(view).expandAll();
    QTRY_VERIFY(shows(panel, view));
    QCOMPARE(widget(view).size(), QSize(600, 400));

    // A window manager may change the size later.
    m_screen.resize(static_cast<xcb_window_t>(widget(view).winId()), QSize(320, 240));
    QCOMPARE(m_screen.picture(panel).pixel(599, 399), panelColour);
    QTRY_VERIFY(shows(panel, view));
    QCOMPARE(widget(view).size(), QSize(600, 400));

    // Another window embeds and destroys a browser.
    const xcb_window_t other =
        m_screen.makeWindow(m_screen.screen().root, QRect(710, 0, 350, 500), panelColour);
    Features otherMap;
    OrvGuiFeatureBrowser *otherView = CreateFeatureBrowserForNodemapA(&otherMap, "", other);
    otherView->setVisibility(OrvGui::Guru);
    QTRY_VERIFY(shows(other, otherView));
    DestroyFeatureBrowser(otherView);
    m_screen.destroy(other);
    for (const QSize &size : {QSize(660, 460), QSize(500, 300)}) {
        m_screen.resize(panel, size);
        QTRY_COMPARE(widget(view).size(), size);
        QTRY_VERIFY(shows(panel, view));
    }

    // The host's windows are in place, and the host still paints its own area.
    QCOMPARE(m_screen.children(host), QList<xcb_window_t>{panel});
    QCOMPARE(m_screen.geometry(panel), QRect(20, 30, 500, 300));
    QCOMPARE(m_screen.picture(host).pixel(19, 29), hostColour);
    QCOMPARE(m_screen.picture(host).pixel(521, 331), hostColour);

    // The library handles only the refusals that it has caused.
    QCOMPARE(refusals.count, 0);
    {
        const std::unique_ptr<QWindow> outer(QWindow::fromWinId(host));
        const std::unique_ptr<QWindow> inner(QWindow::fromWinId(panel));
        outer->setParent(inner.get());
        QTRY_COMPARE(refusals.count, 1);
        outer->setParent(nullptr);
    }

    // The tree is removed at once, even if the host runs no event loop.
    DestroyGenParamTreeView(view);
    QVERIFY(m_screen.children(panel).isEmpty());
    QCOMPARE(m_screen.children(host), QList<xcb_window_t>{panel});
    QTRY_COMPARE(m_screen.picture(panel).pixel(250, 150), panelColour);
    m_screen.destroy(host);
}

// An invalid window id results in an invisible tree.
void TestOrvCameraGuiApi::missingForeignWindow()
{
    Features map;
    DestroyGenParamTreeView(CreateGenParamTreeViewForNodemapA(&map, "", 0x7ffffff));

    const xcb_window_t window =
        m_screen.makeWindow(m_screen.screen().root, QRect(0, 0, 300, 300), 0xff);
    IOrvGenParamTreeView *view = CreateGenParamTreeViewForNodemapA(&map, "", window);
    QTRY_VERIFY(shows(window, view));
    m_screen.destroy(window);
    QTest::qWait(50);
    dynamic_cast<OrvGenApi::MemoryInteger &>(*map.GetNode("Width")).change(320);
    DestroyGenParamTreeView(view);
}

// Events that arrive together with a reply are not lost.
void TestOrvCameraGuiApi::resizeDuringQueryIsReported()
{
    const xcb_window_t window =
        m_screen.makeWindow(m_screen.screen().root, QRect(0, 0, 300, 300), 0xff);
    OrvGui::HostWindow host(window);
    QSignalSpy resized(&host, &OrvGui::HostWindow::resized);
    QCOMPARE(host.size(), QSize(300, 300));
    m_screen.resize(window, QSize(200, 100));
    QCOMPARE(m_screen.geometry(window).size(), QSize(200, 100));
    QCOMPARE(host.size(), QSize(200, 100));
    QTRY_COMPARE(resized.count(), 1);
    QCOMPARE(resized.first().first().toSize(), QSize(200, 100));
    m_screen.destroy(window);
}

QTEST_APPLESS_MAIN(TestOrvCameraGuiApi)
#include "tst_orvcameraguiapi.moc"
