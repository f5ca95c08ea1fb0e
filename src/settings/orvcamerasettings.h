// SPDX-License-Identifier: MIT
#pragma once

#include "orvcameraguiapi_export.h"

#include <GenApi/INodeMap.h>

#include <QCoreApplication>
#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>

namespace OrvGui {

/// Saves the settings of a camera to files, loads and compares them, and reads and writes single
/// features as text.
///
/// A settings file is a text in the format of GenApi's feature persistence, which other tools read
/// and write. It contains all features that the camera's description marks as streamable, for each
/// value of their selectors.
///
/// All functions block while they access the camera. They may be called on any thread, also while
/// another thread runs the windows, and need no application object and no display. While a call
/// moves selectors, do not write to the camera from another place. The call restores the selectors,
/// also when it fails or is cancelled. No function throws. Texts for the user are in the language
/// of the application.
class ORVCAMERAGUIAPI_EXPORT OrvCameraSettings
{
    Q_DECLARE_TR_FUNCTIONS(OrvGui::OrvCameraSettings)

public:
    /// Called between two features, on the calling thread, with the number of features done and
    /// their total. Returns false to cancel. May be empty.
    using Progress = std::function<bool(int done, int total)>;

    /// A value that was not saved or written, and the reason. The name of a feature with a selector
    /// includes the selection, such as "Gain [GainSelector=Red]".
    struct Problem
    {
        QString feature;
        QString value;
        QString reason;
    };

    /// A difference between two sides. A missing value is null.
    struct Difference
    {
        QString feature;
        QString left;  ///< value in the first or only file
        QString right; ///< value in the camera, or in the second file
    };

    struct Result
    {
        /// The reason why the operation failed or is incomplete, as text for the user; empty on
        /// success.
        QString error;
        bool isCancelled = false;
        bool isOfOtherModel = false; ///< the error is caused by the model

        int count = 0;             ///< number of values saved, or present in the camera now
        QVector<Problem> problems; ///< values that could not be read, or were refused
        QStringList missing;       ///< features in the file that the camera lacks
        QVector<Difference> differences;

        /// Whether the operation is complete. Differences do not count as a failure.
        bool isComplete() const
        {
            return error.isEmpty() && !isCancelled && problems.isEmpty() && missing.isEmpty();
        }
    };

    enum Models {
        SameModel, ///< a file of another model is an error
        AnyModel
    };

    /// Saves the settings. The file is written at the end, as a whole or not at all.
    static Result save(GenApi::INodeMap &map, const QString &fileName, Progress progress = {});

    /// Writes the values to the camera in the order of the file. Refused values are written again
    /// as long as the camera accepts further ones.
    static Result load(GenApi::INodeMap &map, const QString &fileName, Models models = SameModel,
                       Progress progress = {});

    /// Compares a file with a camera. `missing` contains the features that the camera lacks.
    static Result compare(GenApi::INodeMap &map, const QString &fileName, Progress progress = {});

    /// Compares two files.
    static Result compare(const QString &leftFile, const QString &rightFile);

    /// Returns the value of a feature as the feature tree shows it; null, and the reason in
    /// `error`, when it has none.
    static QString value(GenApi::INodeMap &map, const QString &feature, QString *error);

    /// Sets a feature to a value in the same format. Returns false, and the reason in `error`, when
    /// the value is refused.
    static bool setValue(GenApi::INodeMap &map, const QString &feature, const QString &value,
                         QString *error);

    /// Executes a command and waits for its completion, for ten seconds at most. Returns false, and
    /// the reason in `error`, on failure.
    static bool execute(GenApi::INodeMap &map, const QString &feature, QString *error);
};

} // namespace OrvGui
