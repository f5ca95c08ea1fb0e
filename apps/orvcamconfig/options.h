// SPDX-License-Identifier: MIT
#pragma once

#include "action.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

/// The options of the command line.
struct Options
{
    Q_DECLARE_TR_FUNCTIONS(Options)

public:
    enum class Window { Tree, Picker, Main };

    Window window = Window::Tree; ///< the first to be shown
    QString dialog; ///< to be opened with the main window: its name in the option; empty for none
    bool simulate = false;
    bool listCameras = false;
    bool listFeatures = false;
    QString
        camera; ///< identifier, serial number or name; in the tree, empty for the first usable one
    QString description;   ///< file name; empty for a camera
    QString screenshot;    ///< file name; empty for none
    Actions actions;       ///< to be carried out without a window
    bool json = false;     ///< the results of the actions as JSON
    bool anyModel = false; ///< for settings files
    int visibility = 0;    ///< 0 Basic, 1 Expert, 2 Guru
    bool isVisibilityGiven = false;

    /// Reads the arguments, the program's name first. Answers "--help" and "--version" and ends
    /// the program. For anything that makes no sense, `error` is one line and the result is of no
    /// use.
    static Options fromArguments(const QStringList &arguments, QString *error);
};
