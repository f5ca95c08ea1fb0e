// SPDX-License-Identifier: MIT
#include "opencameras.h"

#include <QCoreApplication>

OpenCameras::OpenCameras(const QString &folder) : m_folder(folder)
{
    m_folder.mkpath(QStringLiteral("."));
    m_watcher.addPath(m_folder.path());
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &OpenCameras::changed);
}

void OpenCameras::setOpen(bool isOpen)
{
    if (isOpen == (m_own != nullptr))
        return;
    if (!isOpen) {
        m_own.reset();
        return;
    }
    static int number = 0;
    const QString name =
        QStringLiteral("%1-%2").arg(QCoreApplication::applicationPid()).arg(++number);
    m_own = std::make_unique<QLockFile>(m_folder.filePath(name));
    m_own->setStaleLockTime(0);
    m_own->tryLock(0);
}

bool OpenCameras::areSeveral() const
{
    int count = 0;
    for (const QString &name : m_folder.entryList(QDir::Files)) {
        QLockFile lock(m_folder.filePath(name));
        lock.setStaleLockTime(0);
        if (!lock.tryLock(0)) // a lock whose process has ended can be taken
            ++count;
    }
    return count > 1;
}
