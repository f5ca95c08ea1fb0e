// SPDX-License-Identifier: MIT
#pragma once

#include "base/selectorsinuse.h"
#include "settings/settingselectors.h"

#include <QCoreApplication>

namespace OrvGui {

/// Writes settings to a camera in their order. Refused settings are written again as long as the
/// camera accepts further ones. Then all are compared with the camera, because a value may depend
/// on values that are written after it; those that have changed are written once more.
///
/// Waits for the camera; may be used on any thread. Nothing throws.
class SettingsWriter
{
    Q_DECLARE_TR_FUNCTIONS(OrvGui::SettingsWriter)

public:
    struct Result
    {
        int written = 0; ///< number of settings that the camera has now
        Settings taken;  ///< in the order in which the camera has accepted them
        SettingProblems refused;
        Settings missing;       ///< of features that the camera does not have
        QStringList notPutBack; ///< selectors that were not restored
        QString error;          ///< the reason of an early end; otherwise empty
        bool isCancelled = false;
    };

    explicit SettingsWriter(GenApi::INodeMap &map, SettingsProgress progress = {});

    /// The settings have their selections.
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
    int m_timeouts = 0; ///< in succession
    int m_done = 0;
    int m_total = 0;
};

} // namespace OrvGui
