// SPDX-License-Identifier: MIT
#include <OrvCam.h>
#include <OrvGenParam.h>
#include <cameranetwork.h>
#include <loopwatch.h>
#include <orvcamconfigdialog.h>
#include <orvcameraselectordialog.h>
#include <orvgenparamtreeview.h>
#include <pickerparts.h>
#include <silentcamconfig.h>
#include <usage.h>

#include <QtTest>
#include <QtWidgets>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <memory>

namespace {

const char *const serial = "MOODY";
constexpr uint32_t frameSelector = 0x1400;
constexpr uint32_t pulseEnable = 0x1520;
constexpr uint32_t temperature = 0x1600;

QStringList warnings;

void keepWarning(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    const bool isOfPlatform = text.startsWith("This plugin does not support ");
    if (type != QtInfoMsg && type != QtDebugMsg && !isOfPlatform)
        warnings << text;
}

off_t sizeOfStderr()
{
    struct stat status = {};
    fstat(STDERR_FILENO, &status);
    return status.st_size;
}

/// The visible rows of the tree.
void addRows(const QTreeView &tree, QStringList *texts)
{
    const QRect area = tree.viewport()->rect();
    for (QModelIndex name = tree.indexAt(area.topLeft());
         name.isValid() && tree.visualRect(name).top() < area.bottom();
         name = tree.indexBelow(name)) {
        const QModelIndex value = name.siblingAtColumn(1);
        *texts << QStringLiteral("%1: %2 %3")
                      .arg(name.data().toString(), value.data().toString(),
                           value.flags() & Qt::ItemIsEditable ? "rw" : "ro");
    }
}

QString valueOf(const QWidget &widget)
{
    if (const auto *edit = qobject_cast<const QLineEdit *>(&widget))
        return edit->text();
    if (const auto *label = qobject_cast<const QLabel *>(&widget))
        return label->text();
    if (const auto *box = qobject_cast<const QComboBox *>(&widget))
        return box->currentText();
    if (const auto *slider = qobject_cast<const QAbstractSlider *>(&widget))
        return QString::number(slider->value());
    if (const auto *button = qobject_cast<const QAbstractButton *>(&widget))
        return button->isChecked() ? "on" : "off";
    return QString();
}

void addWidgets(const QWidget &window, QStringList *texts)
{
    for (const QWidget *widget : window.findChildren<QWidget *>()) {
        const bool isPlain = !widget->objectName().isEmpty() &&
                             !widget->objectName().startsWith("qt_") &&
                             !qobject_cast<const QScrollBar *>(widget);
        if (isPlain)
            *texts << QStringLiteral("%1: %2 %3")
                          .arg(widget->objectName(), valueOf(*widget),
                               widget->isEnabled() ? "enabled" : "disabled");
    }
}

/// The longest permitted wait, in milliseconds. To read the other frame, the window moves the
/// selector there and back, and waits: ten commands at most.
double longestWait(const QByteArray &mood)
{
    const QHash<QByteArray, int> commandTimes{
        {"delay", 5}, {"write-delay", 250}, {"reorder", 20}, {"pending", 300}};
    return 100 + 10 * commandTimes.value(mood);
}

} // namespace

/// All windows on a camera with each of its faults. They must neither crash, nor print anything,
/// nor block; once the camera works again, they must show the same as before.
///
/// By default each fault but every sixth is tested, in one situation each. ORV_MOODS=all (by hand)
/// tests all faults in all situations, which takes some minutes.
class TestMoods : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();
    void faultsWhileOpening_data() { addMoods({0, 1, 3}); }
    void faultsWhileOpening();
    void faultsWhileShown_data() { addMoods({2}); }
    void faultsWhileShown();
    void faultsWhileReconnecting_data() { addMoods({4}); }
    void faultsWhileReconnecting();
    void interruptionsLeakNothing();

private:
    static bool isLong() { return qgetenv("ORV_MOODS") == "all"; }
    static void addMoods(const QVector<int> &turns);
    bool connectCamera(const char *mood);
    void checkIsGone();
    void checkIsAsBefore();
    QStringList shown() const;

    std::unique_ptr<CameraNetwork> m_network;
    std::unique_ptr<TestCamera> m_camera;
    std::unique_ptr<OrvGui::OrvCamConfig> m_window;
    std::unique_ptr<OrvGui::OrvGenParamTreeView> m_tree;
    QStringList m_before;
    off_t m_stderrBefore = 0;
    double m_longestWait = 0; ///< during the opening of a camera
};

/// Each of the turns adds every sixth mood.
void TestMoods::addMoods(const QVector<int> &turns)
{
    QTest::addColumn<QByteArray>("mood");
    int count = 0;
    for (const TestCameraMood &mood : testCameraMoods()) {
        const QByteArray name = mood.name;
        const bool isWanted = isLong() || turns.contains(count++ % 6);
        if (isWanted && name != "good" && !name.startsWith("force-ip"))
            QTest::newRow(mood.name) << name;
    }
}

void TestMoods::initTestCase()
{
    qputenv("ORVCAM_DESCRIPTION_CACHE", "");
    qInstallMessageHandler(keepWarning);
    m_network = std::make_unique<CameraNetwork>("orv0", "10.1.0.1/24", "10.1.0.2/24");
    QFile file(ORV_DESCRIPTION);
    QVERIFY(file.open(QIODevice::ReadOnly));
    TestCamera::Settings settings = m_network->cameraSettings(0x020000000001, "10.1.0.2");
    settings.description = file.readAll().toStdString();
    settings.isZipped = true;
    settings.unknownRegisters = TestCameraMemory::Unknown::Zero; // for the other frame's registers
    settings.fillsRegisters = true;
    settings.serial = serial;
    m_camera = std::make_unique<TestCamera>(settings);

    m_camera->setRegister(frameSelector, 0);
    m_camera->setRegister(pulseEnable, 0);

    m_window = std::make_unique<OrvGui::SilentCamConfig>(nullptr);
    m_window->show();
    for (QPushButton *button : m_window->findChildren<QPushButton *>()) {
        if (button->isCheckable())
            button->click();
    }
    m_tree = std::make_unique<OrvGui::OrvGenParamTreeView>();
    m_tree->resize(600, 2000);
    m_tree->setVisibility(OrvGui::Guru);
    m_tree->show();
    connect(m_window.get(), &OrvGui::OrvCamConfig::deviceChanged, [this](OrvCam::Device *device) {
        m_tree->setParams(device ? device->GetParamArray() : nullptr);
        m_tree->treeView()->expandAll();
    });
    QVERIFY(connectCamera("good"));
    QVERIFY(connectCamera("good")); // a form without values may show those of the first connection
    QStringList texts = shown();
    QElapsedTimer unchanged;
    unchanged.start();
    const auto isSettled = [&] {
        const QStringList now = shown();
        if (std::exchange(texts, now) != now)
            unchanged.start();
        return unchanged.elapsed() > 1200;
    };
    QTRY_VERIFY_WITH_TIMEOUT(isSettled(), 15000);
    m_before = texts;
    QVERIFY(m_before.size() > 300);
}

void TestMoods::cleanupTestCase()
{
    m_window.reset();
    m_tree.reset();
    m_camera.reset();
    m_network.reset();
}

void TestMoods::init()
{
    warnings.clear();
    m_stderrBefore = sizeOfStderr();
}

void TestMoods::cleanup()
{
    m_camera->setMood("good");
    QVERIFY2(warnings.isEmpty(), qPrintable(warnings.join('\n')));
    QCOMPARE(sizeOfStderr(), m_stderrBefore);
}

QStringList TestMoods::shown() const
{
    QStringList texts;
    addWidgets(*m_window, &texts);
    addRows(*m_tree->treeView(), &texts);
    return texts;
}

void TestMoods::checkIsAsBefore()
{
    if (QTest::qWaitFor([this] { return shown() == m_before; }, 15000))
        return;
    const QStringList now = shown();
    QStringList differences{QString("%1 texts instead of %2").arg(now.size()).arg(m_before.size())};
    for (int i = 0; i < qMin(now.size(), m_before.size()) && differences.size() < 6; ++i) {
        if (now[i] != m_before[i])
            differences << now[i] + " instead of " + m_before[i];
    }
    QFAIL(qPrintable(differences.join("; ")));
}

void TestMoods::checkIsGone()
{
    QCOMPARE(m_window->findChild<QLabel *>("lblStatusText")->text(), QString("Disconnected"));
    for (const auto *dialog : m_window->findChildren<OrvGui::OrvCamConfigDialog *>())
        QVERIFY(!dialog->isEnabled());
    for (const auto *edit : m_window->findChild<QWidget *>("groupBox")->findChildren<QLineEdit *>())
        QCOMPARE(edit->text(), QString());
    QCOMPARE(m_window->findChild<QLabel *>("lblDeviceModelName")->text(), QString("N/A"));
    const QAbstractItemModel *model = m_tree->treeView()->model();
    QVERIFY(!model || model->rowCount() == 0);
}

/// Connects with the window's own picker. The camera works until it has been found. Failures are
/// reported in a message box.
bool TestMoods::connectCamera(const char *mood)
{
    std::unique_ptr<LoopWatch> watch;
    QTimer user;
    connect(&user, &QTimer::timeout, [&] {
        QWidget *modal = QApplication::activeModalWidget();
        if (auto *box = qobject_cast<QMessageBox *>(modal))
            return box->accept();
        auto *picker = qobject_cast<OrvGui::OrvCameraSelectorDialog *>(modal);
        if (!picker || watch)
            return;
        const QModelIndex row = rowNamed(*cameraTree(*picker), serial);
        if (!row.isValid())
            return picker->findChild<QShortcut *>()->activated();
        cameraTree(*picker)->setCurrentIndex(row);
        m_camera->setMood(mood);
        watch = std::make_unique<LoopWatch>();
        button(*picker, "OK")->click();
    });
    user.start(20);
    m_window->findChild<QAction *>("actionConnect")->trigger();
    QTest::qWait(100); // a message box may open
    m_longestWait = watch->longestWait();
    return m_window->device() && QApplication::activeModalWidget() == nullptr;
}

void TestMoods::faultsWhileOpening()
{
    QFETCH(QByteArray, mood);
    const bool isOpen = connectCamera(mood.constData());
    QVERIFY2(m_longestWait < longestWait(mood), qPrintable(QString::number(m_longestWait)));
    m_camera->setMood("good");
    if (!isOpen)
        QVERIFY(connectCamera("good"));
    checkIsAsBefore();
}

void TestMoods::faultsWhileShown()
{
    QFETCH(QByteArray, mood);
    m_camera->setMood(mood.constData());
    LoopWatch watch;
    QTest::qWait(700);
    m_camera->setRegister(temperature, 5);
    m_camera->setMood("good");
    const QLineEdit *shownTemperature = m_window->findChild<QLineEdit *>("lineEditTemperature");
    QTRY_COMPARE_WITH_TIMEOUT(shownTemperature->text(), QString("5"), 15000);
    m_camera->setRegister(temperature, 6);
    checkIsAsBefore();
    QVERIFY2(watch.longestWait() < longestWait("good"),
             qPrintable(QString::number(watch.longestWait())));
}

void TestMoods::faultsWhileReconnecting()
{
    QFETCH(QByteArray, mood);
    LoopWatch watch;
    m_camera->unplug();
    QTRY_VERIFY(!m_window->device());
    m_camera->setMood(mood.constData());
    m_camera->plugIn();
    QTest::qWait(700);
    m_camera->setMood("good");
    checkIsAsBefore();
    QVERIFY2(watch.longestWait() < longestWait(mood),
             qPrintable(QString::number(watch.longestWait())));
}

/// A leak per interruption would be about 2 MiB of nodes and cache, a socket, and a thread.
void TestMoods::interruptionsLeakNothing()
{
    const int times = isLong() ? 20 : 1;
    Usage before;
    for (int i = 0; i <= times; ++i) {
        m_camera->unplug();
        QTRY_VERIFY(!m_window->device());
        checkIsGone();
        m_camera->plugIn();
        checkIsAsBefore();
        if (i == 0)
            before = Usage::now(); // after the permanent allocations of the first round
    }
    const Usage after = Usage::now();
    QVERIFY2(after.files == before.files && after.threads == before.threads, after.text().c_str());
#ifndef __SANITIZE_ADDRESS__ // keeps freed memory
    QCOMPARE(after.grownBeyond(before, times), std::string());
#endif
}

/// Runs the test in a child process, checks what it prints, and prints it at the end.
int main(int argc, char *argv[])
{
    std::FILE *printed = std::tmpfile();
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child == 0) {
        dup2(fileno(printed), STDERR_FILENO);
        QApplication application(argc, argv);
        TestMoods test;
        return QTest::qExec(&test, argc, argv);
    }
    int status = 0;
    waitpid(child, &status, 0);
    std::rewind(printed);
    for (int byte = std::fgetc(printed); byte != EOF; byte = std::fgetc(printed))
        std::fputc(byte, stderr);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 1;
}

#include "tst_moods.moc"
