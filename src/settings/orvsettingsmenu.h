// SPDX-License-Identifier: MIT
#pragma once

#include "orvcameraguiapi_export.h"

#include <GenApi/INodeMap.h>

#include <QList>
#include <QObject>
#include <QScopedPointer>

class QAction;
class QMenu;
class QWidget;

namespace OrvGui {

class OrvSettingsMenuPrivate;

/// Menu entries that save, load and compare the settings of a camera, and use its user sets, with
/// their dialogs.
///
/// Long operations run on a separate thread; a dialog shows the progress and can cancel them. Use
/// the object itself on the GUI thread.
class ORVCAMERAGUIAPI_EXPORT OrvSettingsMenu : public QObject
{
    Q_OBJECT

public:
    /// The object becomes a child of the window, and its dialogs stay in front of the window. It
    /// has no camera at first.
    explicit OrvSettingsMenu(QWidget *window);
    ~OrvSettingsMenu() override;

    /// Sets the node map of the camera; null for none, which disables the entries. A running
    /// operation is cancelled, and the call waits for its end. Dialogs that would use the camera
    /// are closed, results stay open. The previous node map is not used any more when the call
    /// returns.
    void setNodeMap(GenApi::INodeMap *map);

    /// Adds the entries to the menu, before the given entry if it is not null.
    void addTo(QMenu *menu, QAction *before = nullptr);

    /// The entries in the order of the menu. Their object names are actionSaveSettings,
    /// actionLoadSettings, actionPutSettingsBack, actionCompareSettings and actionUserSets.
    QList<QAction *> actions() const;

public Q_SLOTS:
    // The operations of the entries after the user has chosen a file.
    void save(const QString &fileName);
    void load(const QString &fileName);
    void compare(const QString &fileName);

    /// Restores the settings that the camera had before the last load.
    void putBack();

Q_SIGNALS:
    /// An operation has ended, and its result is shown.
    void finished();

    /// The camera has loaded a user set: any of its values may have changed.
    void valuesReplaced();

private:
    const QScopedPointer<OrvSettingsMenuPrivate> d;
};

} // namespace OrvGui
