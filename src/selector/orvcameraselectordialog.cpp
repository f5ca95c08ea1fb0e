// SPDX-License-Identifier: MIT
#include "orvcameraselectordialog.h"

#include "base/cameratext.h"
#include "cameratreemodel.h"
#include "infopane.h"
#include "ip4validator.h"
#include "macaddress.h"
#include "setipdialog.h"
#include "ui_orvcameraselectordialog.h"
#include "waitcursor.h"

#include <OrvCam.h>
#include <OrvGenParam.h>

#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QShortcut>
#include <QStandardItemModel>

#include <functional>
#include <initializer_list>
#include <memory>
#include <utility>

namespace OrvGui {

namespace {

using AddressText = QString (*)(int64_t);

const int buttonTextMargin = 10;

/// An adapter whose last byte is not above this is given a neighbour above it, others one below.
const int64_t lastByteWithNeighbourAbove = 128;

/// The most rows that the panes have, those of a GigE Vision interface and camera.
const int interfaceFacts = 6;
const int deviceFacts = 11;

const int leastTreeRows = 4;

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

/// The parameters of a network camera's interface, with that camera selected; null when that fails.
/// The interface lists its cameras in the order of the tree.
OrvGenParam::Array *parametersOf(const QModelIndex &camera)
{
    int32_t error = OrvCam::Success;
    OrvGenParam::Array *parameters = cameraAt(camera)->GetInterface()->GetParamArray(&error);
    if (!parameters || error != OrvCam::Success ||
        parameters->SetIntegerValue("DeviceSelector", camera.row()) != OrvCam::Success)
        return nullptr;
    return parameters;
}

/// The adapter's neighbour in its subnet.
int64_t proposedAddress(int64_t adapterAddress)
{
    return (adapterAddress & 0xff) <= lastByteWithNeighbourAbove ? adapterAddress + 1
                                                                 : adapterAddress - 1;
}

QString macText(int64_t address)
{
    return macAddressText(static_cast<quint64>(address));
}

QString ipText(int64_t address)
{
    return IP4Validator::getIpStr(static_cast<unsigned int>(address));
}

/// A feature that cannot be read is left out.
void addAddress(QStandardItemModel *facts, const OrvGenParam::Array &parameters,
                const QString &label, const char *feature, AddressText toText)
{
    int32_t error = OrvCam::Success;
    const int64_t address = parameters.GetIntegerValue(feature, &error);
    if (error == OrvCam::Success)
        InfoPane::add(facts, label, toText(address));
}

} // namespace

class OrvCameraSelectorDialogPrivate
{
    Q_DECLARE_TR_FUNCTIONS(OrvGui::OrvCameraSelectorDialog)

public:
    OrvCameraSelectorDialogPrivate(OrvCameraSelectorDialog *dialog, OrvCam::System *system);

    void connectSignals();
    void divide();
    void expandAll();
    void rescan();

    void FillInfo(const QModelIndex &index);
    void showCamera(const QModelIndex &index);
    void showInterface(OrvCam::Interface *interface);
    static QString accessText(int32_t state);
    static QString kindText(int32_t kind);
    void updateButtons();
    void showContextMenu(const QPoint &position);

    void setIp();
    bool ForceIP();
    bool ForceIP(const QPointer<SetIpDialog> &dialog, OrvGenParam::Array &parameters);
    static bool fill(SetIpDialog &dialog, const OrvGenParam::Array &parameters);
    bool isWarningIgnored();
    QMessageBox::StandardButton ask(const QString &title, const QString &text,
                                    QMessageBox::StandardButtons buttons);
    static bool force(const SetIpDialog &dialog, OrvGenParam::Array &parameters);

    OrvCameraSelectorDialog *const q;
    const QObject life; // of this; what is connected ends with it, before the widgets go
    const std::unique_ptr<Ui_OrvCameraSelectorDialog> ui{new Ui_OrvCameraSelectorDialog};
    QMenu *const contextMenu;
    CameraTreeModel *const model;
    QPushButton *okButton = nullptr;
    std::unique_ptr<InfoPane> interfacePane;
    std::unique_ptr<InfoPane> devicePane;
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
    ui->setIpBtn->setMinimumWidth(ui->setIpBtn->fontMetrics().size(0, setIpText).width() +
                                  buttonTextMargin);
    ui->cameraTreeView->setModel(model);
    connectSignals();
    expandAll();
    divide();
}

void OrvCameraSelectorDialogPrivate::connectSignals()
{
    const auto setIpOfCurrent = [this] { setIp(); };
    QObject::connect(contextMenu->addAction(tr("Set IP address")), &QAction::triggered, &life,
                     setIpOfCurrent);
    QObject::connect(ui->setIpBtn, &QPushButton::clicked, &life, setIpOfCurrent);
    QPushButton *rescanButton =
        ui->buttonBox->addButton(tr("&Rescan"), QDialogButtonBox::ActionRole);
    QObject::connect(rescanButton, &QPushButton::clicked, &life, [this] { rescan(); });
    QObject::connect(new QShortcut(Qt::Key_F5, q), &QShortcut::activated, rescanButton,
                     &QPushButton::click);

    QObject::connect(ui->cameraTreeView->selectionModel(), &QItemSelectionModel::currentChanged,
                     &life, [this](const QModelIndex &current) {
                         FillInfo(current);
                         updateButtons();
                     });
    QObject::connect(ui->cameraTreeView, &QTreeView::activated, okButton, &QPushButton::click);
    QObject::connect(ui->cameraTreeView, &QTreeView::customContextMenuRequested, &life,
                     [this](const QPoint &position) { showContextMenu(position); });
    QObject::connect(ui->cameraTreeView, &QTreeView::collapsed, model, &CameraTreeModel::collapsed);
    QObject::connect(model, &DeviceTreeModel::modelReset, &life, [this] { expandAll(); });
}

/// Shows the device pane whole and some rows of the tree, then as much as fits of the interface
/// pane; the tree has the rest.
void OrvCameraSelectorDialogPrivate::divide()
{
    const int interfaceHeight = interfacePane->heightOf(interfaceFacts);
    const int deviceHeight = devicePane->heightOf(deviceFacts);
    const int rowHeight = ui->cameraTreeView->fontMetrics().height();
    ui->cameraTreeView->setMinimumHeight((leastTreeRows + 1) * rowHeight); // and the header
    ui->interfaceInfoTreeView->setMaximumHeight(interfaceHeight);
    // Not more on account of a large font: the dialog has to fit on the screen.
    ui->deviceInfoTreeView->setMinimumHeight(qMin(deviceHeight, q->height() / 2));
    const int labels = ui->label->sizeHint().height() + ui->label_2->sizeHint().height() +
                       3 * ui->verticalLayout_2->spacing();
    ui->splitter->setStretchFactor(0, 1);
    ui->splitter->setStretchFactor(1, 0);
    ui->splitter->setSizes(
        {ui->cameraTreeView->minimumHeight(), labels + interfaceHeight + deviceHeight});
}

void OrvCameraSelectorDialogPrivate::expandAll()
{
    const WaitCursor waiting;
    ui->cameraTreeView->expandAll();
    // Otherwise the first row becomes current as soon as the tree gets the focus.
    ui->cameraTreeView->setCurrentIndex(QModelIndex());
}

void OrvCameraSelectorDialogPrivate::rescan()
{
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

    const OrvGenParam::Array *parameters = isNetworkCamera(&camera) ? parametersOf(index) : nullptr;
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
        isNetwork(interface) ? interface->GetParamArray() : nullptr;
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
    okButton->setEnabled(camera && isUsable(*camera));
    ui->setIpBtn->setEnabled(isNetworkCamera(camera));
}

void OrvCameraSelectorDialogPrivate::showContextMenu(const QPoint &position)
{
    if (isNetworkCamera(cameraAt(ui->cameraTreeView->indexAt(position))))
        contextMenu->popup(ui->cameraTreeView->viewport()->mapToGlobal(position));
}

void OrvCameraSelectorDialogPrivate::setIp()
{
    if (!ForceIP())
        ask(tr("Set IP Address"), tr("Can't set IP address"), QMessageBox::Ok);
}

bool OrvCameraSelectorDialogPrivate::ForceIP()
{
    const QModelIndex current = ui->cameraTreeView->currentIndex();
    if (!isNetworkCamera(cameraAt(current)))
        return false;
    OrvGenParam::Array *parameters = parametersOf(current);
    if (!parameters)
        return false;

    const QPointer<SetIpDialog> dialog(new SetIpDialog(q));
    const bool isFine = fill(*dialog, *parameters) && ForceIP(dialog, *parameters);
    delete dialog;
    return isFine;
}

/// While one of the dialogs is open the picker may be destroyed, and with it the dialogs and this
/// object. That counts as cancelled.
bool OrvCameraSelectorDialogPrivate::ForceIP(const QPointer<SetIpDialog> &dialog,
                                             OrvGenParam::Array &parameters)
{
    const bool isAccepted = dialog->exec() == QDialog::Accepted;
    if (!dialog || !isAccepted)
        return true;
    const bool fits = dialog->isAddressValid() && dialog->isMaskValid();
    if (!fits && !isWarningIgnored())
        return true;
    if (!force(*dialog, parameters))
        return false;
    // Not followed by updateButtons(): what the last scan found out of the camera is outdated now,
    // and OK stays enabled.
    FillInfo(ui->cameraTreeView->currentIndex());
    return true;
}

bool OrvCameraSelectorDialogPrivate::fill(SetIpDialog &dialog, const OrvGenParam::Array &parameters)
{
    using Setter = std::function<void(int64_t)>;
    const auto number = [](int64_t value) { return static_cast<unsigned int>(value); };
    for (const auto &field : std::initializer_list<std::pair<const char *, Setter>>{
             {"GevInterfaceMACAddress", [&](int64_t v) { dialog.setNicMACAddress(v); }},
             {"GevInterfaceSubnetIPAddress", [&](int64_t v) { dialog.setNicIPAddress(number(v)); }},
             {"GevInterfaceSubnetMask", [&](int64_t v) { dialog.setNicNetmask(number(v)); }},
             {"GevDeviceMACAddress", [&](int64_t v) { dialog.setMACAddress(v); }},
             {"GevInterfaceSubnetIPAddress",
              [&](int64_t v) { dialog.setIPAddress(number(proposedAddress(v))); }},
             {"GevInterfaceSubnetMask", [&](int64_t v) { dialog.setNetmask(number(v)); }},
             {"GevDeviceForceGateway", [&](int64_t v) { dialog.setGateway(number(v)); }}}) {
        int32_t error = OrvCam::Success;
        const int64_t value = parameters.GetIntegerValue(field.first, &error);
        if (error != OrvCam::Success)
            return false;
        field.second(value);
    }
    return true;
}

bool OrvCameraSelectorDialogPrivate::isWarningIgnored()
{
    return ask(tr("IP Configuration Warning"),
               tr("Specified IP Configuraion is not correct, camera may become undiscoverable\n"
                  "Press OK to skip the IP Configuration, or press Ignore to confirm"),
               QMessageBox::Ok | QMessageBox::Ignore) == QMessageBox::Ignore;
}

/// OK is for those who only want to get on. No button when the picker is destroyed meanwhile.
QMessageBox::StandardButton
OrvCameraSelectorDialogPrivate::ask(const QString &title, const QString &text,
                                    QMessageBox::StandardButtons buttons)
{
    const QPointer<QMessageBox> box(
        new QMessageBox(QMessageBox::Critical, title, text, buttons, q));
    box->setDefaultButton(QMessageBox::Ok);
    box->setEscapeButton(QMessageBox::Ok);
    const int pressed = box->exec();
    if (!box)
        return QMessageBox::NoButton;
    delete box;
    return static_cast<QMessageBox::StandardButton>(pressed);
}

bool OrvCameraSelectorDialogPrivate::force(const SetIpDialog &dialog,
                                           OrvGenParam::Array &parameters)
{
    const WaitCursor waiting;
    const auto set = [&](const char *feature, unsigned int value) {
        return parameters.SetIntegerValue(feature, value) == OrvCam::Success;
    };
    return set("GevDeviceForceIPAddress", dialog.ipAddress()) &&
           set("GevDeviceForceSubnetMask", dialog.Netmask()) &&
           set("GevDeviceForceGateway", dialog.Gateway()) &&
           parameters.ExecuteCommand("GevDeviceForceIP") == OrvCam::Success;
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
