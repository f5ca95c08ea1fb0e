// SPDX-License-Identifier: MIT
#pragma once

#include "base/selectorsinuse.h"
#include "settings/settingselectors.h"

#include <QCoreApplication>

namespace OrvGui {

/// Writes settings to a camera in their order. Refused settings are written again as long as the
/// camera accepts further ones. Then all settings are compared with the camera, because a value may
/// depend on values that are written after it; those that differ are written once more.
///
/// Blocks for the camera; may be used on any thread. Throws nothing.
class SettingsWriter
{
    Q_DECLARE_TR_FUNCTIONS(OrvGui::SettingsWriter)

public:
    struct Result
    {
        int written = 0; ///< number of settings that the camera has at the end
        Settings taken;  ///< in the order in which the camera has accepted them
        SettingProblems refused;
        Settings missing;       ///< settings of features that the camera lacks
        QStringList notPutBack; ///< selectors that could not be restored
        QString error;          ///< the reason of an early end, or empty
        bool isCancelled = false;
    };

    explicit SettingsWriter(GenApi::INodeMap &map, SettingsProgress progress = {});

    /// The settings must include their selections.
    Result write(const Settings &settings);

private:
    bool reportProgress();
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
    SettingSelectors m_moves;
    Result m_result;
    int m_timeouts = 0; ///< consecutive ones
    int m_done = 0;
    int m_total = 0;
};

} // namespace OrvGui
