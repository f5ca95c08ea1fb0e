// SPDX-License-Identifier: MIT
#pragma once

#include "selector/devicetreemodel.h"

#include <QSet>

/// The device tree for a view, which searches for cameras only when the user requests it.
///
/// A tree view calls `fetchMore` whenever it lays out an expanded row without children, several
/// times over, even after a change of the font. Each search would block it. This model searches
/// once per expansion; the view reports when an interface is collapsed.
class CameraTreeModel final : public DeviceTreeModel
{
    Q_OBJECT

public:
    explicit CameraTreeModel(OrvCam::System *system, QObject *parent = nullptr);

    bool canFetchMore(const QModelIndex &parent) const override;
    void fetchMore(const QModelIndex &parent) override;

    /// The next expansion of the interface searches again.
    void collapsed(const QModelIndex &interface);

    /// Suspends all calls to the camera system while it is busy.
    void setPaused(bool isPaused) { m_isPaused = isPaused; }

private:
    bool m_isPaused = false;
    QSet<void *> m_expanded; ///< the interfaces that were searched since they were collapsed
};
