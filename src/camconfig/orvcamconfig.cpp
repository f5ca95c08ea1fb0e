// SPDX-License-Identifier: MIT
#include "camconfig/orvcamconfig.h"

#include "base/cameralibrary.h"
#include "base/cameratext.h"
#include "base/connections.h"
#include "base/formfit.h"
#include "base/selectordetour.h"
#include "base/selectorsinuse.h"
#include "camconfig/boundfeatures.h"
#include "camconfig/camerainformation.h"
#include "camconfig/devicewatch.h"
#include "camconfig/featurereader.h"
#include "camconfig/framenumbers.h"
#include "camconfig/framespanel.h"
#include "camconfig/orvcamconfigcolordialog.h"
#include "camconfig/orvcamconfigframeabdialog.h"
#include "camconfig/orvcamconfigopening.h"
#include "camconfig/orvcamconfigoutputdialog.h"
#include "camconfig/orvcamconfigpulsedialog.h"
#include "camconfig/orvcamconfigstrobedialog.h"
#include "camconfig/orvcamconfigtriggerdialog.h"
#include "camconfig/otherframe.h"
#include "journal/undoactions.h"
#include "selector/orvcameraselectordialog.h"
#include "ui_orvcamconfigmainwindow.h"

#include <OrvCam.h>
#include <OrvGenParam.h>

#include <QMessageBox>
#include <QPointer>
#include <QShortcut>
#include <QStyle>
#include <QTimer>
#include <QVector>

#include <memory>
#include <utility>

namespace OrvGui {

namespace {

constexpr int refreshPeriod = 1000; // ms

} // namespace

class OrvCamConfigPrivate : public OrvGenParam::ParamEventSink
{
    Q_DECLARE_TR_FUNCTIONS(OrvGui::OrvCamConfig)

public:
    explicit OrvCamConfigPrivate(OrvCamConfig *window);

    /// Sets up the window; called once.
    void begin(OrvCam::Device *device, bool mayAsk);

    /// Switches to another device. `created` is the same device if the window has to release it.
    void use(OrvCam::Device *device, OrvCam::Device *created);

    /// Releases everything except the widgets.
    void end();

    void showTemperature();
    void closeDialogs();
    void OnParameterUpdate(OrvGenParam::Param *param) override;
    void cancelOpening() { delete opening; }

    /// The device, if it has parameters.
    OrvCam::Device *usable() const { return array ? device : nullptr; }

private:
    using Frame = FramesPanel::Frame;
    enum FrameMode { OnlyFrameA, OnlyFrameB, BothFrames };

    void build();
    void buildStatusBar();
    void buildUndo();
    void connectMenus();
    template<class Dialog>
    void addDialog(Dialog *dialog, QPushButton *button, QAction *action);
    void addShortcut(QWidget *dialog, QPushButton *button, int number);
    OrvCam::DeviceInfo *pick();
    void connectPicked();
    OrvCamConfigOpening *newOpening(OrvCam::DeviceInfo &camera,
                                    const std::shared_ptr<OtherFrame> &other);
    OrvCam::Device *open(OrvCam::DeviceInfo &camera);
    void reportFailure(const QString &camera, const OrvCamConfigOpening::Result &result);
    void showError(const QString &text);

    QByteArray symbolicOf(const OrvGenParam::Enum *param) const;
    FeatureReader::Params shownParams() const;

    bool init(OrvCam::Device *newDevice);
    void getNeededParams();
    void forgetParams();
    void layOut();
    void layOutFrameButton();
    void layOutButtons();
    QSize iconSize() const;
    void dimOldNumbers();
    void handOver();

    void refresh();
    void drop();
    void awaitReturned();
    void restore();
    void refreshFrames();
    void showBothFrames();
    void refreshFrame();
    void updateFrame(Frame frame);
    bool updateBoth();
    bool readBoth();
    bool select(const char *frame);
    void updateStatus();
    void update(const OrvGenParam::Param *param);
    void readSelectedFrame();
    void readFrameMode();

    OrvCamConfig *const q;
    OrvCam::Device *device = nullptr;             ///< null while its camera is unplugged
    OrvCam::System *system = nullptr;             ///< only if the window has obtained it
    OrvCam::Device *ownDevice = nullptr;          ///< which the window has to release
    OrvGenParam::Array *array = nullptr;          ///< of the device
    FeatureReader reader;                         ///< of the array
    QPointer<OrvCamConfigOpening> opening;        ///< of the camera that the user has chosen
    std::shared_ptr<const OtherFrame> otherFrame; ///< of the device that is about to be used
    DeviceWatch watch;                            ///< also watches a device that is unplugged
    Ui_OrvCamConfigMainWindow ui;
    std::unique_ptr<CameraInformation> information;
    UndoActions *undoActions = nullptr;
    std::unique_ptr<FramesPanel> panel;
    QVector<OrvCamConfigDialog *> dialogs; ///< children of the window
    QLabel *statusText = nullptr;
    QLabel *statusIcon = nullptr;
    QTimer timer;

    bool isFrameABSupported = false;
    bool isFrameModeChanged = true;
    bool hasTimedOut = false; ///< a value could not be read since this was set to false
    FrameMode frameMode = BothFrames;
    Frame selectedFrame = CameraHistory::FrameA;

    OrvGenParam::Enum *frameSelector = nullptr;
    OrvGenParam::Enum *frameModeParam = nullptr;
    OrvGenParam::Int *temperature = nullptr;
    OrvGenParam::Int *exposureTime = nullptr;
    OrvGenParam::Int *frameTime = nullptr;
    OrvGenParam::Int *width = nullptr;
    OrvGenParam::Int *height = nullptr;
    Connections connections;
};

OrvCamConfigPrivate::OrvCamConfigPrivate(OrvCamConfig *window) : q(window), timer(window)
{
    timer.setObjectName(QStringLiteral("refreshTimer"));
}

void OrvCamConfigPrivate::begin(OrvCam::Device *newDevice, bool mayAsk)
{
    build();
    if (!newDevice && mayAsk) {
        if (OrvCam::DeviceInfo *picked = pick())
            newDevice = ownDevice = open(*picked);
    }
    if (newDevice)
        OrvCamConfig::prepare(*newDevice);
    addDialog(new OrvCamConfigFrameABDialog(newDevice, q), ui.pushBtnFrameAB, ui.actionFrame_A_B);
    addDialog(new OrvCamConfigTriggerDialog(newDevice, q), ui.pushBtnTrigger, ui.actionTrigger);
    addDialog(new OrvCamConfigPulseDialog(newDevice, q), ui.pushBtnPulse, ui.actionPulse);
    addDialog(new OrvCamConfigStrobeDialog(newDevice, q), ui.pushBtnStrobe, ui.actionStrobe);
    addDialog(new OrvCamConfigOutputDialog(newDevice, q), ui.pushBtnDataOut, ui.actionData_Out);
    addDialog(new OrvCamConfigColorDialog(newDevice, q), ui.pushBtnColor, ui.actionColor);
    if (!init(newDevice))
        handOver();
}

void OrvCamConfigPrivate::build()
{
    ui.setupUi(q);
    panel = std::make_unique<FramesPanel>(ui, q);
    information.reset(new CameraInformation(q));
    buildStatusBar();
    buildUndo();
    connectMenus();
    connections.add(&timer, &QTimer::timeout, [this] { refresh(); });
}

void OrvCamConfigPrivate::buildStatusBar()
{
    statusText = new QLabel(q);
    statusText->setObjectName(QStringLiteral("lblStatusText"));
    statusText->setTextFormat(Qt::PlainText);
    statusText->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // names may be long
    statusIcon = new QLabel(q);
    statusIcon->setObjectName(QStringLiteral("lblStatusIcon"));
    statusIcon->setScaledContents(true); // from the largest size: sharp at any pixel ratio
    ui.statusbar->addWidget(statusText, 1);
    ui.statusbar->addWidget(statusIcon);
}

void OrvCamConfigPrivate::buildUndo()
{
    undoActions = new UndoActions(q);
    ui.menuMenu->insertActions(ui.actionQuit, {undoActions->undo(), undoActions->redo()});
    ui.menuMenu->insertSeparator(ui.actionQuit);
}

void OrvCamConfigPrivate::connectMenus()
{
    connections.add(ui.actionQuit, &QAction::triggered, [this] { q->close(); });
    connections.add(ui.actionAbout, &QAction::triggered, [this] {
        FormFit::fitToScreen(information->dialog());
        information->dialog()->show();
        information->dialog()->raise();
    });
    connections.add(ui.actionDisconnect, &QAction::triggered, [this] { use(nullptr, nullptr); });
    connections.add(ui.actionConnect, &QAction::triggered, [this] {
        const QPointer<OrvCamConfig> window(q);
        use(nullptr, nullptr);
        if (window)
            connectPicked();
    });
}

template<class Dialog>
void OrvCamConfigPrivate::addDialog(Dialog *dialog, QPushButton *button, QAction *action)
{
    dialogs.append(dialog);
    addShortcut(dialog, button, int(dialogs.size()));
    connections.add(dialog, &Dialog::closing, [=] { button->setChecked(false); });
    connections.add(button, &QPushButton::toggled, [=](bool checked) {
        if (checked)
            dialog->show();
        else
            dialog->close();
    });
    connections.add(action, &QAction::toggled, [=](bool checked) {
        button->setVisible(checked && action->isVisible());
        layOutButtons();
        if (!checked)
            dialog->close();
    });
}

/// Opens or raises the dialog; its button is disabled when the dialog is not available.
void OrvCamConfigPrivate::addShortcut(QWidget *dialog, QPushButton *button, int number)
{
    const auto keys = QKeySequence::fromString(QStringLiteral("Ctrl+%1").arg(number));
    button->setToolTip(
        QStringLiteral("%1 (%2)").arg(button->text(), keys.toString(QKeySequence::NativeText)));
    connections.add(new QShortcut(keys, button), &QShortcut::activated, [=] {
        button->setChecked(true);
        dialog->raise();
        dialog->activateWindow();
    });
}

/// Null when the user cancels, or when the window is destroyed.
OrvCam::DeviceInfo *OrvCamConfigPrivate::pick()
{
    if (!system)
        system = CameraLibrary::system();
    if (!system) {
        showError(CameraLibrary::isPresent()
                      ? tr("The camera system cannot be started.")
                      : tr("This program has no camera library: OrvCam_GetSystem or "
                           "OrvCam_CreateDevice is missing."));
        return nullptr;
    }

    // The window may have been destroyed, and with it this object and the picker.
    const QPointer<OrvCameraSelectorDialog> picker(new OrvCameraSelectorDialog(system, q));
    picker->setWindowTitle(tr("Select a device"));
    const bool isAccepted = picker->exec() == QDialog::Accepted;
    if (!picker)
        return nullptr;
    OrvCam::DeviceInfo *camera = isAccepted ? picker->selectedCamera() : nullptr;
    delete picker;
    return camera;
}

/// During the opening the user may choose another camera, or the host may set another device. The
/// last one takes effect.
void OrvCamConfigPrivate::connectPicked()
{
    OrvCam::DeviceInfo *const picked = pick();
    if (!picked)
        return;
    const auto other = std::make_shared<OtherFrame>();
    const QPointer<OrvCamConfigOpening> started = newOpening(*picked, other);
    const QString name = cameraText(picked->GetDisplayName());
    started->setReceiver([this, other](OrvCam::Device *opened) {
        opening.clear();
        otherFrame = other;
        use(opened, opened);
    });
    const OrvCamConfigOpening::Result result = started->exec();
    if (started && result.error != OrvCam::Success)
        reportFailure(name, result);
    delete started;
}

/// The opening thread writes to `other` until the device is open.
OrvCamConfigOpening *OrvCamConfigPrivate::newOpening(OrvCam::DeviceInfo &camera,
                                                     const std::shared_ptr<OtherFrame> &other)
{
    delete opening;
    opening = new OrvCamConfigOpening(camera, OrvCam::AccessControl, q);
    opening->setPreparation([other](OrvCam::Device &opened) {
        int32_t error = OrvCam::Success;
        const OrvGenParam::Array *params = opened.GetParamArray(&error);
        if (params && error == OrvCam::Success)
            // First, because it invalidates cached values that depend on the selector.
            other->read(*params);
        OrvCamConfig::prepare(opened);
    });
    return opening;
}

/// Null on failure, which is reported by then.
OrvCam::Device *OrvCamConfigPrivate::open(OrvCam::DeviceInfo &camera)
{
    const QString name = cameraText(camera.GetDisplayName());
    const auto other = std::make_shared<OtherFrame>();
    const QPointer<OrvCamConfigOpening> started = newOpening(camera, other);
    const OrvCamConfigOpening::Result result = started->exec();
    delete started;
    if (result.device)
        otherFrame = other;
    if (!result.device && !result.isCancelled)
        reportFailure(name, result);
    return result.device;
}

void OrvCamConfigPrivate::reportFailure(const QString &camera,
                                        const OrvCamConfigOpening::Result &result)
{
    QString text = tr("The camera %1 cannot be opened!").arg(camera);
    if (!result.reason.isEmpty())
        text += QStringLiteral("\n\n") + result.reason;
    showError(text);
}

void OrvCamConfigPrivate::showError(const QString &text)
{
    auto *box = new QMessageBox(QMessageBox::Critical, QString(), text, QMessageBox::Ok, q);
    box->setTextFormat(Qt::PlainText);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

/// Empty when it cannot be read.
QByteArray OrvCamConfigPrivate::symbolicOf(const OrvGenParam::Enum *param) const
{
    int32_t error = OrvCam::Success;
    const QByteArray value =
        reader.get([&] { return QByteArray(param->GetSymbolicValue(&error)); });
    return error == OrvCam::Success ? value : QByteArray();
}

FeatureReader::Params OrvCamConfigPrivate::shownParams() const
{
    return {frameSelector, width, height, frameTime, exposureTime};
}

void OrvCamConfigPrivate::use(OrvCam::Device *newDevice, OrvCam::Device *created)
{
    delete opening;
    OrvCam::Device *const former = watch.device();
    const bool isOwn = std::exchange(ownDevice, created) == former;
    if (former != newDevice)
        panel->history().clear();
    init(newDevice);
    handOver();
    const QPointer<OrvCamConfig> window(q);
    emit q->deviceChanged(usable());
    if (!former || former == newDevice)
        return;
    if (isOwn)
        former->Release();
    else if (window)
        emit window->deviceGivenUp(former);
}

/// Returns the result of `updateBoth`.
bool OrvCamConfigPrivate::init(OrvCam::Device *newDevice)
{
    forgetParams();
    panel->clear();
    device = newDevice;
    watch.watch(device); // first, so that no event is missed
    if (device) {
        OrvCamConfig::prepare(*device);
        int32_t error = OrvCam::Success;
        array = device->GetParamArray(&error);
        if (error != OrvCam::Success)
            array = nullptr;
    }
    reader.setArray(array);
    if (array)
        getNeededParams();
    int32_t ignored = OrvCam::Success;
    undoActions->setJournal(FeatureJournal::of(array ? array->GetNodeMap(&ignored) : nullptr));
    q->setEnabled(true);
    timer.start(refreshPeriod);
    layOut();
    panel->explain(array);
    dimOldNumbers();
    showTemperature();
    // Moving the selector again would take several blocking transfers.
    if (reader.looksAhead())
        isFrameModeChanged = false;
    const bool isBack = updateBoth();
    updateStatus();
    information->adjust(reader, array);
    return isBack;
}

void OrvCamConfigPrivate::getNeededParams()
{
    frameSelector = array->GetEnum("FrameAB_Selector");
    frameModeParam = array->GetEnum("FrameMode");
    temperature = array->GetInt("CurrentTemperature");
    exposureTime = array->GetInt("CurrentExposureTime");
    frameTime = array->GetInt("CurrentFrameTime");
    width = array->GetInt("Width");
    height = array->GetInt("Height");

    isFrameABSupported = frameSelector;
    selectedFrame = CameraHistory::FrameA;
    frameMode = BothFrames;
    if (frameSelector) {
        readSelectedFrame();
        frameSelector->RegisterEventSink(this);
    }
    if (frameModeParam) {
        readFrameMode();
        frameModeParam->RegisterEventSink(this);
    }
}

void OrvCamConfigPrivate::forgetParams()
{
    if (frameSelector)
        frameSelector->UnregisterEventSink(this);
    if (frameModeParam)
        frameModeParam->UnregisterEventSink(this);
    array = nullptr;
    reader.setArray(nullptr);
    undoActions->setJournal(nullptr);
    frameSelector = nullptr;
    frameModeParam = nullptr;
    temperature = nullptr;
    exposureTime = nullptr;
    frameTime = nullptr;
    width = nullptr;
    height = nullptr;
}

void OrvCamConfigPrivate::layOut()
{
    panel->layOut(isFrameABSupported);
    layOutFrameButton();
}

void OrvCamConfigPrivate::layOutFrameButton()
{
    ui.actionFrame_A_B->setVisible(isFrameABSupported);
    ui.pushBtnFrameAB->setVisible(isFrameABSupported && ui.actionFrame_A_B->isChecked());
    if (!isFrameABSupported)
        ui.pushBtnFrameAB->setChecked(false);
    layOutButtons();
}

/// Closes the gaps between the visible buttons.
void OrvCamConfigPrivate::layOutButtons()
{
    int place = 0;
    for (QPushButton *button : {ui.pushBtnFrameAB, ui.pushBtnTrigger, ui.pushBtnPulse,
                                ui.pushBtnStrobe, ui.pushBtnDataOut, ui.pushBtnColor}) {
        ui.gridLayoutButtons->removeWidget(button);
        button->setIconSize(iconSize());
        if (button->isHidden())
            continue;
        ui.gridLayoutButtons->addWidget(button, place / 3, place % 3);
        ++place;
    }
}

/// The size of the style, or the line height of a large font.
QSize OrvCamConfigPrivate::iconSize() const
{
    const int extent = q->style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, q);
    return QSize(1, 1) * qMax(extent, q->fontMetrics().height());
}

/// Gives each dialog the present device of the window: while a dialog reports an error, a host may
/// set another device.
void OrvCamConfigPrivate::handOver()
{
    for (OrvCamConfigDialog *dialog : dialogs)
        dialog->SetDevice(device);
}

void OrvCamConfigPrivate::end()
{
    delete opening;
    timer.stop();
    forgetParams();
    watch.watch(nullptr);
    device = nullptr;
    panel->clear();
    handOver();
    emit q->deviceChanged(nullptr);
    if (OrvCam::Device *former = std::exchange(ownDevice, nullptr))
        former->Release();
    if (OrvCam::System *former = std::exchange(system, nullptr))
        former->Release();
}

void OrvCamConfigPrivate::refresh()
{
    switch (watch.take()) {
    case DeviceWatch::Disconnected:
        return drop();
    case DeviceWatch::Reconnected:
        return awaitReturned();
    default:
        showTemperature();
        refreshFrames();
    }
}

void OrvCamConfigPrivate::drop()
{
    forgetParams();
    device = nullptr;
    handOver();
    panel->clear();
    updateStatus();
    information->adjust(reader, nullptr);
    emit q->deviceChanged(nullptr);
}

/// The windows are restored after all their values have been read, which may take some time.
void OrvCamConfigPrivate::awaitReturned()
{
    if (device) {
        const QPointer<OrvCamConfig> window(q);
        drop(); // the window has missed the disconnection
        if (!window || device || !watch.device())
            return;
    }
    int32_t error = OrvCam::Success;
    const OrvGenParam::Array *returned = watch.device()->GetParamArray(&error);
    if (!returned || error != OrvCam::Success)
        return; // the camera was unplugged again, which is reported separately
    reader.setArray(returned);
    reader.whenKnown(this, this, FeatureReader::named(*returned, BoundFeatures::all()),
                     [this] { restore(); });
}

void OrvCamConfigPrivate::restore()
{
    device = watch.device();
    handOver();
    if (!init(watch.device()))
        handOver();
    emit q->deviceChanged(usable());
}

void OrvCamConfigPrivate::refreshFrames()
{
    if (!array || SelectorsInUse::isOf(array->GetNodeMap()))
        return;
    if (!isFrameABSupported) {
        reader.whenKnown(this, &ui, shownParams(), [this] { updateFrame(CameraHistory::FrameA); });
        return;
    }
    if (frameMode == BothFrames && std::exchange(isFrameModeChanged, false)) {
        reader.whenKnown(this, &timer, shownParams(), [this] { showBothFrames(); });
        return;
    }
    reader.whenKnown(this, &ui, shownParams(), [this] { refreshFrame(); });
}

void OrvCamConfigPrivate::showBothFrames()
{
    if (frameMode != BothFrames || updateBoth())
        return;
    handOver();
    emit q->deviceChanged(usable());
}

void OrvCamConfigPrivate::refreshFrame()
{
    // The camera's values belong to the selected frame; the other column keeps its numbers.
    const bool isWanted = frameMode == BothFrames ||
                          (frameMode == OnlyFrameA) == (selectedFrame == CameraHistory::FrameA);
    if (isWanted)
        updateFrame(selectedFrame);
}

void OrvCamConfigPrivate::showTemperature()
{
    if (!temperature)
        return;
    reader.whenKnown(this, temperature, {temperature}, [this] {
        panel->showTemperature(FrameNumbers::text(reader, temperature, hasTimedOut));
    });
}

/// A frame that is not output keeps its numbers.
void OrvCamConfigPrivate::dimOldNumbers()
{
    const bool hasMode = array && frameSelector;
    panel->setOld(CameraHistory::FrameA, hasMode && frameMode == OnlyFrameB);
    panel->setOld(CameraHistory::FrameB, hasMode && frameMode == OnlyFrameA);
}

void OrvCamConfigPrivate::updateFrame(Frame frame)
{
    if (!array)
        return;
    const FrameNumbers numbers = FrameNumbers::read(reader, *array);
    hasTimedOut |= numbers.hasTimedOut;
    panel->show(frame, numbers);
}

/// Returns false when the camera does not restore the selection, of which other windows are not
/// notified. A read without an answer is repeated at the next refresh.
bool OrvCamConfigPrivate::updateBoth()
{
    if (SelectorDetour::isUnderWay())
        return true; // the selector is already moved
    hasTimedOut = false;
    const bool isBack = readBoth();
    isFrameModeChanged |= hasTimedOut;
    return isBack;
}

bool OrvCamConfigPrivate::readBoth()
{
    const std::shared_ptr<const OtherFrame> before = std::exchange(otherFrame, nullptr);
    const Frame first = selectedFrame;
    reader.fetchNow(shownParams());
    updateFrame(first);
    if (!frameSelector)
        return true;
    const QByteArray selected = symbolicOf(frameSelector);
    if (selected.isEmpty())
        return true;
    const bool isA = first == CameraHistory::FrameA;
    const Frame second = isA ? CameraHistory::FrameB : CameraHistory::FrameA;
    if (before && before->isBeside(selected)) {
        panel->show(second, before->numbers());
        return true;
    }
    const SelectorDetour detour;
    if (!select(isA ? OtherFrame::frameB : OtherFrame::frameA))
        return true;
    reader.fetchNow(shownParams());
    updateFrame(second);
    return select(selected.constData()) || select(selected.constData());
}

bool OrvCamConfigPrivate::select(const char *frame)
{
    const int32_t error = frameSelector->SetSymbolicValue(frame);
    hasTimedOut |= error == OrvCam::ErrorTimeout;
    return error == OrvCam::Success;
}

void OrvCamConfigPrivate::updateStatus()
{
    QString text = tr("Disconnected");
    QString icon = QStringLiteral(":/icons/res/disconnected.ico");
    if (array) {
        const OrvGenParam::String *model = array->GetString("DeviceModelName");
        int32_t error = OrvCam::Success;
        text = model ? reader.get([&] { return cameraText(model->GetValue(&error)); }) : QString();
        if (!model || error != OrvCam::Success)
            text = tr("Unknown");
        icon = QStringLiteral(":/icons/res/connected.ico");
    }
    statusText->setText(text);
    statusText->setToolTip(array ? literally(text) : QString());
    statusIcon->setFixedSize(iconSize());
    statusIcon->setPixmap(QPixmap(icon));
}

void OrvCamConfigPrivate::readSelectedFrame()
{
    selectedFrame = symbolicOf(frameSelector) == OtherFrame::frameA ? CameraHistory::FrameA
                                                                    : CameraHistory::FrameB;
}

void OrvCamConfigPrivate::readFrameMode()
{
    const QByteArray mode = symbolicOf(frameModeParam);
    frameMode = mode == OtherFrame::frameA   ? OnlyFrameA
                : mode == OtherFrame::frameB ? OnlyFrameB
                                             : BothFrames;
}

void OrvCamConfigPrivate::OnParameterUpdate(OrvGenParam::Param *param)
{
    if (device)
        reader.whenKnown(this, param, {param}, [=] { update(param); });
}

void OrvCamConfigPrivate::update(const OrvGenParam::Param *param)
{
    if (!reader.get([=] { return param->IsReadable(); }))
        return;
    if (param == frameSelector) {
        readSelectedFrame();
    } else if (param == frameModeParam) {
        isFrameModeChanged = true;
        readFrameMode();
        dimOldNumbers();
    }
}

void OrvCamConfigPrivate::closeDialogs()
{
    for (OrvCamConfigDialog *dialog : dialogs)
        dialog->close();
    information->dialog()->close();
    panel->history().closeWindows();
}

OrvCamConfig::OrvCamConfig(OrvCam::Device *device, QWidget *parent, Qt::WindowFlags flags)
    : QMainWindow(parent, flags), d(new OrvCamConfigPrivate(this))
{
    d->begin(device, true);
}

OrvCamConfig::OrvCamConfig(WithoutPicker, OrvCam::Device *device, QWidget *parent,
                           Qt::WindowFlags flags)
    : QMainWindow(parent, flags), d(new OrvCamConfigPrivate(this))
{
    d->begin(device, false);
}

OrvCamConfig::~OrvCamConfig()
{
    d->end();
}

void OrvCamConfig::SetDevice(OrvCam::Device *device)
{
    d->use(device, nullptr);
}

void OrvCamConfig::prepare(OrvCam::Device &device)
{
    int32_t error = OrvCam::Success;
    const OrvGenParam::Array *array = device.GetParamArray(&error);
    if (array && error == OrvCam::Success)
        FeatureReader::fetchNow(*array, BoundFeatures::all());
}

OrvCam::Device *OrvCamConfig::device() const
{
    return d->usable();
}

void OrvCamConfig::showEvent(QShowEvent *event)
{
    d->showTemperature();
    QMainWindow::showEvent(event);
}

void OrvCamConfig::closeEvent(QCloseEvent *event)
{
    d->cancelOpening();
    d->closeDialogs();
    QMainWindow::closeEvent(event);
}

} // namespace OrvGui
