// SPDX-License-Identifier: MIT
#pragma once

#include <QPair>
#include <QString>
#include <QVector>

#include <functional>

namespace OrvGui {

/// The value of a feature, as a line of a settings file has it.
struct Setting
{
    /// Names and values of selectors, the outermost first.
    using Selection = QVector<QPair<QString, QString>>;

    QString name;
    Selection selection; ///< empty for the present selection
    QString value;       ///< null when it is not known
    int line = 0;        ///< in the file, from 1; 0 for none

    /// The feature with its selection, such as "Gain [GainSelector=Red]".
    QString label() const
    {
        QString text = name;
        const char *separator = " [";
        for (const auto &selector : selection) {
            text += QLatin1String(separator) + selector.first + QLatin1Char('=') + selector.second;
            separator = ", ";
        }
        return selection.isEmpty() ? text : text + QLatin1Char(']');
    }
};

using Settings = QVector<Setting>;

/// A setting that was not read or written.
struct SettingProblem
{
    Setting setting;
    QString reason; ///< for the user, plain text
};

using SettingProblems = QVector<SettingProblem>;

/// Gets the progress, on the thread of the operation. Returns false to cancel. May be empty.
using SettingsProgress = std::function<bool(int done, int total)>;

} // namespace OrvGui
