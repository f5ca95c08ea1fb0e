// SPDX-License-Identifier: MIT
#pragma once

#include "opencameras.h"

#include <OrvCam.h>
#include <orvcamconfig.h>
#include <orvfeaturebrowser.h>
#include <orvsettingsmenu.h>

#include <QHash>
#include <QObject>

#include <memory>
#include <optional>

class QAction;
class QSettings;

/// The windows of one camera: the configuration window, and the browser of all its features, which
/// always shows the camera of the configuration window and is opened from its "View" menu.
///
/// While the user has several cameras open, each in a process of its own, the titles of all windows
/// contain the camera's name.
///
/// The configuration window's menu has entries for settings files and user sets below "Connect".
///
/// The settings store the positions of the windows, which of them are open, and the expanded
/// categories of the tree. Without a stored position, or with one outside of all screens, the
/// windows open beside each other.
class CameraWindows : public QObject
{
    Q_OBJECT

public:
    /// Takes ownership of the device. The settings must outlive the windows; null for none. Without
    /// a level for the tree, the level of the previous run is used.
    CameraWindows(OrvCam::Released<OrvCam::Device> device, QSettings *settings,
                  std::optional<OrvGui::Visibility> level = {});
    ~CameraWindows() override;

    /// Shows the windows that were open at the end of the previous run, and the configuration
    /// window in any case.
    void show();

    /// Opens a dialog of the configuration window: trigger, pulse, strobe, output, color, frames or
    /// about. Returns null, and a reason, when the camera lacks its features.
    QWidget *openDialog(const QString &name, QString *error);

    OrvGui::OrvCamConfig &configuration() { return m_configuration; }
    OrvGui::OrvFeatureBrowser &tree() { return m_tree; }
    OrvGui::OrvSettingsMenu &settingsMenu() { return *m_settingsMenu; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void showTree(bool isShown);
    void follow(OrvCam::Device *device);
    void addSettingsMenu();
    void nameWindows();
    void restore();
    void save();

    OrvCam::Released<OrvCam::Device>
        m_device; ///< outlives the windows; null when they no longer use it
    QSettings *const m_settings;
    OrvGui::OrvFeatureBrowser m_tree;
    OrvGui::OrvCamConfig m_configuration;
    OrvGui::OrvSettingsMenu *m_settingsMenu; ///< a child of the configuration window
    /// Of the configuration window and its dialogs, without a camera.
    QHash<QWidget *, QString> m_titles;
    QString m_camera;
    std::unique_ptr<OpenCameras> m_openCameras; ///< null without settings
    QAction *m_treeAction;
    bool m_isConfigurationPlaced = false;
    bool m_isTreePlaced = false;
    bool m_isTreeRemembered = false; ///< the tree has its state of the previous run
};
