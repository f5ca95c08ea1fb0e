// SPDX-License-Identifier: MIT
#pragma once

#include "base/selectorsinuse.h"
#include "settings/settingselectors.h"
#include "settings/settingsfile.h"

#include <GenApi/GenApi.h>

#include <QCoreApplication>

#include <vector>

namespace OrvGui {

/// Reads settings from a camera. Selectors are moved through all their values and restored.
///
/// Waits for the camera; may be used on any thread. Nothing throws.
class SettingsReader
{
    Q_DECLARE_TR_FUNCTIONS(OrvGui::SettingsReader)

public:
    struct Result
    {
        Settings settings;
        SettingProblems omitted; ///< features that could not be read
        QStringList notPutBack;  ///< selectors that were not restored
        QString error;           ///< not empty when the other members are of no use
        bool isCancelled = false;
    };

    explicit SettingsReader(GenApi::INodeMap &map, SettingsProgress progress = {});

    /// All streamable features, as the lines of a file: in the order in which they are to be
    /// written, the values of selectors in lines of their own.
    Result readAll();

    /// The camera's values of these settings, in the same order. A setting that cannot be read has
    /// no value.
    Result read(const Settings &wanted);

    /// "Vendor::Model", as files name the camera.
    QString device();

    /// Whether a file names such a camera, or none.
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
