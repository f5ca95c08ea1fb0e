// SPDX-License-Identifier: MIT
#include "camerawindows.h"

#include "placing.h"

#include <OrvCam.h>
#include <OrvGenParam.h>
#include <base/cameratext.h>

#include <QAction>
#include <QCloseEvent>
#include <QDialog>
#include <QFileInfo>
#include <QMenu>
#include <QPushButton>
#include <QSettings>
#include <QTreeView>

#include <utility>

namespace {

constexpr char configurationName[] = "configuration";
constexpr char hiddenButtons[] = "configuration/hiddenButtons";
constexpr char treeName[] = "tree";
constexpr char treeIsOpen[] = "tree/open";
constexpr char treeState[] = "tree/state";

QString key(const char *name)
{
    return QString::fromLatin1(name);
}

} // namespace

CameraWindows::CameraWindows(OrvCam::Released<OrvCam::Device> device, QSettings *settings,
                             std::optional<OrvGui::Visibility> level)
    : m_device(std::move(device))
    , m_settings(settings)
    , m_configuration(m_device.get())
    , m_settingsMenu(new OrvGui::OrvSettingsMenu(&m_configuration))
{
    m_tree.setWindowIcon(m_configuration.windowIcon());
    m_tree.resize(Placing::treeSize(&m_tree));
    m_tree.installEventFilter(this);
    m_configuration.installEventFilter(this);
    m_titles.insert(&m_configuration, m_configuration.windowTitle());
    for (QDialog *dialog : m_configuration.findChildren<QDialog *>())
        m_titles.insert(dialog, dialog->windowTitle());
    if (m_settings) {
        const QString folder = QFileInfo(m_settings->fileName()).path();
        m_openCameras = std::make_unique<OpenCameras>(folder + QStringLiteral("/open"));
        connect(m_openCameras.get(), &OpenCameras::changed, this, &CameraWindows::nameWindows);
    }

    auto *view = m_configuration.findChild<QMenu *>(QStringLiteral("menuView"));
    view->addSeparator();
    m_treeAction = view->addAction(tr("Feature Tree"));
    m_treeAction->setObjectName(QStringLiteral("actionFeatureTree"));
    m_treeAction->setCheckable(true);
    connect(m_treeAction, &QAction::toggled, this, &CameraWindows::showTree);

    addSettingsMenu();

    connect(&m_configuration, &OrvGui::OrvCamConfig::deviceChanged, this, &CameraWindows::follow);
    connect(&m_configuration, &OrvGui::OrvCamConfig::deviceGivenUp, this,
            [this] { m_device.reset(); });
    restore();
    if (level)
        m_tree.setVisibility(*level);
    follow(m_configuration.device());
}

CameraWindows::~CameraWindows()
{
    m_configuration.disconnect(this);
    m_settingsMenu->setNodeMap(nullptr);
    m_tree.clearParams(); // the device may belong to the configuration window
}

/// Inserts the entries after "Connect" and "Disconnect".
void CameraWindows::addSettingsMenu()
{
    auto *menu = m_configuration.findChild<QMenu *>(QStringLiteral("menuMenu"));
    const QList<QAction *> entries = menu->actions();
    QAction *last = m_configuration.findChild<QAction *>(QStringLiteral("actionDisconnect"));
    QAction *before = entries.value(int(entries.indexOf(last)) + 1);
    menu->insertSeparator(before);
    m_settingsMenu->addTo(menu, before);
    if (before && !before->isSeparator())
        menu->insertSeparator(before);
    m_tree.menu()->addSeparator();
    m_settingsMenu->addTo(m_tree.menu());
    connect(m_settingsMenu, &OrvGui::OrvSettingsMenu::valuesReplaced, &m_tree,
            [this] { m_tree.treeView()->viewport()->update(); });
}

void CameraWindows::show()
{
    if (!m_isConfigurationPlaced)
        Placing::centerWith(&m_configuration, m_tree.width());
    m_configuration.show();
    const bool isOpen = !m_settings || m_settings->value(key(treeIsOpen), true).toBool();
    m_treeAction->setChecked(isOpen);
}

void CameraWindows::showTree(bool isShown)
{
    if (isShown && !m_isTreePlaced)
        Placing::beside(&m_tree, &m_configuration);
    m_isTreePlaced |= isShown;
    m_tree.setVisible(isShown);
}

QWidget *CameraWindows::openDialog(const QString &name, QString *error)
{
    static const struct
    {
        const char *name, *opener, *dialog;
    } dialogs[] = {
        {"trigger", "pushBtnTrigger", "OrvCamConfigTriggerDialog"},
        {"pulse", "pushBtnPulse", "OrvCamConfigPulseDialog"},
        {"strobe", "pushBtnStrobe", "OrvCamConfigStrobeDialog"},
        {"output", "pushBtnDataOut", "OrvCamConfigOutputDialog"},
        {"color", "pushBtnColor", "OrvCamConfigColorDialog"},
        {"frames", "pushBtnFrameAB", "OrvCamConfigFrameABDialog"},
        {"about", "actionAbout", "OrvCamConfigAboutDialog"},
    };
    for (const auto &entry : dialogs) {
        if (name != QLatin1String(entry.name))
            continue;
        auto *dialog = m_configuration.findChild<QDialog *>(QString::fromLatin1(entry.dialog));
        auto *action = m_configuration.findChild<QAction *>(QString::fromLatin1(entry.opener));
        auto *button = m_configuration.findChild<QPushButton *>(QString::fromLatin1(entry.opener));
        if (action) {
            action->trigger();
        } else if (button->isEnabled() && !button->isHidden()) {
            button->setChecked(true);
        } else {
            *error = tr("The camera has nothing that '%1' could show.").arg(name);
            return nullptr;
        }
        return dialog;
    }
    Q_UNREACHABLE();
    return nullptr;
}

void CameraWindows::follow(OrvCam::Device *device)
{
    m_settingsMenu->setNodeMap(device ? device->GetParamArray()->GetNodeMap() : nullptr);
    if (!device) {
        m_tree.clearParams();
        m_tree.setWindowTitle(tr("Features"));
        m_camera.clear();
        nameWindows();
        return;
    }
    m_tree.setParams(device->GetParamArray());
    if (!std::exchange(m_isTreeRemembered, true))
        m_tree.treeView()->expandToDepth(0);
    m_camera = OrvGui::cameraText(device->GetDeviceInfo()->GetDisplayName());
    m_tree.setWindowTitle(m_camera);
    nameWindows();
}

void CameraWindows::nameWindows()
{
    if (m_openCameras)
        m_openCameras->setOpen(!m_camera.isEmpty());
    const bool isNamed = !m_camera.isEmpty() && m_openCameras && m_openCameras->areSeveral();
    const QString prefix = isNamed ? m_camera + QStringLiteral(" - ") : QString();
    for (auto it = m_titles.begin(); it != m_titles.end(); ++it)
        it.key()->setWindowTitle(prefix + it.value());
}

bool CameraWindows::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Close && watched == &m_configuration) {
        save();
        m_tree.close();
    } else if (event->type() == QEvent::Close && watched == &m_tree) {
        m_treeAction->setChecked(false);
    }
    return QObject::eventFilter(watched, event);
}

void CameraWindows::restore()
{
    if (!m_settings)
        return;
    m_isConfigurationPlaced =
        Placing::restore(&m_configuration, m_settings, key(configurationName));
    m_isTreePlaced = Placing::restore(&m_tree, m_settings, key(treeName));
    m_isTreeRemembered =
        m_tree.restoreState(m_settings->value(key(treeState)).toByteArray().constData());
    for (const QString &name : m_settings->value(key(hiddenButtons)).toStringList()) {
        if (auto *action = m_configuration.findChild<QAction *>(name))
            action->setChecked(false);
    }
}

void CameraWindows::save()
{
    if (!m_settings)
        return;
    QStringList hidden;
    for (const QAction *action :
         m_configuration.findChild<QMenu *>(QStringLiteral("menuView"))->actions()) {
        if (action->isCheckable() && action != m_treeAction && !action->isChecked())
            hidden << action->objectName();
    }
    Placing::save(&m_configuration, m_settings, key(configurationName));
    m_settings->setValue(key(hiddenButtons), hidden);
    if (m_isTreePlaced)
        Placing::save(&m_tree, m_settings, key(treeName));
    m_settings->setValue(key(treeIsOpen), m_treeAction->isChecked());
    m_settings->setValue(key(treeState), QByteArray(m_tree.saveState()));
}
