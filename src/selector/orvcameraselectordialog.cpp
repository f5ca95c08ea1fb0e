// SPDX-License-Identifier: MIT
#include "selector/orvcameraselectordialog.h"

#include "base/cameratext.h"
#include "base/connections.h"
#include "base/formfit.h"
#include "base/ip4validator.h"
#include "base/macaddress.h"
#include "base/screenroom.h"
#include "selector/cameratreemodel.h"
#include "selector/forceipcommand.h"
#include "selector/infopane.h"
#include "selector/setipdialog.h"
#include "selector/usedaddresses.h"
#include "selector/waitcursor.h"
#include "ui_orvcameraselectordialog.h"

#include <OrvCam.h>
#include <OrvGenParam.h>

#include <QEventLoop>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QProgressDialog>
#include <QShortcut>
#include <QStandardItemModel>
#include <QTimer>

#include <functional>
#include <initializer_list>
#include <limits>
#include <memory>
#include <utility>
#include <vector>

namespace OrvGui {

namespace {

using AddressText = QString (*)(int64_t);

constexpr int buttonTextMargin = 10;

// The size of the dialog in lines of text.
constexpr int linesOfWidth = 24;
constexpr int linesOfHeight = 34;
constexpr int tightLines = 25;

/// The proposed address is above that of an adapter whose last byte is at most this, otherwise
/// below.
constexpr int64_t lastByteWithNeighbourAbove = 128;

/// The largest number of rows of the panes, which GigE Vision interfaces and cameras have.
constexpr int interfaceFacts = 6;
constexpr int deviceFacts = 11;

constexpr int leastTreeRows = 4;

/// The time before a progress dialog is shown, in milliseconds.
constexpr int progressDelay = 300;

OrvCam::DeviceInfo *cameraAt(const QModelIndex &index)
{
    return index.data(Qt::UserRole).value<OrvCam::DeviceInfo *>();
}

OrvCam::Interface *interfaceAt(const QModelIndex &index)
{
    return index.data(Qt::UserRole).value<OrvCam::Interface *>();
}

bool isNetwork(const OrvCam::Interface *interface)
{
    return interface && interface->GetTransportKind() == OrvCam::TransportGigEVision;
}

bool isNetworkCamera(const OrvCam::DeviceInfo *camera)
{
    return camera && isNetwork(camera->GetInterface());
}

bool isUsable(const OrvCam::DeviceInfo &camera)
{
    const int32_t state = camera.GetAccessState();
    return state != OrvCam::AccessNone && state != OrvCam::AccessSubnetMismatch;
}

std::vector<OrvCam::DeviceInfo *> listedCameras(OrvCam::Interface &interface)
{
    std::vector<OrvCam::DeviceInfo *> cameras;
    const OrvCam::Released<OrvCam::DeviceInfoList> list(interface.GetDeviceInfoSet());
    if (!list)
        return cameras;
    for (auto *camera = list->GetFirst(); camera; camera = list->GetNext())
        cameras.push_back(camera);
    return cameras;
}

/// Two adapters on one switch list the same cameras.
bool isSame(const OrvCam::DeviceInfo &one, const OrvCam::DeviceInfo &other)
{
    return &one == &other ||
           (one.GetInterface() != other.GetInterface() && qstrcmp(one.GetId(), other.GetId()) == 0);
}

OrvGenParam::Array *parametersOf(OrvCam::Interface &interface)
{
    int32_t error = OrvCam::Success;
    OrvGenParam::Array *parameters = interface.GetParamArray(&error);
    return error == OrvCam::Success ? parameters : nullptr;
}

/// Returns false on failure.
bool selectCamera(OrvGenParam::Array &parameters, std::size_t position)
{
    return parameters.SetIntegerValue("DeviceSelector", static_cast<int64_t>(position)) ==
           OrvCam::Success;
}

bool read(const OrvGenParam::Array &parameters, const char *feature, int64_t &value)
{
    int32_t error = OrvCam::Success;
    value = parameters.GetIntegerValue(feature, &error);
    return error == OrvCam::Success;
}

unsigned int number(int64_t address)
{
    return static_cast<unsigned int>(address);
}

/// Whether the address proposed for a camera is above (1) or below (-1) the adapter's.
int stepFrom(int64_t adapterAddress)
{
    return (adapterAddress & 0xff) <= lastByteWithNeighbourAbove ? 1 : -1;
}

QString macText(int64_t address)
{
    return macAddressText(static_cast<quint64>(address));
}

QString ipText(int64_t address)
{
    return IP4Validator::getIpStr(number(address));
}

/// Features that cannot be read are left out.
void addAddress(QStandardItemModel *facts, const OrvGenParam::Array &parameters,
                const QString &label, const char *feature, AddressText toText)
{
    int64_t address = 0;
    if (read(parameters, feature, address))
        InfoPane::add(facts, label, toText(address));
}

} // namespace

class OrvCameraSelectorDialogPrivate
{
    Q_DECLARE_TR_FUNCTIONS(OrvGui::OrvCameraSelectorDialog)

public:
    OrvCameraSelectorDialogPrivate(OrvCameraSelectorDialog *dialog, OrvCam::System *system);

    void connectSignals();
    void fitToFont();
    void distributeHeight();
    void expandAll();
    void rescan();

    void FillInfo(const QModelIndex &index);
    void showCamera(const QModelIndex &index);
    void showInterface(OrvCam::Interface *interface);
    static QString accessText(int32_t state);
    static QString kindText(int32_t kind);
    void updateButtons();
    void showContextMenu(const QPoint &position);

    OrvGenParam::Array *parametersOfCamera(const QModelIndex &index) const;

    void setIp();
    bool ForceIP();
    bool ForceIP(const QPointer<SetIpDialog> &dialog, const QPersistentModelIndex &camera);
    UsedAddresses usedAddresses(const OrvCam::DeviceInfo &except) const;
    static bool fill(SetIpDialog &dialog, const OrvGenParam::Array &parameters,
                     const UsedAddresses &used);
    bool isWarningIgnored(const QString &reason);
    QMessageBox::StandardButton ask(const QString &title, const QString &text,
                                    QMessageBox::StandardButtons buttons,
                                    const QString &reason = QString());
    static bool setAddresses(const SetIpDialog &dialog, OrvGenParam::Array &parameters);
    bool force(OrvCam::Interface &interface, OrvGenParam::Array &parameters);
    bool awaitCommand();
    void abandonCommand();
    void commandEnded();

    OrvCameraSelectorDialog *const q;
    const std::unique_ptr<Ui_OrvCameraSelectorDialog> ui{new Ui_OrvCameraSelectorDialog};
    QMenu *const contextMenu;
    CameraTreeModel *const model;
    QPushButton *okButton = nullptr;
    QPushButton *rescanButton = nullptr;
    std::unique_ptr<InfoPane> interfacePane;
    std::unique_ptr<InfoPane> devicePane;
    bool isForcing = false;   // the command is using the camera system
    bool isAbandoned = false; // the user has cancelled the command
    std::unique_ptr<ForceIpCommand> command;
    Connections connections; // last, so that they end before the widgets are destroyed
};

// OrvCameraSelectorDialogPrivate

OrvCameraSelectorDialogPrivate::OrvCameraSelectorDialogPrivate(OrvCameraSelectorDialog *dialog,
                                                               OrvCam::System *system)
    : q(dialog), contextMenu(new QMenu(dialog)), model(new CameraTreeModel(system, dialog))
{
    ui->setupUi(q);
    interfacePane.reset(new InfoPane(ui->interfaceInfoTreeView));
    devicePane.reset(new InfoPane(ui->deviceInfoTreeView));
    okButton = ui->buttonBox->button(QDialogButtonBox::Ok);
    okButton->setEnabled(false);

    const QString setIpText = ui->setIpBtn->text();
    const int textWidth = FormFit::textWidth(ui->setIpBtn, setIpText);
    ui->setIpBtn->setMinimumWidth(
        qMax(textWidth + buttonTextMargin, ui->setIpBtn->sizeHint().width()));
    fitToFont();
    ui->cameraTreeView->setModel(model);
    connectSignals();
    expandAll();
    distributeHeight();
}

void OrvCameraSelectorDialogPrivate::connectSignals()
{
    const auto setIpOfCurrent = [this] { setIp(); };
    connections.add(contextMenu->addAction(tr("Set IP address")), &QAction::triggered,
                    setIpOfCurrent);
    connections.add(ui->setIpBtn, &QPushButton::clicked, setIpOfCurrent);
    rescanButton = ui->buttonBox->addButton(tr("&Rescan"), QDialogButtonBox::ActionRole);
    connections.add(rescanButton, &QPushButton::clicked, [this] { rescan(); });
    QObject::connect(new QShortcut(QKeySequence(Qt::Key_F5), q), &QShortcut::activated,
                     rescanButton, &QPushButton::click);

    connections.add(ui->cameraTreeView->selectionModel(), &QItemSelectionModel::currentChanged,
                    [this](const QModelIndex &current) {
                        FillInfo(current);
                        updateButtons();
                    });
    QObject::connect(ui->cameraTreeView, &QTreeView::activated, okButton, &QPushButton::click);
    connections.add(ui->cameraTreeView, &QTreeView::customContextMenuRequested,
                    [this](const QPoint &position) { showContextMenu(position); });
    QObject::connect(ui->cameraTreeView, &QTreeView::collapsed, model, &CameraTreeModel::collapsed);
    connections.add(model, &DeviceTreeModel::modelReset, [this] { expandAll(); });
}

/// Enlarges the dialog for large fonts; the size in the form is for an ordinary one.
void OrvCameraSelectorDialogPrivate::fitToFont()
{
    const int line = q->fontMetrics().height();
    const QSize wanted = q->size().expandedTo(QSize(linesOfWidth, linesOfHeight) * line);
    q->resize(wanted.boundedTo(roomFor(q).size()));
}

/// Distributes the height: all of the device pane and some rows of the tree first, then the
/// interface pane; the tree gets the rest.
void OrvCameraSelectorDialogPrivate::distributeHeight()
{
    const int interfaceHeight = interfacePane->heightOf(interfaceFacts);
    const int deviceHeight = devicePane->heightOf(deviceFacts);
    const int rowHeight = ui->cameraTreeView->fontMetrics().height();
    // One row more for the header.
    ui->cameraTreeView->setMinimumHeight((leastTreeRows + 1) * rowHeight);
    ui->interfaceInfoTreeView->setMaximumHeight(interfaceHeight);
    // Limited for a large font, because the dialog must fit on the screen.
    const bool isTight = q->height() < tightLines * rowHeight;
    ui->deviceInfoTreeView->setMinimumHeight(qMin(deviceHeight, q->height() / (isTight ? 3 : 2)));
    const int labels = ui->label->sizeHint().height() + ui->label_2->sizeHint().height() +
                       3 * ui->verticalLayout_2->spacing();
    // With a small font the device pane would take more than its rows from the interface pane.
    const int panes = qMax(labels + interfaceHeight + deviceHeight,
                           ui->verticalLayoutWidget->sizeHint().height());
    ui->splitter->setStretchFactor(0, 1);
    ui->splitter->setStretchFactor(1, 0);
    ui->splitter->setSizes({ui->cameraTreeView->minimumHeight(), panes});
}

void OrvCameraSelectorDialogPrivate::expandAll()
{
    const WaitCursor waiting;
    ui->cameraTreeView->expandAll();
    // Otherwise the tree makes the first row current when it gets the focus.
    ui->cameraTreeView->setCurrentIndex(QModelIndex());
}

void OrvCameraSelectorDialogPrivate::rescan()
{
    if (isForcing)
        return;
    model->rescan();
    FillInfo(ui->cameraTreeView->currentIndex());
    updateButtons();
}

void OrvCameraSelectorDialogPrivate::FillInfo(const QModelIndex &index)
{
    if (cameraAt(index)) {
        showCamera(index);
        showInterface(interfaceAt(index.parent()));
        return;
    }
    devicePane->clear();
    showInterface(interfaceAt(index));
}

void OrvCameraSelectorDialogPrivate::showCamera(const QModelIndex &index)
{
    const OrvCam::DeviceInfo &camera = *cameraAt(index);
    QStandardItemModel *facts = InfoPane::makeFacts();
    for (const auto &fact : std::initializer_list<std::pair<QString, const char *>>{
             {tr("Display name"), camera.GetDisplayName()},
             {tr("Vendor"), camera.GetVendor()},
             {tr("Model"), camera.GetModel()},
             {tr("Serial number"), camera.GetSerial()},
             {tr("Version"), camera.GetVersionText()},
             {tr("User name"), camera.GetUserName()}})
        InfoPane::add(facts, fact.first, cameraText(fact.second));
    InfoPane::add(facts, tr("Access status"), accessText(camera.GetAccessState()),
                  !isUsable(camera));
    okButton->setEnabled(true);

    const OrvGenParam::Array *parameters = parametersOfCamera(index);
    if (parameters) {
        addAddress(facts, *parameters, tr("MAC Address"), "GevDeviceMACAddress", macText);
        addAddress(facts, *parameters, tr("IP Address"), "GevDeviceIPAddress", ipText);
        addAddress(facts, *parameters, tr("Netmask"), "GevDeviceSubnetMask", ipText);
        addAddress(facts, *parameters, tr("Gateway"), "GevDeviceGateway", ipText);
    }
    devicePane->show(facts);
}

void OrvCameraSelectorDialogPrivate::showInterface(OrvCam::Interface *interface)
{
    if (!interface) {
        interfacePane->clear();
        return;
    }
    QStandardItemModel *facts = InfoPane::makeFacts();
    InfoPane::add(facts, tr("Description"), cameraText(interface->GetDescription()));
    InfoPane::add(facts, tr("Type"), kindText(interface->GetTransportKind()));
    InfoPane::add(facts, tr("Version"), cameraText(interface->GetVersionText()));

    const OrvGenParam::Array *parameters =
        isNetwork(interface) && !isForcing ? interface->GetParamArray() : nullptr;
    if (parameters) {
        addAddress(facts, *parameters, tr("MAC Address"), "GevInterfaceMACAddress", macText);
        addAddress(facts, *parameters, tr("IP Address"), "GevInterfaceSubnetIPAddress", ipText);
        addAddress(facts, *parameters, tr("Netmask"), "GevInterfaceSubnetMask", ipText);
    }
    interfacePane->show(facts);
}

QString OrvCameraSelectorDialogPrivate::accessText(int32_t state)
{
    switch (state) {
    case OrvCam::AccessReadWrite:
        return tr("ReadWrite");
    case OrvCam::AccessReadOnly:
        return tr("ReadOnly");
    case OrvCam::AccessNone:
        return tr("NO ACCESS");
    case OrvCam::AccessSubnetMismatch:
        return tr("IP Subnet Mismatch");
    default:
        return tr("Unknown");
    }
}

QString OrvCameraSelectorDialogPrivate::kindText(int32_t kind)
{
    switch (kind) {
    case OrvCam::TransportUsb3Vision:
        return tr("USB3 Vision");
    case OrvCam::TransportGigEVision:
        return tr("GigE Vision");
    case OrvCam::TransportCameraLink:
        return tr("CameraLink");
    case OrvCam::TransportCoaXPress:
        return tr("CoaXPress");
    case OrvCam::TransportHdSdi:
        return tr("HD-SDI");
    default:
        return tr("Custom");
    }
}

void OrvCameraSelectorDialogPrivate::updateButtons()
{
    const OrvCam::DeviceInfo *camera = q->selectedCamera();
    okButton->setEnabled(camera && isUsable(*camera) && !isForcing);
    ui->setIpBtn->setEnabled(isNetworkCamera(camera) && !isForcing);
}

void OrvCameraSelectorDialogPrivate::showContextMenu(const QPoint &position)
{
    if (isNetworkCamera(cameraAt(ui->cameraTreeView->indexAt(position))))
        contextMenu->popup(ui->cameraTreeView->viewport()->mapToGlobal(position));
}

/// The parameters of a network camera's interface, with the camera selected; null on failure.
///
/// The interface lists its cameras in the order of the tree, unless another part of the program has
/// searched for cameras; then the row may belong to another camera.
OrvGenParam::Array *
OrvCameraSelectorDialogPrivate::parametersOfCamera(const QModelIndex &index) const
{
    const OrvCam::DeviceInfo *camera = cameraAt(index);
    if (!isNetworkCamera(camera) || isForcing)
        return nullptr;
    const auto row = static_cast<std::size_t>(index.row());
    const auto listed = listedCameras(*camera->GetInterface());
    if (row >= listed.size() || listed[row] != camera)
        return nullptr;
    OrvGenParam::Array *parameters = parametersOf(*camera->GetInterface());
    return parameters && selectCamera(*parameters, row) ? parameters : nullptr;
}

void OrvCameraSelectorDialogPrivate::setIp()
{
    if (!ForceIP())
        ask(tr("Set IP Address"), tr("Can't set IP address"), QMessageBox::Ok);
}

bool OrvCameraSelectorDialogPrivate::ForceIP()
{
    const QPersistentModelIndex current = ui->cameraTreeView->currentIndex();
    if (!isNetworkCamera(cameraAt(current)) || isForcing)
        return false;
    const UsedAddresses used = usedAddresses(*cameraAt(current));
    const OrvGenParam::Array *parameters = parametersOfCamera(current);
    if (!parameters)
        return false;

    const QPointer<SetIpDialog> dialog(new SetIpDialog(q));
    const bool isFine = fill(*dialog, *parameters, used) && ForceIP(dialog, current);
    delete dialog;
    return isFine;
}

/// While a dialog is open the picker may be destroyed, and with it the dialogs and this object.
/// That counts as cancelled.
bool OrvCameraSelectorDialogPrivate::ForceIP(const QPointer<SetIpDialog> &dialog,
                                             const QPersistentModelIndex &camera)
{
    const bool isAccepted = dialog->exec() == QDialog::Accepted;
    if (!dialog || !isAccepted)
        return true;
    if (!cameraAt(camera))
        return false;
    const QString reason =
        usedAddresses(*cameraAt(camera)).fault(dialog->ipAddress(), dialog->Netmask());
    const bool fits = dialog->isAddressValid() && dialog->isMaskValid() && reason.isEmpty();
    if (!fits && !isWarningIgnored(reason))
        return true;

    OrvGenParam::Array *parameters = parametersOfCamera(camera);
    int64_t mac = 0;
    if (!parameters || !read(*parameters, "GevDeviceMACAddress", mac) ||
        macText(mac) != dialog->macAddress())
        return false;
    return setAddresses(*dialog, *parameters) &&
           force(*cameraAt(camera)->GetInterface(), *parameters);
}

UsedAddresses OrvCameraSelectorDialogPrivate::usedAddresses(const OrvCam::DeviceInfo &except) const
{
    UsedAddresses used;
    for (int row = 0; row < model->rowCount(); ++row) {
        OrvCam::Interface *interface = interfaceAt(model->index(row, 0));
        OrvGenParam::Array *parameters = isNetwork(interface) ? parametersOf(*interface) : nullptr;
        if (!parameters)
            continue;
        int64_t address = 0;
        if (read(*parameters, "GevInterfaceSubnetIPAddress", address))
            used.addAdapter(number(address), cameraText(interface->GetDescription()));
        const auto listed = listedCameras(*interface);
        for (std::size_t i = 0; i < listed.size(); ++i) {
            if (!isSame(*listed[i], except) && selectCamera(*parameters, i) &&
                read(*parameters, "GevDeviceIPAddress", address))
                used.addCamera(number(address), cameraText(listed[i]->GetDisplayName()));
        }
    }
    return used;
}

bool OrvCameraSelectorDialogPrivate::fill(SetIpDialog &dialog, const OrvGenParam::Array &parameters,
                                          const UsedAddresses &used)
{
    int64_t mask = 0;
    using Setter = std::function<void(int64_t)>;
    for (const auto &field : std::initializer_list<std::pair<const char *, Setter>>{
             {"GevInterfaceMACAddress", [&](int64_t v) { dialog.setNicMACAddress(v); }},
             {"GevInterfaceSubnetIPAddress", [&](int64_t v) { dialog.setNicIPAddress(number(v)); }},
             {"GevInterfaceSubnetMask",
              [&](int64_t v) {
                  mask = v;
                  dialog.setNicNetmask(number(v));
              }},
             {"GevDeviceMACAddress", [&](int64_t v) { dialog.setMACAddress(v); }},
             {"GevInterfaceSubnetIPAddress",
              [&](int64_t v) {
                  const int step = stepFrom(v);
                  dialog.setIPAddress(used.firstFree(number(v + step), step, number(mask)));
              }},
             {"GevInterfaceSubnetMask", [&](int64_t v) { dialog.setNetmask(number(v)); }},
             {"GevDeviceForceGateway", [&](int64_t v) { dialog.setGateway(number(v)); }}}) {
        int64_t value = 0;
        if (!read(parameters, field.first, value))
            return false;
        field.second(value);
    }
    return true;
}

bool OrvCameraSelectorDialogPrivate::isWarningIgnored(const QString &reason)
{
    return ask(tr("IP Configuration Warning"),
               tr("Specified IP Configuraion is not correct, camera may become undiscoverable\n"
                  "Press OK to skip the IP Configuration, or press Ignore to confirm"),
               QMessageBox::Ok | QMessageBox::Ignore, reason) == QMessageBox::Ignore;
}

/// OK is the default button. Returns `NoButton` when the picker is destroyed in the meantime.
QMessageBox::StandardButton
OrvCameraSelectorDialogPrivate::ask(const QString &title, const QString &text,
                                    QMessageBox::StandardButtons buttons, const QString &reason)
{
    const QPointer<QMessageBox> box(
        new QMessageBox(QMessageBox::Critical, title, text, buttons, q));
    box->setInformativeText(literally(reason));
    box->setDefaultButton(QMessageBox::Ok);
    box->setEscapeButton(QMessageBox::Ok);
    const int pressed = box->exec();
    if (!box)
        return QMessageBox::NoButton;
    delete box;
    return static_cast<QMessageBox::StandardButton>(pressed);
}

bool OrvCameraSelectorDialogPrivate::setAddresses(const SetIpDialog &dialog,
                                                  OrvGenParam::Array &parameters)
{
    const auto set = [&](const char *feature, unsigned int address) {
        return parameters.SetIntegerValue(feature, address) == OrvCam::Success;
    };
    return set("GevDeviceForceIPAddress", dialog.ipAddress()) &&
           set("GevDeviceForceSubnetMask", dialog.Netmask()) &&
           set("GevDeviceForceGateway", dialog.Gateway());
}

/// Also returns true when the user cancels, or when the picker is destroyed in the meantime.
bool OrvCameraSelectorDialogPrivate::force(OrvCam::Interface &interface,
                                           OrvGenParam::Array &parameters)
{
    command = std::make_unique<ForceIpCommand>(interface, parameters);
    if (!awaitCommand())
        return true;
    command->wait();
    if (!command->hasSucceeded())
        return false;
    // No updateButtons() here: the data of the last scan is outdated now, and OK stays enabled.
    FillInfo(ui->cameraTreeView->currentIndex());
    return true;
}

/// Returns false when the user cancels, or when the picker is destroyed.
bool OrvCameraSelectorDialogPrivate::awaitCommand()
{
    const QPointer<QProgressDialog> progress(new QProgressDialog(q));
    progress->setWindowTitle(tr("Set IP Address"));
    progress->setLabelText(tr("Waiting for the camera to come back with its new address..."));
    progress->setRange(0, 0);
    progress->setMinimumDuration(std::numeric_limits<int>::max());
    progress->setWindowModality(Qt::WindowModal);
    connections.add(command.get(), &QThread::finished, [this] { commandEnded(); });
    QObject::connect(command.get(), &QThread::finished, progress, &QDialog::accept);
    model->setPaused(true);
    isForcing = true;
    command->start();

    QEventLoop loop;
    QObject::connect(command.get(), &QThread::finished, &loop, &QEventLoop::quit);
    QObject::connect(progress, &QObject::destroyed, &loop, &QEventLoop::quit);
    QTimer::singleShot(progressDelay, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);

    if (progress && isForcing)
        progress->exec();
    if (!progress)
        return false;
    delete progress;
    if (isForcing)
        abandonCommand();
    return !isForcing;
}

/// Until the command has ended, the picker shows only data that it has.
void OrvCameraSelectorDialogPrivate::abandonCommand()
{
    isAbandoned = true;
    command->giveUp();
    q->setCursor(Qt::BusyCursor);
    rescanButton->setEnabled(false);
    updateButtons();
}

void OrvCameraSelectorDialogPrivate::commandEnded()
{
    isForcing = false;
    model->setPaused(false);
    ui->cameraTreeView->viewport()->update(); // the marks of the cameras may have changed
    if (!std::exchange(isAbandoned, false))
        return;
    q->unsetCursor();
    rescanButton->setEnabled(true);
    FillInfo(ui->cameraTreeView->currentIndex());
    updateButtons();
}

// OrvCameraSelectorDialog

OrvCameraSelectorDialog::OrvCameraSelectorDialog(OrvCam::System *system, QWidget *parent)
    : QDialog(parent), d(new OrvCameraSelectorDialogPrivate(this, system))
{
}

OrvCameraSelectorDialog::~OrvCameraSelectorDialog() = default;

OrvCam::DeviceInfo *OrvCameraSelectorDialog::selectedCamera() const
{
    return cameraAt(d->ui->cameraTreeView->currentIndex());
}

void OrvCameraSelectorDialog::setSelectedCamera(OrvCam::DeviceInfo *) {}

} // namespace OrvGui
