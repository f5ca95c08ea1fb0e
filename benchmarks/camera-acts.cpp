// SPDX-License-Identifier: MIT
//
// Which commands does each user action send, and does the window wait for their answers?
//
//   tests/support/with-netns.sh camera-acts [OPTIONS] [DESCRIPTION.xml ...]
//
// Opens cameras with the given descriptions (by default the simulated camera's) through the windows
// and performs the actions one by one: on the feature tree (open, show, expand, page, repaint,
// write, idle, silence, reconnection, second opening) and on the configuration window with all its
// dialogs. Prints a table for each window, description and condition; docs/performance.md explains
// the columns and shows a run.

#include "cameraset.h"
#include "guimeter.h"

#include "../tools/soak/usage.h"

#include <GenApi/GenApi.h>
#include <OrvCam.h>
#include <OrvGenParam.h>
#include <genparamtreemodel.h>
#include <orvcamconfig.h>
#include <orvcamconfigopening.h>
#include <orvgenparamtreeview.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QCommandLineParser>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTextStream>
#include <QTimer>
#include <QTreeView>

#include <atomic>
#include <functional>
#include <memory>
#include <thread>
#include <vector>

namespace {

constexpr int mostPages = 12;
constexpr int idleTime = 5000; // ms
constexpr int timeout = 60000; // ms
const QChar notKnown = 0x2026; // an ellipsis

using Device = OrvCam::Released<OrvCam::Device>;

void letPass(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

/// Runs a call that waits for the cameras on another thread, so that the event loop is not blocked.
void runOnOtherThread(const std::function<void()> &call)
{
    std::atomic<bool> isDone{false};
    std::thread thread([&] {
        call();
        isDone = true;
    });
    while (!isDone)
        letPass(5);
    thread.join();
}

/// The measurements of one action, repeated for each camera or for each page.
struct Row
{
    QString name;
    int times = 0;
    Traffic traffic;
    double worstRatio = 0; ///< of commands to packed commands
    QString worst;
    qint64 longestTime = 0; ///< ms until the action was complete
    GuiMeter::Gaps gaps;
};

/// One window on each of several cameras.
class Acts
{
public:
    Acts(CameraSet &cameras, int interruptions) : m_cameras(cameras), m_interruptions(interruptions)
    {
    }
    virtual ~Acts() = default;

    void run();

protected:
    using Act = std::function<void()>;
    using IsDone = std::function<bool()>;

    /// Performs the window's actions once its cameras are open.
    virtual void runWindow() = 0;
    virtual bool isComplete() = 0;
    virtual void closeWindow() = 0;
    /// Whether the window's contents are read on the thread that opens the camera.
    virtual bool preparesCameras() const { return false; }

    OrvCam::Device &device(int camera) { return *m_devices[static_cast<std::size_t>(camera)]; }
    int count() const { return m_cameras.condition().cameras; }

    void measure(Row &row, const Act &act, const IsDone &isDone);
    void measure(const char *name, const Act &act, const IsDone &isDone);
    /// Measures an action for each camera.
    void measureEach(const char *name, const std::function<void(int)> &act);
    static void print(const Row &row);

private:
    void open(const char *name);
    void close();
    OrvCam::Device *openOne(OrvCam::DeviceInfo &record);
    void idle();
    void interrupt();
    void measureInterruptions();
    double processorShare();
    static void note(int32_t code, void *context);

    CameraSet &m_cameras;
    const int m_interruptions;
    GuiMeter m_meter;
    std::vector<Device> m_devices;
    std::atomic<int> m_disconnected{0};
    std::atomic<int> m_reconnected{0};
};

void Acts::run()
{
    QTextStream(stdout)
        << "| Act | Commands | Packed | Worst | Time | Longest gap | Own work | Longest wait "
           "| Beyond 5 ms |\n|---|--:|--:|--:|--:|--:|--:|--:|--:|\n";
    open("open");
    runWindow();
    idle();
    measure(
        "silence", [this] { m_cameras.setSilent(true); },
        [this] { return m_disconnected == count(); });
    measure(
        "return", [this] { m_cameras.setSilent(false); },
        [this] { return m_reconnected == count() && isComplete(); });
    if (m_interruptions > 0)
        measureInterruptions();
    close();
    open("second open");
    close();
    QTextStream(stdout) << '\n';
}

void Acts::measure(Row &row, const Act &act, const IsDone &isDone)
{
    m_cameras.takeTraffic();
    m_meter.take();
    QElapsedTimer timer;
    timer.start();
    act();
    while (!isDone()) {
        if (timer.hasExpired(timeout)) {
            QTextStream(stdout) << row.name << " does not come to an end\n";
            break;
        }
        letPass(10);
    }
    row.longestTime = qMax(row.longestTime, timer.elapsed());
    letPass(100 + 4 * m_cameras.condition().delay); // for the reads that follow
    const GuiMeter::Gaps gaps = m_meter.take();
    row.gaps.longest = qMax(row.gaps.longest, gaps.longest);
    row.gaps.work = qMax(row.gaps.work, gaps.work);
    row.gaps.longestWait = qMax(row.gaps.longestWait, gaps.longestWait);
    row.gaps.beyond += gaps.beyond;

    const Traffic traffic = m_cameras.takeUnpolledTraffic();
    ++row.times;
    row.traffic.commands += traffic.commands;
    row.traffic.packed += traffic.packed;
    const double ratio = traffic.packed ? double(traffic.commands) / traffic.packed : 0;
    if (ratio > row.worstRatio) {
        row.worstRatio = ratio;
        row.worst = QStringLiteral("%1/%2").arg(traffic.commands).arg(traffic.packed);
    }
}

void Acts::measure(const char *name, const Act &act, const IsDone &isDone)
{
    Row row;
    row.name = QString::fromLatin1(name);
    measure(row, act, isDone);
    print(row);
}

void Acts::measureEach(const char *name, const std::function<void(int)> &act)
{
    Row row;
    row.name = QString::fromLatin1(name);
    for (int i = 0; i < count(); ++i)
        measure(
            row, [&] { act(i); }, [this] { return isComplete(); });
    print(row);
}

void Acts::print(const Row &row)
{
    const auto number = [](double value) {
        return QString::number(value, 'f', value < 10 ? 1 : 0);
    };
    const QString name =
        row.times > 1 ? QStringLiteral("%1, %2 times").arg(row.name).arg(row.times) : row.name;
    const GuiMeter::Gaps &gaps = row.gaps;
    QTextStream(stdout) << "| " << name << " | " << row.traffic.commands << " | "
                        << row.traffic.packed << " | " << row.worst << " | " << row.longestTime
                        << " | " << number(gaps.longest) << " | " << number(gaps.work) << " | "
                        << number(gaps.longestWait) << " | " << number(gaps.beyond) << " |\n";
}

void Acts::open(const char *name)
{
    Row row;
    row.name = QString::fromLatin1(name);
    for (OrvCam::DeviceInfo *record : m_cameras.records())
        measure(
            row, [&] { m_devices.emplace_back(openOne(*record)); }, [] { return true; });
    print(row);
    for (const Device &opened : m_devices) {
        opened->RegisterEvent(OrvCam::EventDisconnected, note, this);
        opened->RegisterEvent(OrvCam::EventReconnected, note, this);
    }
}

OrvCam::Device *Acts::openOne(OrvCam::DeviceInfo &record)
{
    OrvGui::OrvCamConfigOpening opening(record, OrvCam::AccessControl);
    if (preparesCameras())
        opening.setPreparation(&OrvGui::OrvCamConfig::prepare);
    const auto result = opening.exec();
    if (!result.device)
        qFatal("A camera cannot be opened: %s", qPrintable(result.reason));
    return result.device;
}

void Acts::close()
{
    closeWindow();
    for (const Device &opened : m_devices) {
        opened->UnregisterEvent(OrvCam::EventDisconnected, note, this);
        opened->UnregisterEvent(OrvCam::EventReconnected, note, this);
    }
    m_devices.clear();
    letPass(100);
}

void Acts::note(int32_t code, void *context)
{
    auto *self = static_cast<Acts *>(context);
    ++(code == OrvCam::EventDisconnected ? self->m_disconnected : self->m_reconnected);
}

void Acts::idle()
{
    letPass(1000);
    m_cameras.takeTraffic();
    m_meter.take();
    letPass(idleTime);
    Row row;
    row.name = QStringLiteral("idle, 5 s");
    row.gaps = m_meter.take();
    row.longestTime = idleTime;
    row.traffic = m_cameras.takeTraffic();
    const double most = row.traffic.polls * idleTime / 1000;
    row.traffic.packed = unsigned(most + 0.5);
    row.worst = QStringLiteral("%1 not polled").arg(row.traffic.notPolled);
    print(row);
    QTextStream(stdout) << "| idle, processor | " << QString::number(processorShare(), 'f', 1)
                        << " % of a core |\n";
}

/// The processor time of all threads except the cameras' and the meter's, in per cent of one core.
double Acts::processorShare()
{
    const auto used = [this] {
        double sum = 0;
        for (const int thread : threadIds())
            sum += m_cameras.isCameraThread(thread) ? 0 : processorTime(thread);
        return sum;
    };
    m_meter.setEnabled(false);
    QElapsedTimer timer;
    timer.start();
    const double before = used();
    letPass(idleTime);
    const double share = (used() - before) * 100 / double(timer.elapsed());
    m_meter.setEnabled(true);
    return share;
}

/// Interrupts the connection twice: by silence, which leaves the control privilege in place, and by
/// switching the camera off, which does not.
void Acts::interrupt()
{
    for (const bool isSwitchedOff : {false, true}) {
        m_disconnected = m_reconnected = 0;
        runOnOtherThread(
            [&] { isSwitchedOff ? m_cameras.switchOff() : m_cameras.setSilent(true); });
        for (int waited = 0; m_disconnected < count() && waited < timeout; waited += 10)
            letPass(10);
        runOnOtherThread(
            [&] { isSwitchedOff ? m_cameras.switchOn() : m_cameras.setSilent(false); });
        for (int waited = 0; m_reconnected < count() && waited < timeout; waited += 10)
            letPass(10);
        for (int waited = 0; !isComplete() && waited < timeout; waited += 10)
            letPass(10);
        letPass(1500); // the configuration window notices within a second
    }
}

void Acts::measureInterruptions()
{
    const auto threads = [] { return int(threadIds().size()); };
    const auto usage = [this] {
        m_cameras.takeTraffic(); // empties the cameras' logs, which use memory
        return Usage::now();
    };
    for (int i = 0; i < 2; ++i) // until caches are full
        interrupt();
    const Usage before = usage();
    const int threadsBefore = threads();
    m_meter.take();
    for (int i = 0; i < m_interruptions; ++i)
        interrupt();
    const GuiMeter::Gaps gaps = m_meter.take();
    const Usage after = usage();
    const double times = 2.0 * m_interruptions * count();
    QTextStream(stdout) << "| " << times << " interruptions, each | "
                        << QString::number(double(after.heap - before.heap) / times, 'f', 1)
                        << " kB | " << double(threads() - threadsBefore) / times << " threads | "
                        << double(after.files - before.files) / times << " files | | "
                        << QString::number(gaps.longest, 'f', 0) << " | "
                        << QString::number(gaps.work, 'f', 0) << " | "
                        << QString::number(gaps.longestWait, 'f', 1) << " | |\n";
}

/// The actions on a feature tree.
class TreeActs : public Acts
{
public:
    using Acts::Acts;

protected:
    void runWindow() override;
    bool isComplete() override;
    void closeWindow() override { m_views.clear(); }

private:
    QTreeView &tree(int camera) { return *m_views[static_cast<std::size_t>(camera)]->treeView(); }
    static QModelIndexList rowsOnScreen(const QTreeView &tree);
    void turnPages();
    QModelIndex writableRow(QTreeView &tree);
    void write();

    std::vector<std::unique_ptr<OrvGui::OrvGenParamTreeView>> m_views;
};

QModelIndexList TreeActs::rowsOnScreen(const QTreeView &tree)
{
    QModelIndexList rows;
    for (QModelIndex row = tree.indexAt(QPoint(0, 0));
         row.isValid() && tree.visualRect(row).top() < tree.viewport()->height();
         row = tree.indexBelow(row))
        rows.append(row);
    return rows;
}

bool TreeActs::isComplete()
{
    for (const auto &view : m_views) {
        const QModelIndexList rows = rowsOnScreen(*view->treeView());
        for (const QModelIndex &row : rows) {
            if (row.siblingAtColumn(1).data().toString() == notKnown)
                return false;
        }
    }
    return true;
}

void TreeActs::runWindow()
{
    measureEach("show", [this](int i) {
        m_views.push_back(std::make_unique<OrvGui::OrvGenParamTreeView>());
        m_views.back()->resize(600, 900);
        m_views.back()->setVisibility(OrvGui::Guru);
        m_views.back()->setParams(device(i).GetParamArray());
        m_views.back()->show();
    });
    measureEach("expand", [this](int i) { tree(i).expandAll(); });
    turnPages();
    measureEach("repaint", [this](int i) { tree(i).viewport()->repaint(); });
    write();
}

void TreeActs::turnPages()
{
    Row row;
    row.name = QStringLiteral("page");
    for (int page = 0; page < mostPages; ++page) {
        for (int i = 0; i < count(); ++i) {
            QScrollBar *bar = tree(i).verticalScrollBar();
            if (bar->value() < bar->maximum())
                measure(
                    row, [bar] { bar->triggerAction(QScrollBar::SliderPageStepAdd); },
                    [this] { return isComplete(); });
        }
    }
    print(row);
}

QModelIndex TreeActs::writableRow(QTreeView &tree)
{
    for (const QModelIndex &row : rowsOnScreen(tree)) {
        const QModelIndex value = row.siblingAtColumn(1);
        auto *feature = value.data(Qt::UserRole).value<GenApi::IValue *>();
        const bool isInteger =
            feature && feature->GetNode()->GetPrincipalInterfaceType() == GenApi::intfIInteger;
        if (isInteger && (value.flags() & Qt::ItemIsEditable) && value.data(Qt::EditRole).isValid())
            return value;
    }
    return QModelIndex();
}

/// Writes the current value of a feature again.
void TreeActs::write()
{
    QTreeView &first = tree(0);
    QModelIndex row;
    while (!(row = writableRow(first)).isValid() && first.verticalScrollBar()->value() > 0) {
        first.verticalScrollBar()->triggerAction(QScrollBar::SliderPageStepSub);
        letPass(1000);
    }
    if (row.isValid())
        measure(
            "write", [&] { first.model()->setData(row, row.data(Qt::EditRole)); },
            [this] { return isComplete(); });
}

/// The actions on the configuration window with all its dialogs.
class ConfigurationActs : public Acts
{
public:
    using Acts::Acts;

protected:
    void runWindow() override;
    bool isComplete() override;
    void closeWindow() override { m_windows.clear(); }
    bool preparesCameras() const override { return true; }

private:
    template<typename Widget>
    Widget *part(int camera, const char *name)
    {
        return m_windows[static_cast<std::size_t>(camera)]->findChild<Widget *>(name);
    }
    void showDialogs();
    void selectMode(const char *mode);

    std::vector<std::unique_ptr<OrvGui::OrvCamConfig>> m_windows;
};

bool ConfigurationActs::isComplete()
{
    for (std::size_t i = 0; i < m_windows.size(); ++i) {
        if (!m_windows[i]->device())
            return false;
    }
    return true;
}

void ConfigurationActs::runWindow()
{
    measureEach("show", [this](int i) {
        m_windows.push_back(std::make_unique<OrvGui::OrvCamConfig>(&device(i)));
        m_windows.back()->show();
    });
    showDialogs();
    measureEach("repaint", [this](int i) { m_windows[static_cast<std::size_t>(i)]->repaint(); });
    if (OrvGenParam::Int *width = device(0).GetParamArray()->GetInt("Width"))
        measure(
            "write", [&] { width->SetValue(width->GetValue()); }, [] { return true; });
    if (!device(0).GetParamArray()->GetEnum("FrameAB_Selector"))
        return;
    auto *tabs = part<QTabWidget>(0, "tabFrames");
    measure(
        "select the other frame", [&] { tabs->setCurrentIndex(1 - tabs->currentIndex()); },
        [] { return true; });
    selectMode("FrameA");
    selectMode("DualVideo");
    using Preset = std::pair<const char *, const char *>;
    for (const auto &[name, title] : {Preset("radioBtnQFHDFrame", "area QFHD, four writes"),
                                      Preset("radioBtnFullFrame", "full area, four writes")}) {
        auto *button = part<QRadioButton>(0, name);
        if (button->isEnabled())
            measure(
                title, [=] { button->click(); }, [] { return true; });
    }
}

void ConfigurationActs::showDialogs()
{
    Row row;
    row.name = QStringLiteral("show a dialog");
    for (const auto &window : m_windows) {
        for (QPushButton *button : window->findChildren<QPushButton *>()) {
            if (button->isCheckable() && button->isVisible())
                measure(
                    row, [=] { button->click(); }, [] { return true; });
        }
    }
    print(row);
}

/// The window reacts within a second.
void ConfigurationActs::selectMode(const char *mode)
{
    auto *modes = part<QComboBox>(0, "cmBoxFrameMode");
    const int index = modes->findText(QString::fromLatin1(mode));
    if (index < 0 || index == modes->currentIndex())
        return;
    QElapsedTimer timer;
    timer.start();
    const QByteArray name = QByteArray("output mode ").append(mode);
    measure(
        name.constData(), [=] { modes->setCurrentIndex(index); },
        [&] { return timer.hasExpired(1500); });
}

QList<int> numbers(const QString &list)
{
    QList<int> result;
    for (const QString &text : list.split(QLatin1Char(','))) {
        if (!text.isEmpty())
            result << text.toInt();
    }
    return result;
}

template<typename Kind>
void run(const char *window, const QByteArray &description, const Condition &condition,
         int interruptions)
{
    QTextStream(stdout) << "\n### " << window << ", " << condition.cameras
                        << (condition.cameras > 1 ? " cameras, " : " camera, ") << condition.delay
                        << " ms, " << condition.loss << " % lost\n\n";
    const QTemporaryDir cache;
    qputenv("ORVCAM_DESCRIPTION_CACHE", cache.path().toLocal8Bit());
    CameraSet cameras(description, condition);
    Kind(cameras, interruptions).run();
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (qEnvironmentVariableIsEmpty("QT_LOGGING_RULES"))
        qputenv("QT_LOGGING_RULES", "qt.qpa.*=false");
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addOptions(
        {{"delays", "One camera that answers after so many ms, without loss.", "ms,...",
          "0,1,5,50"},
         {"losses", "One camera, of whose commands so many get lost.", "per cent,...", "1,5"},
         {"cameras", "So many cameras at once.", "count,...", "16"},
         {"delay", "Of those with loss, and of several at once.", "ms", "1"},
         {"windows", "tree, configuration, or both.", "name,...", "tree,configuration"},
         {"interruptions", "So many of each kind; 0 for none.", "count", "3"}});
    parser.addPositionalArgument("description", "GenICam descriptions.", "[DESCRIPTION.xml ...]");
    parser.process(application);

    const int delay = parser.value("delay").toInt();
    std::vector<Condition> conditions;
    for (const int one : numbers(parser.value("delays")))
        conditions.push_back({1, one, 0});
    for (const int one : numbers(parser.value("losses")))
        conditions.push_back({1, delay, one});
    for (const int one : numbers(parser.value("cameras")))
        conditions.push_back({one, delay, 0});
    QStringList files = parser.positionalArguments();
    if (files.isEmpty())
        files << QStringLiteral(ORV_DESCRIPTION);
    const QStringList windows = parser.value("windows").split(QLatin1Char(','));
    const int interruptions = parser.value("interruptions").toInt();
    for (const QString &name : files) {
        QFile file(name);
        if (!file.open(QIODevice::ReadOnly)) {
            QTextStream(stderr) << name << ": " << file.errorString() << '\n';
            return 1;
        }
        const QByteArray description = file.readAll();
        QTextStream(stdout) << "\n## " << QFileInfo(name).fileName() << ", "
                            << description.size() / 1024 << " kB\n";
        for (const Condition &condition : conditions) {
            if (windows.contains("tree"))
                run<TreeActs>("Feature tree", description, condition, interruptions);
            if (windows.contains("configuration"))
                run<ConfigurationActs>("Configuration window", description, condition,
                                       interruptions);
        }
    }
    return 0;
}
