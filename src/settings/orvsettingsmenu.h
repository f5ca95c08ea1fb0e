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

/// The entries of a menu that save, load and compare the settings of a camera, and use its user
/// sets, with all their dialogs.
///
/// Whatever takes a camera long is done on a thread of its own; a dialog shows how far it is, and
/// cancels. Use the object itself on the GUI thread.
class ORVCAMERAGUIAPI_EXPORT OrvSettingsMenu : public QObject
{
    Q_OBJECT

public:
    /// Dialogs stand in front of the window, whose child this becomes. There is no camera at first.
    explicit OrvSettingsMenu(QWidget *window);
    ~OrvSettingsMenu() override;

    /// Works with the camera of this node map from now on; null for none, which greys the entries.
    /// What is under way is cancelled, its end waited for, and its dialogs are closed: nothing uses
    /// the former node map any more.
    void setNodeMap(GenApi::INodeMap *map);

    /// Inserts the entries, before one of the menu's if it is not null.
    void addTo(QMenu *menu, QAction *before = nullptr);

    /// In the order of the menu. Their object names are actionSaveSettings, actionLoadSettings,
    /// actionPutSettingsBack, actionCompareSettings and actionUserSets.
    QList<QAction *> actions() const;

public Q_SLOTS:
    // What the entries do once the user has chosen a file.
    void save(const QString &fileName);
    void load(const QString &fileName);
    void compare(const QString &fileName);

    /// Writes what the camera had before the last load.
    void putBack();

Q_SIGNALS:
    /// Something is done or has ended, and what there is to say about it is shown.
    void finished();

    /// The camera has taken over a user set: any of its values may be another.
    void valuesReplaced();

private:
    const QScopedPointer<OrvSettingsMenuPrivate> d;
};

} // namespace OrvGui
