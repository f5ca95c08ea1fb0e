// SPDX-License-Identifier: MIT
#pragma once

#include "selector/devicetreemodel.h"

#include <QSet>

/// The device tree for a view that must not look for cameras more often than the user asks for.
///
/// A tree view asks for more whenever it lays out an expanded row without children, several times
/// over, also when only the font changes. Each time would block it. This model looks for cameras
/// once per expansion; the view reports when an interface is collapsed.
class CameraTreeModel final : public DeviceTreeModel
{
    Q_OBJECT

public:
    explicit CameraTreeModel(OrvCam::System *system, QObject *parent = nullptr);

    bool canFetchMore(const QModelIndex &parent) const override;
    void fetchMore(const QModelIndex &parent) override;

    /// The interface's next expansion counts.
    void collapsed(const QModelIndex &interface);

    /// Lets nothing be asked of the camera system for a while; for when it is busy.
    void setPaused(bool isPaused) { m_isPaused = isPaused; }

private:
    bool m_isPaused = false;
    QSet<void *> m_expanded; ///< the interfaces that were asked since they were collapsed
};
