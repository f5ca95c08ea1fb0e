// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/GenApi.h>

#include <QCoreApplication>
#include <QStringList>

namespace OrvGui {

/// The user sets: settings that the camera stores in its own memory.
class UserSets
{
    Q_DECLARE_TR_FUNCTIONS(OrvGui::UserSets)

public:
    explicit UserSets(GenApi::INodeMap &map) : m_map(map) {}

    // The features that the camera's description contains; no transfer.
    bool canLoad() const { return has("UserSetLoad"); }
    bool canSave() const { return has("UserSetSave"); }
    bool canStartWith() const { return starter() != nullptr; }
    bool exist() const { return canLoad() || canSave() || canStartWith(); }

    /// The names of all sets, and of those that the camera can start with; no transfer.
    QStringList names() const;
    QStringList startNames() const;

    /// The set that the camera starts with; empty when that is not cached.
    QString knownStart() const;

    // Return an empty text on success, otherwise the reason of the failure. They block for the
    // camera, and may be called on any thread.
    QString load(const QString &name) { return execute("UserSetLoad", name); }
    QString save(const QString &name) { return execute("UserSetSave", name); }
    QString startWith(const QString &name);

private:
    bool has(const char *command) const;
    GenApi::IEnumeration *starter() const;
    GenApi::IEnumeration *enumeration(const char *name) const;
    static QStringList entriesOf(GenApi::IEnumeration *enumeration);
    QString execute(const char *command, const QString &name);

    GenApi::INodeMap &m_map;
};

} // namespace OrvGui
