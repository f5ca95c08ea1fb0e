// SPDX-License-Identifier: MIT
//
// For how long does the feature tree keep a program from answering its user?
//
//   blocked-time [FEATURES ...]
//
// For each number of features, by default 5000, 10000 and 20000 in 100 categories: the time from
// the call to the end of what it causes in the event loop, painting included. The node map is in
// memory, so that no camera is waited for. The second figure is the time per feature, which should
// not grow with their number.

#include <memorynodemap.h>
#include <orvgenparamtreeview.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QTextStream>
#include <QTreeView>

#include <memory>
#include <vector>

namespace {

const int categoryCount = 100;
const int notificationCount = 200;

/// As many features of all types and levels as asked for, spread over the categories.
class LargeNodeMap : public OrvGenApi::MemoryNodeMap
{
public:
    explicit LargeNodeMap(int features) : MemoryNodeMap("Large")
    {
        for (int i = 0; i < categoryCount; ++i)
            addCategory(category(i)).properties().description = "A category.";
        for (int i = 0; i < features; ++i)
            addFeature(i);
    }

    /// The integer features, which are those that notify.
    const std::vector<OrvGenApi::MemoryInteger *> &integers() const { return m_integers; }

private:
    static std::string category(int i) { return "Category" + std::to_string(i); }

    void addFeature(int i)
    {
        const std::string name = "Feature" + std::to_string(i);
        const std::string parent = category(i % categoryCount);
        const auto visibility = static_cast<GenApi::EVisibility>(i / categoryCount % 3);
        switch (i / categoryCount % 4) {
        case 0:
            m_integers.push_back(&addInteger(name, i, parent));
            m_integers.back()->properties().visibility = visibility;
            break;
        case 1:
            addFloat(name, i, parent).properties().visibility = visibility;
            break;
        case 2:
            addString(name, "text", parent).properties().visibility = visibility;
            break;
        default:
            addEnumeration(name, {{"Off", 0}, {"On", 1}}, 0, parent).properties().visibility =
                visibility;
            break;
        }
    }

    std::vector<OrvGenApi::MemoryInteger *> m_integers;
};

class Benchmark
{
public:
    explicit Benchmark(int features) : m_features(features), m_map(features) {}

    void run()
    {
        QTextStream(stdout) << m_features << " features\n";
        std::unique_ptr<OrvGui::OrvGenParamTreeView> view;
        measure("building and showing the tree", [&] {
            view.reset(new OrvGui::OrvGenParamTreeView(&m_map, nullptr));
            view->show();
        });
        QTreeView *tree = view->treeView();
        measure("level Basic to Guru, collapsed", [&] { view->setVisibility(OrvGui::Guru); });
        measure("expandAll at Guru", [&] { tree->expandAll(); });
        measure("level Guru to Basic, expandAll", [&] { view->setVisibility(OrvGui::Basic); });
        measure("level Basic to Guru, expandAll", [&] { view->setVisibility(OrvGui::Guru); });
        // expandAll makes Qt remember every single row as expanded, a user only the categories.
        measure("collapse, expand each category", [&] {
            tree->collapseAll();
            for (int row = 0; row < tree->model()->rowCount(); ++row)
                tree->expand(tree->model()->index(row, 0));
        });
        measure("level Guru to Basic, expanded", [&] { view->setVisibility(OrvGui::Basic); });
        measure("level Basic to Guru, expanded", [&] { view->setVisibility(OrvGui::Guru); });
        measure("200 notifications", [&] { notify(); });
        measure("scrolling to the end", [&] { tree->scrollToBottom(); });
        measure("200 notifications, scrolled", [&] { notify(); });
        measure("saveState", [&] { m_state = view->saveState(); });
        measure("loadState", [&] { view->loadState(m_state.constData()); });
        measure("destroying the tree", [&] { view.reset(); });
    }

private:
    template<typename Function>
    void measure(const char *what, Function function)
    {
        QElapsedTimer timer;
        timer.start();
        function();
        QCoreApplication::processEvents();
        const double milliseconds = static_cast<double>(timer.nsecsElapsed()) / 1e6;
        QTextStream(stdout) << QStringLiteral("  %1 %2 ms %3 us/feature\n")
                                   .arg(QLatin1String(what), -32)
                                   .arg(milliseconds, 9, 'f', 1)
                                   .arg(milliseconds * 1000 / m_features, 8, 'f', 2);
    }

    /// Spread over all of the tree, in a row: the tree is repainted only after the last.
    void notify()
    {
        const std::vector<OrvGenApi::MemoryInteger *> &integers = m_map.integers();
        for (std::size_t i = 0; i < notificationCount; ++i) {
            OrvGenApi::MemoryInteger &integer = *integers[i * integers.size() / notificationCount];
            integer.change(integer.GetValue() + 1);
        }
    }

    const int m_features;
    LargeNodeMap m_map;
    QByteArray m_state;
};

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments().mid(1);
    QList<int> sizes;
    for (const QString &argument : arguments)
        sizes << argument.toInt();
    if (sizes.isEmpty())
        sizes << 5000 << 10000 << 20000;
    for (const int size : sizes) {
        if (size < 4 * notificationCount) {
            QTextStream(stderr) << "blocked-time: at least " << 4 * notificationCount
                                << " features are needed\n";
            return 2;
        }
        Benchmark(size).run();
    }
    return 0;
}
