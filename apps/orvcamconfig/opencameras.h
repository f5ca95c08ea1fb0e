// SPDX-License-Identifier: MIT
#pragma once

#include <QDir>
#include <QFileSystemWatcher>
#include <QLockFile>
#include <QObject>

#include <memory>

/// Detects whether the user has cameras open in other processes of this program.
///
/// Each open camera has a locked file in a folder that the processes share. Files of killed
/// processes do not count.
class OpenCameras : public QObject
{
    Q_OBJECT

public:
    /// Creates the folder if it is missing.
    explicit OpenCameras(const QString &folder);

    /// Sets whether the camera of this object is open; initially false.
    void setOpen(bool isOpen);

    bool areSeveral() const;

Q_SIGNALS:
    /// The result of `areSeveral` may have changed.
    void changed();

private:
    const QDir m_folder;
    QFileSystemWatcher m_watcher;
    std::unique_ptr<QLockFile> m_own; ///< null while the camera is not open
};
