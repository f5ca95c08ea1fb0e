// SPDX-License-Identifier: MIT
#include <orvcamconfig.h>
#include <orvcamconfigopening.h>
#include <orvcameraselectordialog.h>
#include <orvgenparamtreeview.h>
#include <wirecamera.h>

#include <QtTest>
#include <QtWidgets>

#include <memory>

namespace {

/// Markup, a line break, and control characters for the writing direction.
const char *const evil = "<img src=x><h1>E\nvil\u202Egnp.exe\u2028";

QByteArray inXml(const char *text)
{
    return QString::fromUtf8(text).toHtmlEscaped().replace('\n', "&#10;").toUtf8();
}

QByteArray feature(const char *tag, const char *name, const QByteArray &contents)
{
    const QByteArray text = inXml(evil);
    return QByteArray("<") + tag + " Name='" + name + "'><ToolTip>" + text +
           "</ToolTip><Description>" + text + "</Description><DisplayName>" + text +
           "</DisplayName>" + contents + "</" + tag + ">";
}

QByteArray description()
{
    const QByteArray text = inXml(evil);
    const QByteArray number = "<Value>5</Value><Max>9</Max><Unit>" + text + "</Unit>";
    const QByteArray reg =
        "<Address>0x10000</Address><Length>64</Length><AccessMode>RO</AccessMode>"
        "<pPort>Device</pPort>";
    const QByteArray choice = "<EnumEntry Name='" + text +
                              "'><Value>0</Value></EnumEntry><EnumEntry Name='Two'>"
                              "<Value>1</Value></EnumEntry><Value>0</Value>";
    const QList<QPair<const char *, QByteArray>> features{
        {"TriggerDebounce", feature("Integer", "TriggerDebounce", number)},
        {"PulseGenPeriod", feature("Integer", "PulseGenPeriod", number)},
        {"Gain", feature("Float", "Gain", number)},
        {"DeviceModelName", feature("StringReg", "DeviceModelName", reg)},
        {"DeviceManufacturerInfo", feature("StringReg", "DeviceManufacturerInfo", reg)},
        {"TriggerSource", feature("Enumeration", "TriggerSource", choice)},
        {"TriggerActivation", feature("Enumeration", "TriggerActivation", choice)},
        {"PixelFormat", feature("Enumeration", "PixelFormat", choice)},
        {"Strobe1Mode", feature("Enumeration", "Strobe1Mode", choice)},
        {"FrameAB_Selector", feature("Enumeration", "FrameAB_Selector", choice)}};
    QByteArray root = "<RegisterDescription><Category Name='Root'>";
    QByteArray nodes;
    for (const auto &one : features) {
        root += QByteArray("<pFeature>") + one.first + "</pFeature>";
        nodes += one.second;
    }
    return root + "</Category>" + nodes + "<Port Name='Device'/></RegisterDescription>";
}

bool isPlain(const QString &text)
{
    return !text.contains(QChar(0x202e)) && !text.contains(QChar(0x2028)) &&
           !text.contains("E\nvil");
}

/// The texts that a view paints in its cells.
QStringList cellsOf(const QAbstractItemView &view)
{
    QStringList texts;
    for (const QModelIndex &cell :
         view.model() ? view.model()->match(view.model()->index(0, 0), Qt::DisplayRole, "*", -1,
                                            Qt::MatchWildcard | Qt::MatchRecursive)
                      : QModelIndexList()) {
        for (int column = 0; column < view.model()->columnCount(cell.parent()); ++column) {
            const QModelIndex index = cell.siblingAtColumn(column);
            const auto *delegate = qobject_cast<QStyledItemDelegate *>(view.itemDelegate(index));
            const QString text = index.data().toString();
            texts << (delegate ? delegate->displayText(text, QLocale()) : text);
        }
    }
    return texts;
}

/// Checks all texts of a widget; none may be laid out as markup.
void check(const QWidget &widget)
{
    QStringList texts{widget.windowTitle(), widget.toolTip(), widget.accessibleDescription()};
    if (const auto *label = qobject_cast<const QLabel *>(&widget)) {
        texts << label->text();
        const bool isMarkup =
            label->textFormat() != Qt::PlainText && Qt::mightBeRichText(label->text());
        QVERIFY2(!isMarkup || !label->text().contains("<img"), qPrintable(label->objectName()));
    }
    if (const auto *button = qobject_cast<const QAbstractButton *>(&widget))
        texts << button->text();
    if (const auto *box = qobject_cast<const QComboBox *>(&widget)) {
        for (int i = 0; i < box->count(); ++i)
            texts << box->itemText(i);
    }
    if (const auto *tabs = qobject_cast<const QTabBar *>(&widget)) {
        for (int i = 0; i < tabs->count(); ++i)
            texts << tabs->tabText(i) << tabs->tabToolTip(i);
    }
    if (const auto *box = qobject_cast<const QSpinBox *>(&widget))
        texts << box->suffix();
    if (const auto *text = qobject_cast<const QTextEdit *>(&widget)) {
        texts << text->toPlainText();
        QVERIFY(!text->toHtml().contains("<img"));
    }
    const auto *view = qobject_cast<const QAbstractItemView *>(&widget);
    if (view && !qobject_cast<const QHeaderView *>(view))
        texts << cellsOf(*view);
    const bool isMarkup = Qt::mightBeRichText(widget.toolTip());
    QVERIFY(!isMarkup || !widget.toolTip().contains("<img"));
    for (const QString &text : texts)
        QVERIFY2(isPlain(text), qPrintable(widget.objectName() + ": " + text));
}

} // namespace

/// Cameras whose texts contain markup and control characters. ORV_PICTURES=FOLDER saves a picture
/// of each window.
class TestCameraTexts : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase() { m_camera.reset(); }
    void windowsShowPlainText();
    void failureShowsPlainText();

private:
    static void checkWindow(QWidget &window, const QString &name);

    std::unique_ptr<WireCamera> m_camera;
};

void TestCameraTexts::initTestCase()
{
    m_camera = std::make_unique<WireCamera>("", [](TestCamera::Settings &settings) {
        settings.description = description().toStdString();
        settings.vendor = settings.model = settings.version = evil;
        settings.serial = settings.userName = "<b>\u202Ex\n";
    });
    (*m_camera)->setBytes(0x10000, evil);
}

void TestCameraTexts::checkWindow(QWidget &window, const QString &name)
{
    window.show();
    QTest::qWait(200);
    const QString folder = qEnvironmentVariable("ORV_PICTURES");
    if (!folder.isEmpty())
        QVERIFY(window.grab().save(folder + '/' + name + ".png"));
    check(window);
    for (const QWidget *widget : window.findChildren<QWidget *>())
        check(*widget);
}

void TestCameraTexts::windowsShowPlainText()
{
    OrvGui::OrvCameraSelectorDialog picker(m_camera->system.get());
    auto *cameras = picker.findChild<QTreeView *>("cameraTreeView");
    cameras->setCurrentIndex(cameras->model()->index(0, 0, cameras->model()->index(0, 0)));
    QVERIFY(picker.selectedCamera());
    checkWindow(picker, "picker");

    const auto device = m_camera->open();
    QVERIFY(device);
    {
        OrvGui::OrvCamConfig window(device.get());
        checkWindow(window, "main");
        for (QDialog *dialog : window.findChildren<QDialog *>())
            checkWindow(*dialog, dialog->objectName());
        OrvGui::OrvGenParamTreeView tree;
        tree.setParams(device->GetParamArray());
        tree.setVisibility(OrvGui::Guru);
        tree.resize(500, 700);
        checkWindow(tree, "tree");
        const QModelIndex first = tree.treeView()->model()->index(0, 0);
        tree.treeView()->setCurrentIndex(first);
        tree.treeView()->edit(first.siblingAtColumn(1));
        checkWindow(tree, "tree-editing");
        const QPoint place = tree.treeView()->visualRect(first).center();
        QHelpEvent help(QEvent::ToolTip, place, tree.treeView()->viewport()->mapToGlobal(place));
        QApplication::sendEvent(tree.treeView()->viewport(), &help);
        for (QWidget *widget : QApplication::topLevelWidgets()) {
            if (widget->inherits("QTipLabel"))
                checkWindow(*widget, "tip");
        }
    }
}

/// The progress dialog while a camera is opened, and the message after a failure.
void TestCameraTexts::failureShowsPlainText()
{
    (*m_camera)->setMood("delay", 300);
    OrvGui::OrvCamConfigOpening opening(*m_camera->info, OrvCam::AccessControl);
    QTimer::singleShot(500, [] {
        for (QWidget *widget : QApplication::topLevelWidgets()) {
            if (widget->objectName() == "OpeningProgress") {
                checkWindow(*widget, "progress");
                qobject_cast<QDialog *>(widget)->reject();
            }
        }
    });
    QVERIFY(opening.exec().isCancelled);
}

QTEST_MAIN(TestCameraTexts)
#include "tst_cameratexts.moc"
