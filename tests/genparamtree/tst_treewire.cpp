// SPDX-License-Identifier: MIT
#include "browser/orvfeaturebrowser_p.h"
#include "treecells.h"

#include "../cameraapi/cameratestsupport.h"

#include <cameranetwork.h>
#include <orvgenparamtreeview.h>

#include <QAbstractProxyModel>
#include <QAccessible>
#include <QComboBox>
#include <QScrollBar>
#include <QSpinBox>
#include <QTableWidget>
#include <QTextBrowser>
#include <QTreeView>
#include <QtTest>

#include <ctime>
#include <functional>
#include <set>

namespace {

const int delay = 150;        // of each answer, in milliseconds
const QChar notKnown(0x2026); // an ellipsis

// Under the thread sanitizer threads wait for each other where they do not otherwise.
#ifdef __SANITIZE_THREAD__
const int longestAllowed = 10 * delay;
#else
const int longestAllowed = delay;
#endif

/// The longest time for which the thread did not get to its event loop, its own work left out.
class LongestWait : public QObject
{
public:
    LongestWait()
    {
        m_last.start();
        m_timer.setTimerType(Qt::PreciseTimer);
        connect(&m_timer, &QTimer::timeout, this, [this] { note(); });
        m_timer.start(5);
    }

    qint64 take()
    {
        note();
        return std::exchange(m_longest, 0);
    }

private:
    void note()
    {
        const qint64 work = workOfThread();
        m_longest = std::max(m_longest, m_last.restart() - (work - std::exchange(m_work, work)));
    }

    static qint64 workOfThread()
    {
        timespec time = {};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return time.tv_sec * 1000 + time.tv_nsec / 1000000;
    }

    QElapsedTimer m_last;
    qint64 m_work = workOfThread();
    QTimer m_timer;
    qint64 m_longest = 0;
};

bool isPolled(uint32_t address)
{
    static const std::set<uint32_t> polled{0x1200, 0x1208, 0x120C, 0x1210, 0x1520};
    return polled.count(address) || (address >= 0x1600 && address < 0x1640);
}

/// What was read from the camera, and in how many commands it could have been; what is polled is
/// left out.
struct Traffic
{
    unsigned commands = 0;
    unsigned packed = 0;

    explicit Traffic(const std::vector<TestCamera::Access> &accesses)
    {
        std::set<unsigned> packets;
        std::set<uint32_t> words;
        std::set<std::pair<uint32_t, uint32_t>> all;
        for (const TestCamera::Access &access : accesses) {
            if (!access.isRead() || isPolled(access.address))
                continue;
            packets.insert(access.packet);
            all.insert({access.address, access.size});
            if (access.size == 4)
                words.insert(access.address);
        }
        commands = unsigned(packets.size());
        packed = unsigned((words.size() + 133) / 134 + all.size() - words.size());
    }
};

} // namespace

/// The tree of a camera that takes its time.
class TestTreeWire : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void nothingWaits();
    void writing();
    void selection();
    void selectorTable();

private:
    template<typename Editor>
    Editor *editor()
    {
        return qobject_cast<Editor *>(tree().indexWidget(tree().currentIndex()));
    }
    QAbstractItemModel *model()
    {
        return qobject_cast<QAbstractProxyModel *>(tree().model())->sourceModel();
    }
    QTreeView &tree() { return *m_view->treeView(); }
    QModelIndexList rowsOnScreen();
    bool isComplete();
    QString wrongTexts();
    QModelIndex cell(const char *feature, int column = 1)
    {
        return cellOf(*tree().model(), feature, column);
    }

    Released<OrvCam::System> m_system;
    std::unique_ptr<CameraNetwork> m_network;
    std::unique_ptr<TestCamera> m_camera;
    Released<OrvCam::Device> m_device;
    std::unique_ptr<OrvGui::OrvGenParamTreeView> m_view;
};

void TestTreeWire::initTestCase()
{
    qputenv("ORVCAM_DESCRIPTION_CACHE", "");
    m_network = std::make_unique<CameraNetwork>("orv0", "10.1.0.1/24", "10.1.0.2/24");
    TestCamera::Settings settings = m_network->cameraSettings(0x020000000001, "10.1.0.2");
    QFile description(ORV_DESCRIPTION);
    QVERIFY(description.open(QIODevice::ReadOnly));
    settings.description = description.readAll().toStdString();
    settings.fillsRegisters = true;
    settings.unknownRegisters = TestCameraMemory::Unknown::Filled;
    m_camera = std::make_unique<TestCamera>(settings);
    m_system.reset(OrvCam_GetSystem());
    const auto open = [this] {
        if (m_device)
            return true;
        for (OrvCam::Interface *adapter : interfacesOf(*m_system, OrvCam::InterfaceGigEVision)) {
            for (OrvCam::DeviceInfo *camera : camerasOf(*adapter))
                m_device.reset(OrvCam_CreateDevice(camera, nullptr, OrvCam::AccessControl));
        }
        return m_device != nullptr;
    };
    QTRY_VERIFY(open());
    // The time of a round trip is measured anew before commands are counted.
    m_camera->setMood("delay", delay);
    QTest::qWait(20 * delay);
}

void TestTreeWire::cleanupTestCase()
{
    m_view.reset();
    m_camera->setMood("good");
    m_device.reset();
    m_system.reset();
    m_camera.reset();
    m_network.reset();
}

QModelIndexList TestTreeWire::rowsOnScreen()
{
    QModelIndexList rows;
    for (QModelIndex row = tree().indexAt(QPoint(0, 0));
         row.isValid() && tree().visualRect(row).top() < tree().viewport()->height();
         row = tree().indexBelow(row))
        rows.append(row);
    return rows;
}

bool TestTreeWire::isComplete()
{
    const QModelIndexList rows = rowsOnScreen();
    return !rows.isEmpty() && std::all_of(rows.begin(), rows.end(), [](const QModelIndex &row) {
        return row.siblingAtColumn(1).data().toString() != notKnown;
    });
}

/// The rows whose text is not what the model says to those who wait.
QString TestTreeWire::wrongTexts()
{
    const auto *proxy = qobject_cast<QAbstractProxyModel *>(tree().model());
    QString wrong;
    for (const QModelIndex &row : rowsOnScreen()) {
        const QModelIndex shown = row.siblingAtColumn(1);
        const QVariant right = proxy->mapToSource(shown).data();
        if (shown.data() != right)
            wrong += QString("%1: %2 for %3\n")
                         .arg(row.data().toString(), shown.data().toString(), right.toString());
    }
    return wrong;
}

void TestTreeWire::nothingWaits()
{
    GenApi::INodeMap *map = m_device->GetParamArray()->GetNodeMap();
    auto *panel = [&] {
        m_view = std::make_unique<OrvGui::OrvGenParamTreeView>();
        return m_view->findChild<QTextBrowser *>();
    }();
    const auto select = [this](const char *feature, int column) {
        tree().setCurrentIndex(cell(feature, column));
    };
    const auto nothing = [] { return true; };
    struct Act
    {
        const char *name;
        std::function<void()> act;
        std::function<bool()> isDone;
        unsigned rounds; ///< as many more commands than packed ones are needed
    };
    const std::vector<Act> acts{
        {"show",
         [&] {
             m_view->resize(600, 900);
             m_view->setParams(map);
             tree().expandAll();
             m_view->show();
             m_view->activateWindow();
             QVERIFY(QTest::qWaitForWindowActive(m_view.get()));
             tree().viewport()->repaint();
             QVERIFY(!isComplete());
             QCOMPARE(cell("Width").data(Qt::ForegroundRole).value<QBrush>(),
                      QPalette().brush(QPalette::Disabled, QPalette::Text));
         },
         nothing, 2},
        {"repaint", [&] { tree().viewport()->repaint(); }, nothing, 0},
        {"editor",
         [&] {
             select("Frame_BlackLevel", 1);
             QVERIFY(!editor<QSpinBox>());
         },
         [&] { return editor<QSpinBox>() && editor<QSpinBox>()->maximum() == 1023; }, 1},
        {"description", [&] { select("Width", 0); },
         [&] { return panel->toPlainText().contains("Limits: Min"); }, 1},
        {"known editor", [&] { select("Width", 1); }, [&] { return editor<QSpinBox>() != nullptr; },
         0},
        {"page",
         [&] {
             tree().verticalScrollBar()->triggerAction(QScrollBar::SliderPageStepAdd);
             tree().viewport()->repaint();
         },
         nothing, 2},
        {"end",
         [&] {
             for (int page = 0; page < 20; ++page) {
                 tree().verticalScrollBar()->triggerAction(QScrollBar::SliderPageStepAdd);
                 tree().viewport()->repaint();
                 QCoreApplication::processEvents();
             }
         },
         nothing, 2},
        {"entries", [&] { select("TriggerSource", 1); },
         [&] { return editor<QComboBox>() && editor<QComboBox>()->count() > 0; }, 1},
        {"level", [&] { m_view->setVisibility(OrvGui::Guru); }, nothing, 1},
        {"accessibility",
         [&] {
             const auto *table = QAccessible::queryAccessibleInterface(&tree());
             for (int i = 0; i < table->childCount(); ++i) {
                 table->child(i)->text(QAccessible::Name);
                 table->child(i)->state();
             }
         },
         nothing, 2},
    };
    m_camera->takeAccesses();
    LongestWait wait;
    for (const Act &act : acts) {
        wait.take();
        QElapsedTimer timer;
        timer.start();
        act.act();
        QTRY_VERIFY2(isComplete() && act.isDone(), act.name);
        const qint64 duration = timer.elapsed();
        const qint64 longest = wait.take();
        QTest::qWait(3 * delay);
        const Traffic traffic(m_camera->takeAccesses());
        qInfo("%-14s %4lld ms, longest wait %3lld ms, %2u commands, packed %2u", act.name, duration,
              longest, traffic.commands, traffic.packed);
        QVERIFY2(longest < longestAllowed, act.name);
        QVERIFY2(traffic.commands <= traffic.packed + act.rounds, act.name);
        QCOMPARE(wrongTexts(), QString());
        m_camera->takeAccesses();
    }
}

void TestTreeWire::writing()
{
    tree().setCurrentIndex(cell("Width", 0));
    tree().setCurrentIndex(cell("Width"));
    QTRY_VERIFY(editor<QSpinBox>());
    const int value = editor<QSpinBox>()->maximum() - editor<QSpinBox>()->singleStep();
    m_camera->takeAccesses();
    editor<QSpinBox>()->selectAll();
    QTest::keyClicks(editor<QSpinBox>(), QString::number(value));
    QTest::keyClick(editor<QSpinBox>(), Qt::Key_Return);
    QTRY_COMPARE(cell("Width").data().toInt(), value);
    QCOMPARE(model()->data(valueCell(*model(), "Width")).toInt(), value);
    int writes = 0;
    for (const TestCamera::Access &access : m_camera->takeAccesses())
        writes += access.isRead() ? 0 : 1;
    QCOMPARE(writes, 1);
}

/// Another selection gives an open editor another value.
void TestTreeWire::selection()
{
    const QPersistentModelIndex selector(valueCell(*model(), "FrameAB_Selector"));
    const QPersistentModelIndex level(valueCell(*model(), "Frame_BlackLevel"));
    for (int frame : {1, 0}) {
        QVERIFY(model()->setData(selector, frame));
        QVERIFY(model()->setData(level, 50 + frame));
    }
    tree().setCurrentIndex(cell("Frame_BlackLevel", 0));
    QTRY_COMPARE(cell("Frame_BlackLevel").data().toInt(), 50);
    tree().setCurrentIndex(cell("Frame_BlackLevel"));
    QTRY_VERIFY(editor<QSpinBox>());
    QCOMPARE(editor<QSpinBox>()->value(), 50);

    QVERIFY(model()->setData(selector, 1));
    QVERIFY(cell("Frame_BlackLevel").data().toString() != notKnown);
    QTRY_COMPARE(editor<QSpinBox>()->value(), 51);
    QCOMPARE(cell("Frame_BlackLevel").data().toInt(), 51);

    // The tree goes while an editor waits for its value.
    QVERIFY(model()->setData(selector, 0));
    m_view->clearParams();
    QTest::qWait(2 * delay);
    QVERIFY(!tree().model());
}

/// Reading through a selector leaves the thread of the windows alone, and the selector where it
/// was.
void TestTreeWire::selectorTable()
{
    OrvGui::OrvFeatureBrowser browser(m_device->GetParamArray(), nullptr);
    GenApi::INodeMap *map = m_device->GetParamArray()->GetNodeMap();
    auto *selector = dynamic_cast<GenApi::IValue *>(map->GetNode("FrameAB_Selector"));
    auto *level = dynamic_cast<GenApi::IValue *>(map->GetNode("Frame_BlackLevel"));
    LongestWait wait;
    QElapsedTimer timer;
    timer.start();
    OrvGui::OrvFeatureBrowserPrivate::of(browser).openTable(selector, {level});
    auto *window = browser.findChild<OrvGui::SelectorTable *>();
    QVERIFY(window->isReading());
    QTRY_VERIFY(!window->isReading());
    const qint64 longest = wait.take();
    qInfo("%-14s %4lld ms, longest wait %3lld ms", "table", timer.elapsed(), longest);
    QVERIFY(longest < longestAllowed);
    const auto &table = *window->findChild<QTableWidget *>();
    QCOMPARE(table.item(0, 0)->text(), QString("50 DN"));
    QCOMPARE(table.item(1, 0)->text(), QString("51 DN"));
    QCOMPARE(selector->ToString(), GenICam::gcstring("FrameA"));
}

QTEST_MAIN(TestTreeWire)
#include "tst_treewire.moc"
