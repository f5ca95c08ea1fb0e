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
/// A settings file is text as GenApi's feature persistence has it, which other tools read and
/// write. It has all features that the camera's description calls streamable, for each position
/// of their selectors.
///
/// Everything waits for the camera and may be called on any thread, also on one beside that of the
/// windows; none of it needs an application object or a display. While a call moves selectors,
/// nothing else should write to the camera. It puts them back, also when it fails or is cancelled.
/// No function throws. Texts for the user are in the language of the application.
class ORVCAMERAGUIAPI_EXPORT OrvCameraSettings
{
    Q_DECLARE_TR_FUNCTIONS(OrvGui::OrvCameraSettings)

public:
    /// Told how much has been done, on the calling thread, between two features. Answers false to
    /// cancel. May be empty.
    using Progress = std::function<bool(int done, int total)>;

    /// What was not done, and why. For a selected feature with the selection, such as
    /// "Gain [GainSelector=Red]".
    struct Problem
    {
        QString feature;
        QString value;
        QString reason;
    };

    /// What is not the same. A value is null where there is none.
    struct Difference
    {
        QString feature;
        QString left;  ///< in the (first) file
        QString right; ///< in the camera, or the second file
    };

    struct Result
    {
        /// Why nothing, or not all, was done, as text for the user; empty when it was.
        QString error;
        bool isCancelled = false;
        bool isOfOtherModel = false; ///< the error is that the file is of another model

        int count = 0;             ///< of values that were saved, or that the camera has now
        QVector<Problem> problems; ///< what the camera did not tell, or has refused
        QStringList missing;       ///< what the file has and the camera has not
        QVector<Difference> differences;

        /// Whether all that was to be done is done. Differences are no failure.
        bool isComplete() const
        {
            return error.isEmpty() && !isCancelled && problems.isEmpty() && missing.isEmpty();
        }
    };

    enum Models {
        SameModel, ///< a file of another model is an error
        AnyModel
    };

    /// Writes the file at the end, as a whole or not at all.
    static Result save(GenApi::INodeMap &map, const QString &fileName, Progress progress = {});

    /// Writes the values in the order of the file to the camera; what is refused, again as long as
    /// the camera takes anything more.
    static Result load(GenApi::INodeMap &map, const QString &fileName, Models models = SameModel,
                       Progress progress = {});

    /// Compares a file with a camera. What the camera lacks is `missing`.
    static Result compare(GenApi::INodeMap &map, const QString &fileName, Progress progress = {});

    /// Compares two files.
    static Result compare(const QString &leftFile, const QString &rightFile);

    /// The value of a feature as the feature tree shows it. Null, and a reason, without one.
    static QString value(GenApi::INodeMap &map, const QString &feature, QString *error);

    /// Sets it to such a value. False, and a reason, when that is refused.
    static bool setValue(GenApi::INodeMap &map, const QString &feature, const QString &value,
                         QString *error);

    /// Executes a command, and waits until it is done, for ten seconds at most.
    static bool execute(GenApi::INodeMap &map, const QString &feature, QString *error);
};

} // namespace OrvGui
