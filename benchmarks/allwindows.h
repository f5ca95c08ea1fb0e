// SPDX-License-Identifier: MIT
#pragma once

#include <OrvCam.h>
#include <OrvGenParam.h>
#include <cameranetwork.h>
#include <orvcamconfig.h>
#include <orvcamconfigdialog.h>
#include <orvgenparamtreeview.h>

#include <QApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QTreeView>

#include <memory>

/// The main window on a GigE Vision camera in a private network, with all its dialogs and a feature
/// tree open. For programs that run in a network namespace; the program ends if the camera is not
/// found.
class AllWindows
{
public:
    explicit AllWindows(const QString &description) : m_description(description)
    {
        plugIn();
        m_window.reset(pickedWindow());
        QObject::connect(m_window.get(), &OrvGui::OrvCamConfig::deviceChanged,
                         [this](OrvCam::Device *device) { showTree(device); });
        showTree(m_window->device());
        m_window->show();
        m_tree.resize(600, 700);
        m_tree.show();
        m_tree.setVisibility(OrvGui::Guru);
        for (QPushButton *button : m_window->findChildren<QPushButton *>()) {
            if (button->isCheckable())
                button->click();
        }
    }

    void plugIn() { m_camera = m_network.startCamera(QStringLiteral("PLUG"), m_description); }
    void unplug() { m_camera.reset(); }

    OrvGui::OrvCamConfig &window() { return *m_window; }
    OrvGui::OrvGenParamTreeView &tree() { return m_tree; }
    QList<OrvGui::OrvCamConfigDialog *> dialogs() const
    {
        return m_window->findChildren<OrvGui::OrvCamConfigDialog *>();
    }
    QString status() const
    {
        return m_window->findChild<QLabel *>(QStringLiteral("lblStatusText"))->text();
    }

private:
    /// Waits until the window's own picker lists the camera, without a time limit.
    OrvGui::OrvCamConfig *pickedWindow()
    {
        int attempts = 0;
        QTimer user;
        QObject::connect(&user, &QTimer::timeout, [&] {
            auto *picker = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            if (!picker)
                return;
            auto *tree = picker->findChild<QTreeView *>(QStringLiteral("cameraTreeView"));
            auto *buttons = picker->findChild<QDialogButtonBox *>();
            const QModelIndexList found = tree->model()->match(
                tree->model()->index(0, 0), Qt::DisplayRole, QStringLiteral("PLUG"), 1,
                Qt::MatchContains | Qt::MatchRecursive);
            if (!found.isEmpty()) {
                tree->setCurrentIndex(found.first());
                return buttons->button(QDialogButtonBox::Ok)->click();
            }
            if (++attempts > 50)
                qFatal("The camera does not come up");
            for (QAbstractButton *button : buttons->buttons()) {
                if (buttons->buttonRole(button) == QDialogButtonBox::ActionRole)
                    button->click(); // scans again
            }
        });
        user.start(100);
        auto *window = new OrvGui::OrvCamConfig(nullptr);
        if (!window->device())
            qFatal("The camera cannot be opened");
        return window;
    }

    void showTree(OrvCam::Device *device)
    {
        if (device)
            m_tree.setParams(device->GetParamArray());
        else
            m_tree.clearParams();
    }

    const QString m_description;
    CameraNetwork m_network{QStringLiteral("orv0"), QStringLiteral("10.1.0.1/24"),
                            QStringLiteral("10.1.0.2/24")};
    CameraNetwork::Process m_camera;
    OrvGui::OrvGenParamTreeView m_tree;
    std::unique_ptr<OrvGui::OrvCamConfig> m_window;
};
