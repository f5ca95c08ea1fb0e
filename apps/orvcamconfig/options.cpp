// SPDX-License-Identifier: MIT
#include "options.h"

#include <QCommandLineParser>

Options Options::fromArguments(const QStringList &arguments, QString *error)
{
    const QStringList levels = {QStringLiteral("basic"), QStringLiteral("expert"),
                                QStringLiteral("guru")};
    const QCommandLineOption simulate(QStringLiteral("simulate"),
                                      tr("Use simulated cameras; nothing is sent anywhere."));
    const QCommandLineOption camera(
        QStringLiteral("camera"), tr("Open the camera of this identifier, serial number or name."),
        QStringLiteral("ID"));
    const QCommandLineOption xml(
        QStringLiteral("xml"),
        tr("Show a GenICam description without a camera; its registers live in memory."),
        QStringLiteral("FILE"));
    const QCommandLineOption list(
        QStringLiteral("list-features"),
        tr("Print the features as the tree shows them and exit: two blanks of indentation per "
           "level, the name, a tab, the value."));
    const QCommandLineOption visibility(QStringLiteral("visibility"),
                                        tr("The level of detail: basic, expert or guru."),
                                        QStringLiteral("LEVEL"), levels.first());
    const QCommandLineOption screenshot(QStringLiteral("screenshot"),
                                        tr("Save a picture of the window and exit."),
                                        QStringLiteral("FILE"));

    QCommandLineParser parser;
    parser.setApplicationDescription(tr("Shows and changes the features of a camera.\n"
                                        "Exit status: 0 success, 1 failure, 2 wrong usage."));
    parser.addOptions({simulate, camera, xml, list, visibility, screenshot});
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();

    Options options;
    if (!parser.parse(arguments)) {
        *error = parser.errorText();
        return options;
    }
    if (parser.isSet(version))
        parser.showVersion();
    if (parser.isSet(help))
        parser.showHelp();

    options.simulate = parser.isSet(simulate);
    options.listFeatures = parser.isSet(list);
    options.camera = parser.value(camera);
    options.description = parser.value(xml);
    options.screenshot = parser.value(screenshot);
    options.visibility = levels.indexOf(parser.value(visibility));

    if (!parser.positionalArguments().isEmpty())
        *error = tr("There is no option '%1'.").arg(parser.positionalArguments().first());
    else if (options.visibility < 0)
        *error = tr("There is no visibility '%1'; use basic, expert or guru.")
                     .arg(parser.value(visibility));
    else if (parser.isSet(xml) && (options.simulate || parser.isSet(camera)))
        *error = tr("A description is shown without a camera: use --xml alone.");
    else if (!parser.isSet(xml) && !options.simulate && !parser.isSet(camera))
        *error = tr("Say what to show: --simulate, --camera ID or --xml FILE.");
    return options;
}
