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

/// The windows of one camera: the configuration window and the browser of all its features, which
/// always shows the camera that the other has, and is opened from its "View" menu.
///
/// While the user has several cameras open, each in a program of its own, all windows have the
/// camera's name in their titles.
///
/// Below "Connect" in the configuration window's menu are the entries for settings files and user
/// sets.
///
/// The places of the windows, which of them are open and what is unfolded in the tree are kept in
/// the settings from one run to the next. Without a place, or with one that is on no screen any
/// more, the windows open beside each other.
class CameraWindows : public QObject
{
    Q_OBJECT

public:
    /// Takes the device over. The settings must outlive the windows; null for none. Without a level
    /// for the tree, it is that of the last run.
    CameraWindows(OrvCam::Released<OrvCam::Device> device, QSettings *settings,
                  std::optional<OrvGui::Visibility> level = {});
    ~CameraWindows() override;

    /// Shows what was open at the end of the last run, the configuration window in any case.
    void show();

    /// Opens a dialog of the configuration window: trigger, pulse, strobe, output, color, frames or
    /// about. Null, and a reason, when the camera has no use for it.
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
    OrvGui::OrvSettingsMenu *m_settingsMenu; ///< a child of that
    QHash<QWidget *, QString> m_titles;      ///< of the configuration's windows, without a camera
    QString m_camera;
    std::unique_ptr<OpenCameras> m_openCameras; ///< null without settings
    QAction *m_treeAction;
    bool m_isConfigurationPlaced = false;
    bool m_isTreePlaced = false;
    bool m_isTreeRemembered = false; ///< it looks as it was left
};
