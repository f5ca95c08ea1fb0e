// SPDX-License-Identifier: MIT
#pragma once

#include <QDir>
#include <QFileSystemWatcher>
#include <QLockFile>
#include <QObject>

#include <memory>

/// Knows whether the user has cameras open in other programs of this kind, too.
///
/// Each open camera has a locked file in a folder that the programs share. What a program leaves
/// there that was killed does not count.
class OpenCameras : public QObject
{
    Q_OBJECT

public:
    /// The folder is made when it is missing.
    explicit OpenCameras(const QString &folder);

    /// Whether the camera of this object is one of the open ones; not at first.
    void setOpen(bool isOpen);

    bool areSeveral() const;

Q_SIGNALS:
    /// What `areSeveral` answers may have changed.
    void changed();

private:
    const QDir m_folder;
    QFileSystemWatcher m_watcher;
    std::unique_ptr<QLockFile> m_own; ///< null while the camera is not open
};
