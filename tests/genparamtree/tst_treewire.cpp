// SPDX-License-Identifier: MIT
#include "treecells.h"

#include <loopwatch.h>
#include <orvgenparamtreeview.h>
#include <wirecamera.h>

#include <QtTest>
#include <QtWidgets>

#include <functional>
#include <set>

namespace {

constexpr int delay = 150;    // of each answer, in milliseconds
const QChar notKnown(0x2026); // an ellipsis

// The thread sanitizer adds waits between threads.
#ifdef __SANITIZE_THREAD__
constexpr int longestAllowed = 10 * delay;
#else
constexpr int longestAllowed = delay;
#endif

bool isPolled(uint32_t address)
{
    static const std::set<uint32_t> polled{0x1200, 0x1208, 0x120C, 0x1210, 0x1520};
    return polled.count(address) || (address >= 0x1600 && address < 0x1640);
}

/// The commands that read from the camera, and the least number that would have been needed;
/// polling is not counted.
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

/// The tree of a camera with slow answers.
class TestTreeWire : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void readingDoesNotBlock();
    void editorWritesOnce();
    void editorFollowsSelection();

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

    std::unique_ptr<WireCamera> m_camera;
    OrvCam::Released<OrvCam::Device> m_device;
    std::unique_ptr<OrvGui::OrvGenParamTreeView> m_view;
};

void TestTreeWire::initTestCase()
{
    m_camera = std::make_unique<WireCamera>(ORV_DESCRIPTION, [](TestCamera::Settings &settings) {
        settings.fillsRegisters = true;
        settings.unknownRegisters = TestCameraMemory::Unknown::Filled;
    });
    m_device = m_camera->open();
    QVERIFY(m_device);
    // The client measures the round trip time again before commands are counted.
    (*m_camera)->setMood("delay", delay);
    QTest::qWait(20 * delay);
}

void TestTreeWire::cleanupTestCase()
{
    m_view.reset();
    (*m_camera)->setMood("good");
    m_device.reset();
    m_camera.reset();
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

/// The rows whose text differs from that of the source model, which waits for values.
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

void TestTreeWire::readingDoesNotBlock()
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
        unsigned rounds; ///< permitted number of commands beyond the minimum
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
    (*m_camera)->takeAccesses();
    LoopWatch wait;
    for (const Act &act : acts) {
        wait.takeLongestWait();
        QElapsedTimer timer;
        timer.start();
        act.act();
        QTRY_VERIFY2(isComplete() && act.isDone(), act.name);
        const qint64 duration = timer.elapsed();
        const double longest = wait.takeLongestWait();
        QTest::qWait(3 * delay);
        const Traffic traffic((*m_camera)->takeAccesses());
        qInfo("%-14s %4lld ms, longest wait %3.0f ms, %2u commands, packed %2u", act.name, duration,
              longest, traffic.commands, traffic.packed);
        QVERIFY2(longest < longestAllowed, act.name);
        QVERIFY2(traffic.commands <= traffic.packed + act.rounds, act.name);
        QCOMPARE(wrongTexts(), QString());
        (*m_camera)->takeAccesses();
    }
}

void TestTreeWire::editorWritesOnce()
{
    tree().setCurrentIndex(cell("Width", 0));
    tree().setCurrentIndex(cell("Width"));
    QTRY_VERIFY(editor<QSpinBox>());
    const int value = editor<QSpinBox>()->maximum() - editor<QSpinBox>()->singleStep();
    (*m_camera)->takeAccesses();
    editor<QSpinBox>()->selectAll();
    QTest::keyClicks(editor<QSpinBox>(), QString::number(value));
    QTest::keyClick(editor<QSpinBox>(), Qt::Key_Return);
    QTRY_COMPARE(cell("Width").data().toInt(), value);
    QCOMPARE(model()->data(valueCell(*model(), "Width")).toInt(), value);
    int writes = 0;
    for (const TestCamera::Access &access : (*m_camera)->takeAccesses())
        writes += access.isRead() ? 0 : 1;
    QCOMPARE(writes, 1);
}

/// Selecting another frame changes the value in an open editor.
void TestTreeWire::editorFollowsSelection()
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

    // The parameters are removed while an editor waits for its value.
    QVERIFY(model()->setData(selector, 0));
    m_view->clearParams();
    QTest::qWait(2 * delay);
    QVERIFY(!tree().model());
}

QTEST_MAIN(TestTreeWire)
#include "tst_treewire.moc"
