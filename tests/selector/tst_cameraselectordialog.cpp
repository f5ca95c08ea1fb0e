// SPDX-License-Identifier: MIT
#include "fakecameras.h"
#include "modalvisitor.h"
#include "orvcameraselectordialog.h"
#include "pickerparts.h"

#include <QtTest>
#include <QtWidgets>

using namespace OrvCam;

/// The picker on a scripted camera system: opening, panes, buttons, and the calls to the system.
class TestCameraSelectorDialog : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_dialog.reset(); }
    void initialState();
    void scansOncePerExpansion();
    void accessStates();
    void interfaceKinds();
    void panesShowProperties();
    void unreadableRows();
    void rescan();
    void wrongListSizes();
    void contextMenu();
    void proposesFreeAddress();
    void forcesAddress();
    void warnsOfBadAddress();
    void reportsWrongAddress();
    void camerasEnumeratedElsewhere();
    void waitsForCamera();
    void failedForcing();
    void destroyedDuringDialogs();

private:
    void open();
    QTreeView *tree() { return cameraTree(*m_dialog); }
    QTreeView *interfacePane() { return m_dialog->findChild<QTreeView *>("interfaceInfoTreeView"); }
    QTreeView *devicePane() { return m_dialog->findChild<QTreeView *>("deviceInfoTreeView"); }
    QStringList deviceFacts() { return factsOf(*devicePane()); }
    QStringList interfaceFacts() { return factsOf(*interfacePane()); }
    QPushButton *setIpButton() { return button(*m_dialog, "Set IP Address"); }
    QPushButton *okButton() { return button(*m_dialog, "OK"); }
    QPushButton *rescanButton() { return button(*m_dialog, "Rescan"); }
    QModelIndex interfaceRow(int row) { return tree()->model()->index(row, 0); }
    QModelIndex camera(int interface, int row)
    {
        return tree()->model()->index(row, 0, interfaceRow(interface));
    }
    QModelIndex networkCamera(int row) { return camera(0, row); }
    bool force(const QList<ModalVisitor::Action> &dialogs);

    std::unique_ptr<FakeParameters> m_parameters;
    std::unique_ptr<FakeInterface> m_network;
    std::unique_ptr<FakeInterface> m_usb;
    std::unique_ptr<FakeInterface> m_empty;
    std::unique_ptr<FakeInterface> m_unlisted;
    std::unique_ptr<FakeSystem> m_system;
    std::unique_ptr<OrvGui::OrvCameraSelectorDialog> m_dialog;
};

namespace {

QLineEdit *field(const QDialog &dialog, const char *name)
{
    return dialog.findChild<QLineEdit *>(name);
}

/// Checks the message box and presses a button.
ModalVisitor::Action message(const QString &title, const QString &text,
                             QMessageBox::StandardButtons buttons,
                             QMessageBox::StandardButton pressed)
{
    return [=](QDialog &dialog) {
        auto &box = dynamic_cast<QMessageBox &>(dialog);
        QCOMPARE(box.windowTitle(), title);
        QCOMPARE(box.text(), text);
        QCOMPARE(box.icon(), QMessageBox::Critical);
        QCOMPARE(box.standardButtons(), buttons);
        QVERIFY(box.isModal());
        box.button(pressed)->click();
    };
}

void enterWrongAddress(QDialog &dialog)
{
    field(dialog, "ipAddressLineEdit")->setText("10.0.0.1");
    dialog.accept();
}

ModalVisitor::Action failureMessage()
{
    return message("Set IP Address", "Can't set IP address", QMessageBox::Ok, QMessageBox::Ok);
}

ModalVisitor::Action warning(QMessageBox::StandardButton pressed)
{
    return message("IP Configuration Warning",
                   "Specified IP Configuraion is not correct, camera may become undiscoverable\n"
                   "Press OK to skip the IP Configuration, or press Ignore to confirm",
                   QMessageBox::Ok | QMessageBox::Ignore, pressed);
}

} // namespace

void TestCameraSelectorDialog::init()
{
    m_parameters.reset(new FakeParameters);
    m_parameters->values = {{"DeviceSelector", 0},
                            {"GevInterfaceMACAddress", 0xFF02000000000A},
                            {"GevInterfaceSubnetIPAddress", 0xC0A8010A},
                            {"GevInterfaceSubnetMask", 0xFFFFFF00},
                            {"GevDeviceMACAddress", 0x001B2C3D4E5F},
                            {"GevDeviceIPAddress", 0xA9FE0715},
                            {"GevDeviceSubnetMask", 0xFFFF0000},
                            {"GevDeviceGateway", 0},
                            {"GevDeviceForceIPAddress", 0},
                            {"GevDeviceForceSubnetMask", 0},
                            {"GevDeviceForceGateway", 0xC0A801FE},
                            {"GevDeviceForceIP", 0}};
    m_network.reset(new FakeInterface("Network", TransportGigEVision));
    m_network->parameters = m_parameters.get();
    m_network->version = "2.1";
    m_network->add("Near");
    FakeCamera &far = m_network->add("Far", AccessSubnetMismatch);
    far.vendor = "Fern & S\xC3\xB6hne";
    far.serial = "F-1";
    m_usb.reset(new FakeInterface("USB", TransportUsb3Vision));
    m_usb->add("Plugged");
    m_empty.reset(new FakeInterface("Empty", TransportCoaXPress));
    m_unlisted.reset(new FakeInterface("Unlisted", TransportHdSdi));
    m_unlisted->cameras.isNull = true;
    m_system.reset(new FakeSystem);
    m_system->interfaces.entries = {m_network.get(), m_usb.get(), m_empty.get(), m_unlisted.get()};
}

void TestCameraSelectorDialog::open()
{
    m_dialog.reset(new OrvGui::OrvCameraSelectorDialog(m_system.get(), nullptr));
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
}

/// Clicks "Set IP"; returns true if exactly these dialogs opened.
bool TestCameraSelectorDialog::force(const QList<ModalVisitor::Action> &dialogs)
{
    const ModalVisitor visitor(dialogs);
    m_parameters->writes.clear();
    setIpButton()->click();
    return visitor.isDone();
}

void TestCameraSelectorDialog::initialState()
{
    open();
    QCOMPARE(m_dialog->windowTitle(), QString("Select camera"));
    QVERIFY(tree()->hasFocus());
    QVERIFY(!tree()->currentIndex().isValid());
    QVERIFY(!m_dialog->selectedCamera());
    QVERIFY(!interfacePane()->model() && !devicePane()->model());
    QVERIFY(!okButton()->isEnabled());
    for (int row = 0; row < 4; ++row)
        QVERIFY(tree()->isExpanded(interfaceRow(row)));
    QVERIFY(!setIpButton()->isEnabled());

    QTest::keyClick(tree(), Qt::Key_Down);
    QCOMPARE(tree()->currentIndex(), interfaceRow(0));
    m_dialog->setSelectedCamera(m_network->cameras.entries[0]);
    QCOMPARE(tree()->currentIndex(), interfaceRow(0));
}

void TestCameraSelectorDialog::scansOncePerExpansion()
{
    open();
    const auto scans = [this] {
        return QList<size_t>{m_network->refreshes.size(), m_usb->refreshes.size(),
                             m_empty->refreshes.size(), m_unlisted->refreshes.size()};
    };
    QCOMPARE(scans(), (QList<size_t>{1, 1, 1, 1}));
    // The view lays out its rows again.
    m_dialog->setStyleSheet("QTreeView { font-size: 15pt; }");
    QTest::qWait(50);
    m_dialog->resize(700, 900);
    QTest::qWait(50);
    QCOMPARE(scans(), (QList<size_t>{1, 1, 1, 1}));

    // The user scans an interface without cameras and one with cameras.
    const auto arrow = [this](int row) {
        const QRect text = tree()->visualRect(interfaceRow(row));
        return QPoint(text.left() / 2, text.center().y());
    };
    const auto click = [&](int row) {
        QTest::mouseClick(tree()->viewport(), Qt::LeftButton, Qt::NoModifier, arrow(row));
    };
    click(2);
    click(0);
    click(0);
    QCOMPARE(scans(), (QList<size_t>{1, 1, 2, 1}));
    tree()->setCurrentIndex(interfaceRow(3));
    QTest::keyClick(tree(), Qt::Key_Right);
    QCOMPARE(scans(), (QList<size_t>{1, 1, 2, 2}));
    m_empty->add("Late");
    QTest::mouseDClick(tree()->viewport(), Qt::LeftButton, Qt::NoModifier,
                       tree()->visualRect(interfaceRow(2)).center());
    QCOMPARE(scans(), (QList<size_t>{1, 1, 3, 2}));
    QCOMPARE(tree()->model()->rowCount(interfaceRow(2)), 1);
    QTest::keyClick(m_dialog.get(), Qt::Key_F5);
    QCOMPARE(scans(), (QList<size_t>{2, 2, 4, 3}));
}

void TestCameraSelectorDialog::accessStates()
{
    const struct
    {
        int state;
        const char *text;
        bool isUsable;
    } rows[] = {{AccessReadWrite, "ReadWrite", true},
                {AccessReadOnly, "ReadOnly", true},
                {AccessNone, "NO ACCESS", false},
                {AccessSubnetMismatch, "IP Subnet Mismatch", false},
                {-7, "Unknown", true}};
    for (const auto &row : rows) {
        static_cast<FakeCamera *>(m_usb->cameras.entries[0])->state = row.state;
        open();
        const QModelIndex index = camera(1, 0);
        tree()->setCurrentIndex(index);
        QHelpEvent help(QEvent::ToolTip, QPoint(), tree()->viewport()->mapToGlobal(QPoint()));
        QStyleOptionViewItem option;
        option.rect = tree()->visualRect(index);
        QToolTip::hideText();
        tree()->itemDelegate()->helpEvent(&help, tree(), option, index);
        QCOMPARE(QToolTip::text().isEmpty(), row.isUsable);
        QCOMPARE(deviceFacts().last(), QString("Access status: ") + row.text);
        const QVariant background = devicePane()->model()->index(6, 1).data(Qt::BackgroundRole);
        QCOMPARE(background, row.isUsable ? QVariant() : QVariant(QBrush(Qt::red)));
        QCOMPARE(okButton()->isEnabled(), row.isUsable);

        QTest::keyClick(tree(), Qt::Key_Return);
        QCOMPARE(m_dialog->result(), row.isUsable ? int(QDialog::Accepted) : 0);
        QCOMPARE(m_dialog->isVisible(), !row.isUsable);
        QCOMPARE(m_dialog->selectedCamera(), m_usb->cameras.entries[0]);
        m_dialog->setResult(0);
        m_dialog->show();
        const QPoint place = tree()->visualRect(index).center();
        QTest::mouseClick(tree()->viewport(), Qt::LeftButton, Qt::NoModifier, place);
        QTest::mouseDClick(tree()->viewport(), Qt::LeftButton, Qt::NoModifier, place);
        QCOMPARE(m_dialog->result(), row.isUsable ? int(QDialog::Accepted) : 0);
    }
}

void TestCameraSelectorDialog::interfaceKinds()
{
    const QStringList texts = {"Custom",    "USB3 Vision", "GigE Vision", "CameraLink",
                               "CoaXPress", "HD-SDI",      "Custom"};
    for (int kind = 0; kind < texts.size(); ++kind) {
        m_usb->kind = kind;
        open();
        tree()->setCurrentIndex(interfaceRow(1));
        QCOMPARE(interfaceFacts(),
                 (QStringList{"Description: USB", "Type: " + texts[kind], "Version: "}));
        tree()->setCurrentIndex(camera(1, 0));
        QCOMPARE(deviceFacts().size(), 7); // an interface without parameters has no addresses
        QCOMPARE(setIpButton()->isEnabled(), kind == TransportGigEVision);
    }
}

void TestCameraSelectorDialog::panesShowProperties()
{
    open();
    const QStringList network = {
        "Description: Network",           "Type: GigE Vision",        "Version: 2.1",
        "MAC Address: 02:00:00:00:00:0A", "IP Address: 192.168.1.10", "Netmask: 255.255.255.0"};
    tree()->setCurrentIndex(networkCamera(1));
    interfacePane()->setColumnWidth(0, 88);
    devicePane()->setColumnWidth(0, 77);
    QCOMPARE(interfaceFacts(), network);
    QCOMPARE(deviceFacts(),
             (QStringList{"Display name: Far", QString::fromUtf8("Vendor: Fern & S\xC3\xB6hne"),
                          "Model: ", "Serial number: F-1", "Version: ", "User name: ",
                          "Access status: IP Subnet Mismatch", "MAC Address: 00:1B:2C:3D:4E:5F",
                          "IP Address: 169.254.7.21", "Netmask: 255.255.0.0", "Gateway: 0.0.0.0"}));
    QCOMPARE(m_parameters->writes, QStringList{"DeviceSelector=1"});
    QVERIFY(setIpButton()->isEnabled() && !okButton()->isEnabled());

    tree()->setCurrentIndex(interfaceRow(0));
    QCOMPARE(interfaceFacts(), network);
    QVERIFY(!devicePane()->model());
    QVERIFY(!setIpButton()->isEnabled() && !okButton()->isEnabled());
    QVERIFY(!m_dialog->selectedCamera());

    tree()->setCurrentIndex(camera(1, 0));
    QCOMPARE(interfaceFacts().first(), QString("Description: USB"));
    QCOMPARE(deviceFacts().size(), 7);
    QCOMPARE(interfacePane()->columnWidth(0), 88);
    QCOMPARE(devicePane()->columnWidth(0), 77);
    QVERIFY(!setIpButton()->isEnabled() && okButton()->isEnabled());
    tree()->setCurrentIndex(QModelIndex());
    QVERIFY(!interfacePane()->model() && !devicePane()->model());

    // The models of the panes have been deleted.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    for (const QTreeView *pane : {interfacePane(), devicePane()}) {
        QVERIFY(pane->findChildren<QAbstractItemModel *>("", Qt::FindDirectChildrenOnly).isEmpty());
        QVERIFY(pane->findChildren<QItemSelectionModel *>().size() <= 1);
    }
}

void TestCameraSelectorDialog::unreadableRows()
{
    open();
    m_parameters->errors["GevDeviceSubnetMask"] = ErrorTimeout;
    m_parameters->errors["GevInterfaceMACAddress"] = ErrorTimeout;
    tree()->setCurrentIndex(networkCamera(0));
    QCOMPARE(deviceFacts().mid(7), (QStringList{"MAC Address: 00:1B:2C:3D:4E:5F",
                                                "IP Address: 169.254.7.21", "Gateway: 0.0.0.0"}));
    QCOMPARE(interfaceFacts().mid(3),
             (QStringList{"IP Address: 192.168.1.10", "Netmask: 255.255.255.0"}));

    m_parameters->errors["DeviceSelector"] = ErrorOutOfRange;
    tree()->setCurrentIndex(networkCamera(1));
    QCOMPARE(deviceFacts().size(), 7);
    QCOMPARE(interfaceFacts().size(), 5);
    m_parameters->errors.clear();
    m_network->parametersError = ErrorFailed;
    tree()->setCurrentIndex(networkCamera(0));
    QCOMPARE(deviceFacts().size(), 7);
    QVERIFY(force({failureMessage()}));
}

void TestCameraSelectorDialog::rescan()
{
    open();
    tree()->setCurrentIndex(networkCamera(0));
    QVERIFY(okButton()->isEnabled());
    m_network->cameras.entries.erase(m_network->cameras.entries.begin());
    m_system->interfaces.entries.pop_back();
    rescanButton()->click();
    QVERIFY(!tree()->currentIndex().isValid() && !m_dialog->selectedCamera());
    QVERIFY(!interfacePane()->model() && !devicePane()->model());
    QVERIFY(!okButton()->isEnabled() && !setIpButton()->isEnabled());
    QCOMPARE(tree()->model()->rowCount(), 3);
    QCOMPARE(tree()->model()->rowCount(interfaceRow(0)), 1);
    QVERIFY(tree()->isExpanded(interfaceRow(0)));
    tree()->setFocus();
    QVERIFY(!tree()->currentIndex().isValid());
    tree()->setCurrentIndex(networkCamera(0));
    QCOMPARE(deviceFacts().first(), QString("Display name: Far"));
    QCOMPARE(m_parameters->writes.last(), QString("DeviceSelector=0"));
}

void TestCameraSelectorDialog::wrongListSizes()
{
    m_network->cameras.countedAhead = 3;
    m_usb->cameras.countedAhead = -1; // reports an empty list
    m_system->interfaces.countedAhead = 2;
    open();
    QCOMPARE(tree()->model()->rowCount(), 4);
    QCOMPARE(tree()->model()->rowCount(interfaceRow(1)), 0);
    for (int i = 0; i < 8; ++i)
        QTest::keyClick(tree(), Qt::Key_Down);
    QCOMPARE(tree()->currentIndex(), interfaceRow(3));
    rescanButton()->click();
    m_dialog->grab();
    QCOMPARE(tree()->model()->rowCount(interfaceRow(0)), 2);

    m_system->interfaces.isNull = true;
    rescanButton()->click();
    QCOMPARE(tree()->model()->rowCount(), 0);
    m_dialog.reset(new OrvGui::OrvCameraSelectorDialog(nullptr, nullptr));
    m_dialog->show();
    QVERIFY(!m_dialog->selectedCamera() && !okButton()->isEnabled());
}

void TestCameraSelectorDialog::contextMenu()
{
    open();
    auto *menu = m_dialog->findChild<QMenu *>();
    QCOMPARE(menu->actions().size(), 1);
    QCOMPARE(menu->actions().first()->text(), QString("Set IP address"));
    const auto request = [&](const QPoint &position) {
        QContextMenuEvent event(QContextMenuEvent::Mouse, position);
        QApplication::sendEvent(tree()->viewport(), &event);
        const bool isShown = menu->isVisible();
        menu->close();
        return isShown;
    };
    const auto at = [this](const QModelIndex &row) { return tree()->visualRect(row).center(); };
    QVERIFY(request(at(networkCamera(0))));
    QVERIFY(!request(at(interfaceRow(0))));
    QVERIFY(!request(at(camera(1, 0))));
    QVERIFY(!request(QPoint(10, tree()->viewport()->height() - 2)));

    tree()->setCurrentIndex(networkCamera(0));
    const ModalVisitor visitor({[](QDialog &dialog) { dialog.reject(); }});
    menu->actions().first()->trigger();
    QVERIFY(visitor.isDone());
}

void TestCameraSelectorDialog::proposesFreeAddress()
{
    const struct
    {
        quint32 adapter, mask;
        QList<quint32> taken;
        const char *proposal;
    } rows[] = {
        {0xC0A80001, 0xFFFFFF00, {}, "192.168.0.2"},
        {0xC0A80080, 0xFFFFFF00, {}, "192.168.0.129"},
        {0xC0A80081, 0xFFFFFF00, {}, "192.168.0.128"},
        {0xC0A8010A, 0xFFFFFF00, {0xC0A8010B, 0xC0A8010C}, "192.168.1.13"},
        {0xC0A801FE, 0xFFFFFF00, {}, "192.168.1.253"},
        {0xC0A801FE, 0xFFFFFF00, {0xC0A801FD}, "192.168.1.252"},
        {0xC0A80102, 0xFFFFFFFC, {}, "192.168.1.1"}, // skips the broadcast address
        {0xC0A80102, 0xFFFFFFFC, {0xC0A80101}, "192.168.1.3"},
    };
    for (const auto &row : rows) {
        m_parameters->values["GevInterfaceSubnetIPAddress"] = row.adapter;
        m_parameters->values["GevInterfaceSubnetMask"] = row.mask;
        m_parameters->addresses.clear();
        while (m_network->cameras.entries.size() < 4)
            m_network->add("Further");
        for (int i = 0; i < row.taken.size(); ++i)
            m_parameters->addresses[i + 2] = row.taken[i];
        open();
        tree()->setCurrentIndex(networkCamera(1));
        QVERIFY(force({[&](QDialog &dialog) {
            const auto text = [&](const char *name) { return field(dialog, name)->text(); };
            QCOMPARE(dialog.windowTitle(), QString("Set IP Address"));
            QCOMPARE(text("nicMacLineEdit"), QString("02:00:00:00:00:0A"));
            QCOMPARE(text("macAddressLineEdit"), QString("00:1B:2C:3D:4E:5F"));
            QCOMPARE(text("subnetMaskLineEdit"), text("nicSubnetMaskLineEdit"));
            QCOMPARE(text("defaultGatewayLineEdit"), QString("192.168.1.254"));
            QCOMPARE(text("ipAddressLineEdit"), QString(row.proposal));
            QCOMPARE(dialog.findChild<QLabel *>("ipStatusLabel")->text(),
                     QString("IP Configuration OK"));
            dialog.reject();
        }}));
        QCOMPARE(m_parameters->writes.last(), QString("DeviceSelector=1"));
        QVERIFY(m_parameters->writes.filter("Force").isEmpty());
        QVERIFY(!okButton()->isEnabled());
    }
}

void TestCameraSelectorDialog::forcesAddress()
{
    m_parameters->addresses[0] = 0xC0A80163;
    open();
    tree()->setCurrentIndex(networkCamera(1));
    QVERIFY(force({[&](QDialog &dialog) {
        field(dialog, "ipAddressLineEdit")->setText("192.168.1.77");
        field(dialog, "defaultGatewayLineEdit")->setText("192.168.1.1");
        m_parameters->values["GevDeviceIPAddress"] = 0xC0A8014D;
        dialog.accept();
    }}));
    QCOMPARE(m_parameters->writes.mid(m_parameters->writes.size() - 6),
             (QStringList{"DeviceSelector=1", "GevDeviceForceIPAddress=3232235853",
                          "GevDeviceForceSubnetMask=4294967040", "GevDeviceForceGateway=3232235777",
                          "GevDeviceForceIP", "DeviceSelector=1"}));
    QVERIFY(deviceFacts().contains("IP Address: 192.168.1.77"));
    // The status is that of the last scan, but the camera can be selected.
    QVERIFY(deviceFacts().contains("Access status: IP Subnet Mismatch"));
    QVERIFY(okButton()->isEnabled());
    QTest::keyClick(tree(), Qt::Key_Return);
    QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
    QCOMPARE(m_dialog->selectedCamera(), m_network->cameras.entries[1]);
}

void TestCameraSelectorDialog::warnsOfBadAddress()
{
    const ModalVisitor::Action wrongMask = [](QDialog &dialog) {
        field(dialog, "subnetMaskLineEdit")->setText("255.255.255.128");
        dialog.accept();
    };
    open();
    tree()->setCurrentIndex(networkCamera(0));
    QVERIFY(force({enterWrongAddress, warning(QMessageBox::Ok)}));
    QVERIFY(m_parameters->writes.filter("Force").isEmpty());
    QVERIFY(force({wrongMask, [](QDialog &box) { QTest::keyClick(&box, Qt::Key_Escape); }}));
    QVERIFY(m_parameters->writes.filter("Force").isEmpty());
    QVERIFY(force({wrongMask, warning(QMessageBox::Ignore)}));
    QVERIFY(m_parameters->writes.contains("GevDeviceForceSubnetMask=4294967168"));
    QVERIFY(m_parameters->writes.contains("GevDeviceForceIP"));
}

void TestCameraSelectorDialog::reportsWrongAddress()
{
    const struct
    {
        const char *address, *reason;
    } rows[] = {
        {"192.168.1.10", "The address 192.168.1.10 is that of the network adapter Network."},
        {"192.168.1.66", "The camera <b>Far</b>\uFFFD has the address 192.168.1.66."},
        {"0.0.0.0", "it begins with 0."},
        {"127.0.0.1", "it is a loopback address."},
        {"224.0.0.1", "it is a multicast address."},
        {"255.255.255.255", "it is a broadcast address."},
        {"192.168.1.255", "it is a broadcast address."},
        {"192.168.1.0", "it is that of the subnet."},
    };
    static_cast<FakeCamera *>(m_network->cameras.entries[1])->displayName = "<b>Far</b>\n";
    m_parameters->addresses[1] = 0xC0A80142;
    open();
    tree()->setCurrentIndex(networkCamera(0));
    for (const auto &row : rows) {
        const auto enter = [&](QDialog &dialog) {
            field(dialog, "ipAddressLineEdit")->setText(row.address);
            dialog.accept();
        };
        const auto read = [&](QDialog &dialog) {
            const QString text = dynamic_cast<QMessageBox &>(dialog).informativeText();
            const QString shown = QTextDocumentFragment::fromHtml(text).toPlainText();
            QVERIFY2(shown.contains(QString::fromUtf8(row.reason)), qPrintable(shown));
            warning(QMessageBox::Ok)(dialog);
        };
        QVERIFY(force({enter, read}));
        QVERIFY(m_parameters->writes.filter("Force").isEmpty());
    }
    // The camera's own address, and that of another camera if the user ignores the warning.
    for (const auto &last : {QString("169.254.7.21"), QString("192.168.1.66")}) {
        m_parameters->values["GevInterfaceSubnetIPAddress"] = 0xA9FE070A;
        m_parameters->values["GevInterfaceSubnetMask"] = 0xFFFF0000;
        QList<ModalVisitor::Action> dialogs = {[&](QDialog &dialog) {
            field(dialog, "ipAddressLineEdit")->setText(last);
            dialog.accept();
        }};
        if (last != "169.254.7.21")
            dialogs << warning(QMessageBox::Ignore);
        QVERIFY(force(dialogs));
        QVERIFY(m_parameters->writes.contains("GevDeviceForceIP"));
    }
}

/// Another part of the program has enumerated the cameras again.
void TestCameraSelectorDialog::camerasEnumeratedElsewhere()
{
    const auto swap = [this] {
        std::swap(m_network->cameras.entries[0], m_network->cameras.entries[1]);
    };
    const auto accept = [](QDialog &dialog) { dialog.accept(); };
    const QList<std::function<void()>> moves = {
        swap, [this] { m_network->cameras.entries.resize(1); },
        [this] { m_parameters->values["GevDeviceMACAddress"] = 0x001B2C3D4E60; }};
    for (const auto &move : moves) {
        init();
        open();
        tree()->setCurrentIndex(networkCamera(1));
        QVERIFY(force({[&](QDialog &dialog) {
                           move();
                           accept(dialog);
                       },
                       failureMessage()}));
        QVERIFY(m_parameters->writes.filter("Force").isEmpty());
        QVERIFY(!okButton()->isEnabled());
    }
    init();
    open();
    swap();
    tree()->setCurrentIndex(networkCamera(1));
    QCOMPARE(deviceFacts().size(), 7); // without addresses, since they would be another camera's
    QVERIFY(force({failureMessage()}));

    // Another window has changed the camera selector.
    init();
    open();
    tree()->setCurrentIndex(networkCamera(1));
    QVERIFY(force({[&](QDialog &dialog) {
        m_parameters->SetIntegerValue("DeviceSelector", 0);
        dialog.accept();
    }}));
    const int command = int(m_parameters->writes.indexOf("GevDeviceForceIP"));
    QCOMPARE(m_parameters->writes.mid(0, command).filter("DeviceSelector").last(),
             QString("DeviceSelector=1"));
}

void TestCameraSelectorDialog::waitsForCamera()
{
    const auto accept = [](QDialog &dialog) { dialog.accept(); };
    m_parameters->commandTime = 700;
    open();
    tree()->setCurrentIndex(networkCamera(1));
    int turns = 0;
    QTimer ticks;
    connect(&ticks, &QTimer::timeout, &ticks, [&] { ++turns; });
    ticks.start(20);
    bool isProgress = false;
    QVERIFY(
        force({accept, [&](QDialog &dialog) { isProgress = dialog.inherits("QProgressDialog"); }}));
    QVERIFY(isProgress && turns >= 15); // the event loop runs
    QVERIFY(okButton()->isEnabled());

    // The user cancels the wait. Until the command ends, the picker does not access the camera
    // system.
    QVERIFY(force({accept, [](QDialog &dialog) { dialog.findChild<QPushButton *>()->click(); }}));
    QVERIFY(!m_parameters->writes.contains("GevDeviceForceIP"));
    QVERIFY(!okButton()->isEnabled() && !setIpButton()->isEnabled() &&
            !rescanButton()->isEnabled());
    const size_t scans = m_network->refreshes.size();
    tree()->setCurrentIndex(networkCamera(0));
    QCOMPARE(deviceFacts().size(), 7);
    tree()->collapse(interfaceRow(2));
    tree()->expand(interfaceRow(2));
    QTest::keyClick(m_dialog.get(), Qt::Key_F5);
    QCOMPARE(m_network->refreshes.size(), scans);
    QCOMPARE(m_empty->refreshes.size(), size_t(1));
    QTRY_VERIFY(setIpButton()->isEnabled() && okButton()->isEnabled() &&
                rescanButton()->isEnabled());
    QVERIFY(m_parameters->writes.contains("GevDeviceForceIP"));
    QCOMPARE(deviceFacts().size(), 11);

    QVERIFY(force({accept, [this](QDialog &) { m_dialog.reset(); }}));
    QVERIFY(!m_dialog && m_parameters->writes.contains("GevDeviceForceIP"));
}

void TestCameraSelectorDialog::failedForcing()
{
    const struct
    {
        const char *feature;
        bool whileFilling;
        int writes;
    } rows[] = {{"DeviceSelector", true, 0},
                {"GevInterfaceMACAddress", true, 0},
                {"GevDeviceForceGateway", true, 0},
                {"GevDeviceForceIPAddress", false, 1},
                {"GevDeviceForceSubnetMask", false, 2},
                {"GevDeviceForceGateway", false, 3},
                {"GevDeviceForceIP", false, 4}};
    for (const auto &row : rows) {
        m_parameters->errors.clear();
        open();
        tree()->setCurrentIndex(networkCamera(1));
        QList<ModalVisitor::Action> dialogs = {failureMessage()};
        if (row.whileFilling)
            m_parameters->errors[row.feature] = ErrorTimeout;
        else
            dialogs.prepend([&](QDialog &dialog) {
                m_parameters->errors[row.feature] = ErrorTimeout;
                dialog.accept();
            });
        QVERIFY2(force(dialogs), row.feature);
        QCOMPARE(m_parameters->writes.filter("Force").size(), row.writes);
        QVERIFY(!okButton()->isEnabled());
    }
}

/// The owner destroys the picker while one of its dialogs is open.
void TestCameraSelectorDialog::destroyedDuringDialogs()
{
    const ModalVisitor::Action destroys = [this](QDialog &) { m_dialog.reset(); };
    const struct
    {
        int32_t error;
        QList<ModalVisitor::Action> dialogs;
    } rows[] = {
        {Success, {destroys}}, {Success, {enterWrongAddress, destroys}}, {ErrorFailed, {destroys}}};
    for (const auto &row : rows) {
        m_network->parametersError = row.error;
        open();
        tree()->setCurrentIndex(networkCamera(0));
        QVERIFY(force(row.dialogs));
        QVERIFY(!m_dialog && !m_parameters->writes.contains("GevDeviceForceIP"));
    }
}

QTEST_MAIN(TestCameraSelectorDialog)
#include "tst_cameraselectordialog.moc"
