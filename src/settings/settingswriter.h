// SPDX-License-Identifier: MIT
#pragma once

#include "base/selectorsinuse.h"
#include "settings/selectors.h"

#include <QCoreApplication>

namespace OrvGui {

/// Writes settings to a camera: in their order, and what was refused again as long as anything more
/// is taken. Then looks whether the camera has them all, since many a value depends on those that
/// are written after it; what has changed is written once more.
///
/// Waits for the camera; may be used on any thread. Nothing throws.
class SettingsWriter
{
    Q_DECLARE_TR_FUNCTIONS(OrvGui::SettingsWriter)

public:
    struct Result
    {
        int written = 0; ///< settings that the camera has now
        Settings taken;  ///< in the order in which the camera has taken them
        SettingProblems refused;
        Settings missing;       ///< of features that the camera does not have
        QStringList notPutBack; ///< selectors that are not where they were
        QString error;          ///< why it has ended early, when it has
        bool isCancelled = false;
    };

    explicit SettingsWriter(GenApi::INodeMap &map, SettingsProgress progress = {});

    /// The settings have their selections.
    Result write(const Settings &settings);

private:
    bool goesOn();
    SettingProblems pass(const Settings &settings);
    QString attempt(const Setting &setting);
    QString attempt(GenApi::IValue *feature, const QString &value);
    static bool isThere(GenApi::IValue *feature, const QString &value);
    void noteAway(const QStringList &selectors);
    void check(const Settings &settings);
    SettingProblems differing(const Settings &settings);

    GenApi::INodeMap &m_map;
    const SelectorsInUse m_inUse;
    const SettingsProgress m_progress;
    SelectorMoves m_moves;
    Result m_result;
    int m_timeouts = 0; ///< one after the other
    int m_done = 0;
    int m_total = 0;
};

} // namespace OrvGui
