// SPDX-License-Identifier: MIT
#pragma once

#include "base/selectorsinuse.h"
#include "settings/settingselectors.h"
#include "settings/settingsfile.h"

#include <GenApi/GenApi.h>

#include <QCoreApplication>

#include <vector>

namespace OrvGui {

/// Reads settings from a camera. Moves selectors through all their values, and restores them.
///
/// Blocks for the camera; may be used on any thread. Throws nothing.
class SettingsReader
{
    Q_DECLARE_TR_FUNCTIONS(OrvGui::SettingsReader)

public:
    struct Result
    {
        Settings settings;
        SettingProblems omitted; ///< features that could not be read
        QStringList notPutBack;  ///< selectors that could not be restored
        QString error;           ///< if not empty, the other members are meaningless
        bool isCancelled = false;
    };

    explicit SettingsReader(GenApi::INodeMap &map, SettingsProgress progress = {});

    /// All streamable features, as the lines of a file: in the order in which they must be written,
    /// with separate lines for the values of selectors.
    Result readAll();

    /// The camera's values of these settings, in the same order. A setting that cannot be read has
    /// no value.
    Result read(const Settings &wanted);

    /// "Vendor::Model", the name of the camera in files.
    QString device();

    /// Whether a file is of such a camera, or names none.
    bool isSameModel(const QString &device);

private:
    using Features = std::vector<GenApi::IValue *>;

    Features streamable() const;
    bool reportProgress();
    void fetch(const Features &features) const;
    void readSelected(const Features &selectors, size_t depth, const Features &features);
    QString select(const Setting::Selection &selection, SettingSelectors *moves);
    void readAt(const Features &selectors, size_t depth, const Features &features);
    void readOne(GenApi::IValue *feature, Setting setting);
    QString textOf(GenApi::IValue *feature, QString *reason);
    void omit(GenApi::IValue *feature, const QString &reason);
    QString textOf(const char *feature);

    GenApi::INodeMap &m_map;
    const SelectorsInUse m_inUse;
    const SettingsProgress m_progress;
    Result m_result;
    int m_done = 0;
    int m_total = 0;
};

} // namespace OrvGui
