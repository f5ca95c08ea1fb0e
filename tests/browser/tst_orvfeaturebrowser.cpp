// SPDX-License-Identifier: MIT
#include "browser/browserstate.h"
#include "browser/orvfeaturebrowser_p.h"
#include "genparamtree/genparamtreemodel.h"
#include "samplenodemap.h"
#include "treecells.h"

#include <orvcameraguiapi.h>
#include <orvfeaturebrowser.h>
#include <orvgenparamtreeview.h>

#include <QtTest>
#include <QtWidgets>

#include <memory>

using OrvGui::OrvFeatureBrowser;
using OrvGui::OrvFeatureBrowserPrivate;

namespace {

/// 5,000 features in 50 categories; every 50th is at level Guru.
class LargeNodeMap : public OrvGenApi::MemoryNodeMap
{
public:
    LargeNodeMap() : MemoryNodeMap("Large")
    {
        for (int i = 0; i < 5000; ++i) {
            const std::string number = std::to_string(i);
            auto &feature = addInteger("Feature" + number, i, "Category" + std::to_string(i / 100));
            feature.properties().displayName = "Feature " + number;
            feature.properties().description = i % 2 ? "An odd one" : "An even one";
            if (i % 50 == 7)
                feature.properties().visibility = GenApi::Guru;
            feature.onRead([this] { ++reads; });
        }
    }

    int reads = 0;
};

/// A visible browser and its parts.
struct Shown
{
    explicit Shown(GenApi::INodeMap &map)
    {
        browser.setVisibility(OrvGui::Guru);
        browser.setParams(&map);
        browser.resize(600, 500);
        browser.show();
        browser.activateWindow();
    }

    QAbstractItemModel &model() const { return *tree.model(); }
    QModelIndex cell(const char *feature, int column = 1) const
    {
        return cellOf(model(), QString::fromLatin1(feature), column);
    }
    bool isChanged(const char *feature) const
    {
        return cell(feature, 0).data(Qt::FontRole).value<QFont>().bold();
    }
    QString toolTip(const char *feature, int column = 1) const
    {
        return cell(feature, column).data(Qt::ToolTipRole).toString();
    }
    template<typename Widget>
    Widget &part(const char *name) const
    {
        return *browser.findChild<Widget *>(QString::fromLatin1(name));
    }
    QAction &action(const char *name) const { return part<QAction>(name); }

    void type(const QString &text)
    {
        QTest::keyClick(&browser, Qt::Key_F, Qt::ControlModifier);
        QTest::keyClicks(&line, text);
    }

    /// Opens the context menu of the row and triggers one of its actions.
    void choose(const QModelIndex &row, const QString &name)
    {
        tree.scrollTo(row);
        emit tree.customContextMenuRequested(tree.visualRect(row).center());
        auto *menu = browser.findChild<QMenu *>("FeatureMenu");
        QVERIFY(menu);
        auto *action = menu->findChild<QAction *>(name);
        QVERIFY2(action, qPrintable(name));
        QVERIFY2(action->isEnabled(), qPrintable(name));
        menu->close();
        action->trigger();
        delete menu;
    }

    QStringList names(const QModelIndex &parent = {}) const
    {
        QStringList names;
        for (int row = 0; row < model().rowCount(parent); ++row)
            names << model().index(row, 0, parent).data().toString();
        return names;
    }

    OrvFeatureBrowser browser;
    QTreeView &tree = *browser.treeView();
    QLineEdit &line = part<QLineEdit>("searchLine");
};

QVector<QPair<QString, bool>> expansion(const QTreeView &tree, const QModelIndex &parent = {})
{
    QVector<QPair<QString, bool>> rows;
    for (int row = 0; row < tree.model()->rowCount(parent); ++row) {
        const QModelIndex index = tree.model()->index(row, 0, parent);
        rows.append({index.data().toString(), tree.isExpanded(index)});
        rows += expansion(tree, index);
    }
    return rows;
}

} // namespace

class TestOrvFeatureBrowser : public QObject
{
    Q_OBJECT

private slots:
    void searchOfManyFeatures();
    void searchEndRestoresTree();
    void switchesToHigherLevel();
    void favourites();
    void savedState();
    void changedFeatures();
    void undo();
    void undoWhileTyping();
    void changesOfOtherWindows();
    void refusedWrites();
    void contextMenu();
    void selectorTable();
    void otherParameters();
    void cFunctions();
    void cleanupTestCase();
};

// The cost of a key press is the number of features compared, read and laid out.
void TestOrvFeatureBrowser::searchOfManyFeatures()
{
    LargeNodeMap map;
    Shown shown(map);
    OrvGui::FeatureSearch &search = OrvFeatureBrowserPrivate::of(shown.browser).shown->search();
    QTest::qWait(1);
    const int reads = map.reads;
    int rows = 5050;
    for (const QChar key : QStringLiteral("feature 49 odd")) {
        shown.browser.search(shown.line.text() + key);
        QVERIFY(search.looks() <= rows);
        rows = qMax(0, int(search.find(shown.line.text()).features.size()));
    }
    // "Odd" features with 49 in their number: 49, 149, … 4949, 490 to 499, 1490 to 1499, …, 4900 to
    // 4999.
    QCOMPARE(shown.part<QLabel>("countLabel").text(), QString("%1 found").arg(rows));
    QCOMPARE(rows, 124);
    QCOMPARE(map.reads, reads);
    QVERIFY(shown.cell("Feature4949").isValid());
    QVERIFY(!shown.cell("Feature4948").isValid());
    shown.line.clear();
    QCOMPARE(shown.model().rowCount(), 50);
}

void TestOrvFeatureBrowser::searchEndRestoresTree()
{
    LargeNodeMap map;
    Shown shown(map);
    const QAbstractItemModelTester tester(&shown.model());
    shown.tree.expand(shown.model().index(3, 0));
    shown.tree.expand(shown.model().index(7, 0));
    shown.tree.setCurrentIndex(shown.cell("Feature777", 0));
    QTest::qWait(1);
    const auto before = expansion(shown.tree);
    const int scrolled = shown.tree.verticalScrollBar()->value();
    QVERIFY(scrolled > 0);
    const QByteArray state = shown.browser.saveState();

    shown.type("ODD 123");
    QVERIFY(shown.line.hasFocus());
    QCOMPARE(shown.names(), QStringList({"Category1", "Category11", "Category12", "Category21",
                                         "Category31", "Category41"}));
    QVERIFY(shown.tree.isExpanded(shown.model().index(0, 0)));
    QVERIFY(shown.tree.isFirstColumnSpanned(0, QModelIndex()));
    QCOMPARE(QByteArray(shown.browser.saveState()), state); // the same as without a search
    QTest::keyClick(&shown.line, Qt::Key_Return);
    QCOMPARE(shown.tree.currentIndex().data().toString(), QString("Feature 123"));
    QTest::keyClick(&shown.tree, Qt::Key_Escape);
    QCOMPARE(shown.line.text(), QString());
    QCOMPARE(expansion(shown.tree), before);
    QCOMPARE(shown.tree.currentIndex(), shown.cell("Feature777", 0));
    QCOMPARE(shown.tree.verticalScrollBar()->value(), scrolled);
    for (int row = 0; row < 50; ++row)
        QVERIFY(shown.tree.isFirstColumnSpanned(row, QModelIndex()));

    // A matching category keeps its features. The search in descriptions can be switched off.
    shown.type("category12");
    QCOMPARE(shown.model().rowCount(), 1);
    QCOMPARE(shown.model().rowCount(shown.model().index(0, 0)), 100);
    shown.line.setText("odd");
    QVERIFY(shown.model().rowCount() > 0);
    shown.action("searchTexts").setChecked(false);
    QCOMPARE(shown.model().rowCount(), 0);
    QTest::keyClick(&shown.line, Qt::Key_Escape);
    QCOMPARE(expansion(shown.tree), before);
}

void TestOrvFeatureBrowser::switchesToHigherLevel()
{
    SampleNodeMap map;
    Shown shown(map);
    shown.browser.setVisibility(OrvGui::Basic);
    const auto &more = shown.part<QToolButton>("higherButton");
    shown.type("gev");
    QCOMPARE(shown.part<QLabel>("countLabel").text(), QString("Nothing found"));
    QCOMPARE(more.text(), QString("5 more at level Expert"));
    const_cast<QToolButton &>(more).click();
    QCOMPARE(shown.browser.visibility(), OrvGui::Expert);
    QCOMPARE(shown.part<QLabel>("countLabel").text(), QString("5 found"));
    QVERIFY(!more.isVisible());
    const QModelIndex gige = cellOf(shown.model(), "GigEVision", 0);
    QVERIFY(shown.tree.isExpanded(gige) && shown.tree.isExpanded(gige.parent()));
    QTest::keyClick(&shown.line, Qt::Key_Escape);
    QVERIFY(!shown.tree.isExpanded(shown.cell("GigEVision", 0)));
}

void TestOrvFeatureBrowser::favourites()
{
    SampleNodeMap map;
    Shown shown(map);
    const QAbstractItemModelTester tester(&shown.model());
    const QStringList all = shown.names();
    shown.choose(shown.cell("Gain", 0), "favourite");
    shown.choose(shown.cell("FirmwareKey", 0), "favourite");
    QCOMPARE(shown.names(), QStringList("Favourites") + all);
    const QModelIndex group = shown.model().index(0, 0);
    QCOMPARE(shown.names(group), QStringList({"Gain", "FirmwareKey"}));
    QVERIFY(shown.tree.isExpanded(group));
    shown.tree.setCurrentIndex(group);
    QCOMPARE(shown.part<QTextBrowser>("whatsThisLabel").toPlainText(), QString());

    // Both rows write the feature and show the written value.
    const QModelIndex starred = shown.model().index(0, 1, group);
    QModelIndex other;
    for (int row = 1; row < shown.model().rowCount(); ++row) {
        const QModelIndex found = cellOf(shown.model(), "Gain", 1, shown.model().index(row, 0));
        other = found.isValid() ? found : other;
    }
    QVERIFY(other != starred);
    QSignalSpy changed(&shown.model(), &QAbstractItemModel::dataChanged);
    QVERIFY(shown.model().setData(starred, 6.0));
    QCOMPARE(other.data().toDouble(), 6.0);
    const auto isNotified = [&](const QModelIndex &cell) {
        return std::any_of(changed.begin(), changed.end(), [&](const QList<QVariant> &arguments) {
            return arguments.at(0).toModelIndex().parent() == cell.parent();
        });
    };
    QVERIFY(isNotified(starred) && isNotified(other));

    // An open editor writes its value and closes when its row is removed.
    shown.browser.setVisibility(OrvGui::Basic);
    QCOMPARE(shown.names(shown.model().index(0, 0)), QStringList("Gain"));
    shown.choose(shown.model().index(0, 0, shown.model().index(0, 0)), "goToGain");
    QVERIFY(shown.tree.currentIndex().parent().row() > 0);
    shown.choose(shown.model().index(0, 0, shown.model().index(0, 0)), "favourite");
    QCOMPARE(shown.names(), all);
}

void TestOrvFeatureBrowser::savedState()
{
    SampleNodeMap map;
    Shown shown(map);
    shown.tree.expand(shown.cell("AcquisitionControl", 0));
    shown.tree.setColumnWidth(0, 222);
    shown.browser.setVisibility(OrvGui::Expert);
    shown.choose(shown.cell("Gain", 0), "favourite");
    shown.action("searchTexts").setChecked(false);
    const QByteArray saved = shown.browser.saveState();

    // A browser without features keeps the state and applies it when it gets its features.
    OrvFeatureBrowser second;
    QVERIFY(second.restoreState(saved));
    QCOMPARE(second.visibility(), OrvGui::Expert);
    QCOMPARE(QByteArray(second.saveState()), saved);
    second.setParams(&map);
    QCOMPARE(QByteArray(second.saveState()), saved);
    QCOMPARE(expansion(*second.treeView()), expansion(shown.tree));
    QCOMPARE(second.treeView()->columnWidth(0), 222);

    // Each camera model has favourites of its own.
    LargeNodeMap other;
    second.setParams(&other);
    QVERIFY(second.treeView()->model()->index(0, 0).data().toString() != "Favourites");
    second.setParams(&map);
    QCOMPARE(second.treeView()->model()->index(0, 0).data().toString(), QString("Favourites"));

    // A tree restores its part of the state. A browser accepts a tree's state, and keeps its
    // favourites.
    OrvGui::OrvGenParamTreeView tree(&map, nullptr);
    tree.setVisibility(OrvGui::Expert);
    tree.loadState(saved);
    QVERIFY(
        tree.treeView()->isExpanded(cellOf(*tree.treeView()->model(), "AcquisitionControl", 0)));
    QCOMPARE(tree.treeView()->columnWidth(0), 222);
    QCOMPARE(tree.visibility(), OrvGui::Expert);
    tree.treeView()->collapseAll();
    tree.treeView()->setColumnWidth(0, 111);
    QVERIFY(second.restoreState(tree.saveState()));
    QCOMPARE(second.treeView()->columnWidth(0), 111);
    QVERIFY(!second.treeView()->isExpanded(
        cellOf(*second.treeView()->model(), "AcquisitionControl", 0)));
    QCOMPARE(second.treeView()->model()->index(0, 0).data().toString(), QString("Favourites"));

    const QByteArray good = second.saveState();
    const QByteArray own = saved.mid(saved.indexOf("&amp;B"));
    for (const QByteArray &bad :
         {QByteArray(), QByteArray("nonsense"), QByteArray("&amp;Wide&amp;V1"),
          QByteArray("&amp;W100&amp;V99999999999"), saved.left(saved.size() - 5),
          QByteArray("&amp;W100&amp;V1&amp;B!?"), QByteArray("&amp;W1x&amp;V-" + own)}) {
        QVERIFY2(!second.restoreState(bad.constData()), bad.constData());
        QCOMPARE(QByteArray(second.saveState()), good);
    }
    QVERIFY(!second.restoreState(nullptr));
    second.loadState("nonsense");
    QVERIFY(second.restoreState(own)); // saved by a browser without features
    QVERIFY(second.restoreState(second.saveState()));
}

void TestOrvFeatureBrowser::changedFeatures()
{
    SampleNodeMap map;
    Shown shown(map);
    const QAbstractItemModelTester tester(&shown.model());
    QVERIFY(!shown.action("putBackAll").isEnabled());
    QVERIFY(shown.model().setData(shown.cell("ExposureTime"), 500.0));
    QVERIFY(shown.model().setData(shown.cell("ExposureTime"), 700.0));
    QVERIFY(shown.model().setData(shown.cell("Width"), 640));
    QVERIFY(shown.model().setData(shown.cell("PixelFormat"), 0x01100005));
    QVERIFY(shown.model().setData(shown.cell("DeviceReset"), true));
    map.integer("BinningHorizontal").change(2); // by the camera
    QVERIFY(shown.isChanged("ExposureTime") && shown.isChanged("Width"));
    QVERIFY(!shown.isChanged("DeviceReset") && !shown.isChanged("BinningHorizontal"));
    QCOMPARE(shown.toolTip("ExposureTime"), QString("Earlier value: 10000 us"));
    QVERIFY(shown.toolTip("Width", 0).endsWith("Earlier value: 1280"));

    shown.action("onlyChanged").setChecked(true);
    QCOMPARE(shown.names(), QStringList({"Image Format Control", "Acquisition Control"}));
    QCOMPARE(shown.names(shown.model().index(0, 0)), QStringList({"Width", "Pixel Format"}));
    shown.choose(shown.cell("PixelFormat", 0), "putBack");
    QCOMPARE(map.node("PixelFormat")->GetName(), GenICam::gcstring("PixelFormat"));
    QTRY_COMPARE(shown.names(shown.model().index(0, 0)), QStringList("Width"));
    // The old value is written again by hand.
    QVERIFY(shown.model().setData(shown.cell("Width"), 1280));
    QTRY_VERIFY(!shown.cell("Width").isValid());
    shown.action("onlyChanged").setChecked(false);
    QVERIFY(!shown.isChanged("Width"));

    shown.action("putBackAll").trigger();
    QCOMPARE(shown.cell("ExposureTime").data().toDouble(), 10000.0);
    QCOMPARE(shown.cell("PixelFormat").data().toString(), QString("Mono8"));
    QVERIFY(!shown.isChanged("ExposureTime") && !shown.action("putBackAll").isEnabled());
}

/// Undo restores each value at its selector position. A single action of the browser is one step.
void TestOrvFeatureBrowser::undo()
{
    SampleNodeMap map;
    double gains[] = {1.5, 3};
    auto &selector = map.enumeration("GainSelector");
    map.number("Gain").bind([&] { return gains[selector.GetIntValue()]; },
                            [&](double gain) { gains[selector.GetIntValue()] = gain; });
    Shown shown(map);
    const auto set = [&](const char *feature, const QVariant &value) {
        QVERIFY(shown.model().setData(shown.cell(feature), value));
    };
    QVERIFY(!shown.action("actionUndo").isEnabled());
    QVERIFY(shown.browser.menu()->actions().contains(&shown.action("actionRedo")));
    set("ExposureTime", 1.0 / 3 + 100); // more digits than the cell shows
    set("Gain", 6.0);
    set("GainSelector", 1);
    set("DeviceReset", true);
    set("ExposureTime", 500.0);
    shown.action("putBackAll").trigger();
    QCOMPARE(gains[0], 1.5);
    QVERIFY(!shown.isChanged("ExposureTime"));

    shown.action("actionUndo").trigger(); // undoes "put back" except for the selector
    QCOMPARE(gains[0], 6.0);
    QCOMPARE(map.number("ExposureTime").GetValue(), 500.0);
    QVERIFY(shown.isChanged("ExposureTime"));
    shown.action("actionRedo").trigger();
    QCOMPARE(gains[0], 1.5);
    QVERIFY(!shown.isChanged("ExposureTime") && !shown.isChanged("Gain"));
    shown.action("actionUndo").trigger();

    set("GainSelector", 1);
    shown.action("actionUndo").trigger();
    QCOMPARE(map.number("ExposureTime").GetValue(), 1.0 / 3 + 100);
    shown.action("actionUndo").trigger();
    QCOMPARE(gains[0], 1.5);
    QCOMPARE(gains[1], 3.0);
    QCOMPARE(selector.GetIntValue(), int64_t(1)); // the former position
    QVERIFY(shown.toolTip("Gain").isEmpty() || !shown.toolTip("Gain").contains("Earlier"));
    shown.action("actionUndo").trigger();
    QCOMPARE(map.number("ExposureTime").GetValue(), 10000.0);
    QVERIFY(!shown.isChanged("ExposureTime") && !shown.action("actionUndo").isEnabled());
}

void TestOrvFeatureBrowser::undoWhileTyping()
{
    SampleNodeMap map;
    Shown shown(map);
    QVERIFY(QTest::qWaitForWindowActive(&shown.browser));
    shown.tree.expandAll();
    const auto keys = [](QWidget *editor) {
        QTest::keyClick(editor, Qt::Key_Z, Qt::ControlModifier);
    };
    const auto edit = [&](const QString &text) {
        shown.tree.setCurrentIndex(shown.cell("Width"));
        shown.tree.edit(shown.cell("Width"));
        auto *editor = qobject_cast<QSpinBox *>(shown.tree.indexWidget(shown.cell("Width")));
        if (!editor)
            qFatal("No editor");
        editor->setFocus();
        editor->selectAll();
        QTest::keyClicks(editor, text);
        return editor;
    };
    QTest::keyClick(edit("640"), Qt::Key_Return);
    QTRY_COMPARE(map.integer("Width").GetValue(), int64_t(640));
    QPointer<QSpinBox> editor = edit("320");
    keys(editor);
    QVERIFY(editor && editor->text() != "320");
    QCOMPARE(map.integer("Width").GetValue(), int64_t(640));
    for (int i = 0; i < 5 && editor && editor->text() != "640"; ++i)
        keys(editor);
    QVERIFY(editor && editor->text() == "640");
    keys(editor); // no input is pending, so the keys undo the last write
    QTRY_COMPARE(map.integer("Width").GetValue(), int64_t(1280));
    QVERIFY(!shown.isChanged("Width"));
    QCoreApplication::processEvents(); // the deferred part of the undo
}

/// Writes by other windows of the same camera count as changes, too.
void TestOrvFeatureBrowser::changesOfOtherWindows()
{
    SampleNodeMap map;
    Shown shown(map);
    Shown second(map);
    const auto journal = OrvGui::FeatureJournal::of(&map);
    map.integer("Width").GetValue();
    OrvGui::FeatureJournal::write(journal, "Width", 1280, 640, [&] {
        map.integer("Width").SetValue(640);
        return true;
    });
    QVERIFY(shown.isChanged("Width") && second.isChanged("Width"));
    QCOMPARE(shown.toolTip("Width"), QString("Earlier value: 1280"));
    QVERIFY(shown.model().setData(shown.cell("ExposureTime"), 500.0));
    QVERIFY(second.isChanged("ExposureTime"));
    second.action("actionUndo").trigger();
    second.action("actionUndo").trigger();
    QVERIFY(!shown.isChanged("Width") && !shown.isChanged("ExposureTime"));
    QVERIFY(!shown.action("putBackAll").isEnabled());

    // Writes that cannot be undone clear the history.
    shown.action("actionRedo").trigger();
    QVERIFY(shown.action("actionRedo").isEnabled());
    journal->startAnew({{map.GetNode("Gain"), "3", "6", {{"GainSelector", "Red", "Red"}}}});
    QVERIFY(!shown.action("actionUndo").isEnabled() && !shown.action("actionRedo").isEnabled());
    QVERIFY(!shown.isChanged("Gain") && shown.isChanged("Width"));
    QCOMPARE(shown.toolTip("Gain"), QString("Earlier value: 3 dB (Gain Selector: Red)"));
    journal->startAnew({{map.GetNode("Gain"), QString(), "3.0", {{"GainSelector", "Red", "Red"}}}});
    QVERIFY(!shown.toolTip("Gain").contains("Earlier"));
}

void TestOrvFeatureBrowser::refusedWrites()
{
    SampleNodeMap map;
    Shown shown(map);
    const auto isMarked = [&](const char *feature) {
        return shown.cell(feature).data(Qt::DecorationRole).isValid();
    };
    QVERIFY(!shown.model().setData(shown.cell("Width"), 5000));
    QVERIFY(isMarked("Width") && !isMarked("ExposureTime"));
    QVERIFY2(shown.toolTip("Width").startsWith("Refused: "), qPrintable(shown.toolTip("Width")));
    QVERIFY(shown.toolTip("Width").contains("5000"));
    QVERIFY(!shown.isChanged("Width"));
    QVERIFY(shown.model().setData(shown.cell("ExposureTime"), 500.0));
    QVERIFY(isMarked("Width"));
    QVERIFY(shown.model().setData(shown.cell("Width"), 640));
    QVERIFY(!isMarked("Width"));

    // A feature that cannot be restored stays changed and shows the reason.
    map.integer("Width").onWrite(
        [] { throw GenICam::RuntimeException("The camera is <b>busy</b>", __FILE__, __LINE__); });
    shown.choose(shown.cell("Width", 0), "putBack");
    QVERIFY(shown.isChanged("Width"));
    QCOMPARE(shown.toolTip("Width"),
             QString("Refused: The camera is <b>busy</b> – Earlier value: 1280"));
    map.integer("Width").setAccessMode(GenApi::RO);
    QVERIFY(!shown.model().setData(shown.cell("Width"), 16));
    QVERIFY(shown.toolTip("Width").contains("cannot be written at the moment"));
}

void TestOrvFeatureBrowser::contextMenu()
{
    SampleNodeMap map;
    Shown shown(map);
    const auto copied = [&](const char *feature, const char *action) {
        shown.choose(shown.cell(feature, 0), action);
        return QGuiApplication::clipboard()->text();
    };
    QCOMPARE(copied("ExposureTime", "copyName"), QString("ExposureTime"));
    QCOMPARE(copied("ExposureTime", "copyValue"), QString("10000"));
    QCOMPARE(copied("PixelFormat", "copyBoth"), QString("PixelFormat = Mono8"));
    QCOMPARE(copied("DeviceControl", "copyName"), QString("DeviceControl"));

    shown.choose(shown.cell("Gain", 0), "goToGainSelector");
    QCOMPARE(shown.tree.currentIndex(), shown.cell("GainSelector", 0));
    shown.choose(shown.tree.currentIndex(), "goToGain");
    QCOMPARE(shown.tree.currentIndex(), shown.cell("Gain", 0));

    shown.choose(shown.cell("TransportLayerControl", 0), "expand");
    QVERIFY(shown.tree.isExpanded(shown.cell("GigEVision", 0)));
    shown.choose(shown.cell("TransportLayerControl", 0), "collapse");
    QVERIFY(!shown.tree.isExpanded(shown.cell("GigEVision", 0)));

    const int reads = map.integer("Width").reads();
    QCOMPARE(shown.cell("Width").data().toInt(), 1280);
    map.integer("Width").bind([] { return 320; });
    shown.choose(shown.cell("ImageFormatControl", 0), "readAgain");
    QCOMPARE(shown.cell("Width").data().toInt(), 320);
    QVERIFY(map.integer("Width").reads() > reads);
}

void TestOrvFeatureBrowser::selectorTable()
{
    SampleNodeMap map;
    double gains[] = {1.5, 3};
    auto &selector = map.enumeration("GainSelector");
    auto &gain = map.number("Gain");
    gain.bind([&] { return gains[selector.GetIntValue()]; },
              [&](double value) { gains[selector.GetIntValue()] = value; });
    QThread *reader = nullptr;
    Shown shown(map);
    selector.onWrite([&] { reader = QThread::currentThread(); });
    shown.tree.expandAll();
    shown.choose(shown.cell("Gain", 0), "table");
    auto *window = shown.browser.findChild<OrvGui::SelectorTable *>();
    QVERIFY(window && window->isModal());
    QTRY_VERIFY(!window->isReading());
    QVERIFY(reader && reader != QThread::currentThread());
    QCOMPARE(selector.GetIntValue(), int64_t(0));
    QCOMPARE(shown.cell("Gain").data().toDouble(), 1.5);
    QVERIFY(!shown.isChanged("GainSelector"));

    auto &table = *window->findChild<QTableWidget *>();
    QCOMPARE(table.verticalHeaderItem(1)->text(), QString("Red"));
    QCOMPARE(table.item(0, 0)->text(), QString("1.5 dB"));
    QCOMPARE(table.item(1, 0)->text(), QString("3 dB"));
    const auto enter = [&](int row, const QString &text) {
        table.setCurrentCell(row, 0);
        table.editItem(table.item(row, 0));
        auto *editor = qobject_cast<QLineEdit *>(table.indexWidget(table.currentIndex()));
        QVERIFY(editor);
        editor->setText(text);
        QTest::keyClick(editor, Qt::Key_Return);
        QCoreApplication::processEvents();
    };
    enter(1, "12");
    QCOMPARE(gains[1], 12.0);
    QCOMPARE(table.item(1, 0)->text(), QString("12 dB"));
    QCOMPARE(selector.GetIntValue(), int64_t(0));
    QVERIFY(!shown.isChanged("Gain"));
    QCOMPARE(shown.toolTip("Gain"), QString("Earlier value: 3 dB (Gain Selector: Red)"));
    enter(1, "13"); // not a valid value
    QCOMPARE(gains[1], 12.0);
    QVERIFY(!table.item(1, 0)->icon().isNull());
    QVERIFY(!table.item(1, 0)->toolTip().isEmpty());

    // The tree may get other parameters while the table is open, and even while the table is read.
    window->readAgain();
    shown.browser.clearParams();
    QVERIFY(!shown.browser.findChild<OrvGui::SelectorTable *>());
    QCOMPARE(selector.GetIntValue(), int64_t(0));
}

void TestOrvFeatureBrowser::otherParameters()
{
    SampleNodeMap map;
    auto other = std::make_unique<LargeNodeMap>();
    Shown shown(map);
    QVERIFY(shown.model().setData(shown.cell("Width"), 640));
    shown.type("width");
    shown.browser.setParams(other.get()); // the search continues
    QCOMPARE(shown.model().rowCount(), 0);
    QVERIFY(!shown.action("putBackAll").isEnabled());
    QTest::keyClick(&shown.line, Qt::Key_Escape);
    QCOMPARE(shown.model().rowCount(), 50);
    shown.browser.clearParams();
    other.reset();
    QVERIFY(!shown.tree.model());
    shown.type("x");
    shown.browser.setVisibility(OrvGui::Basic);
    QCoreApplication::processEvents();
    shown.browser.setParams(static_cast<GenApi::INodeMap *>(nullptr));
    QVERIFY(!shown.tree.model());
}

void TestOrvFeatureBrowser::cFunctions()
{
    SampleNodeMap map;
    OrvGuiFeatureBrowser *browser = CreateFeatureBrowserForNodemapA(&map, "Fe\xc3\xa4", 0);
    auto *widget = dynamic_cast<OrvFeatureBrowser *>(browser);
    QVERIFY(widget && widget->isVisible());
    QCOMPARE(widget->windowTitle(), QString::fromUtf8("Fe\xc3\xa4"));
    QCOMPARE(LoadFeatureBrowserState(browser, "&amp;W150&amp;V2"), 1);
    QCOMPARE(widget->visibility(), OrvGui::Guru);
    const QByteArray saved = SaveFeatureBrowserState(browser);
    QVERIFY(saved.startsWith("&amp;W150&amp;V2&amp;B"));
    QCOMPARE(LoadFeatureBrowserState(browser, "nonsense"), 0);
    QCOMPARE(LoadFeatureBrowserState(browser, SaveFeatureBrowserState(browser)), 1);
    DestroyFeatureBrowser(browser);
    DestroyFeatureBrowser(nullptr);
    QVERIFY(!SaveFeatureBrowserState(nullptr));
    QCOMPARE(LoadFeatureBrowserState(nullptr, saved), 0);

    browser = CreateFeatureBrowserForArrayW(nullptr, L"Nothing", 0);
    QVERIFY(browser);
    DestroyFeatureBrowser(browser);
}

// Qt fades the clear button of a line edit; the animation deletes itself when it ends.
void TestOrvFeatureBrowser::cleanupTestCase()
{
    QTest::qWait(250);
}

QTEST_MAIN(TestOrvFeatureBrowser)
#include "tst_orvfeaturebrowser.moc"
