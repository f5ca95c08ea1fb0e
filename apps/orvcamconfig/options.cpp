// SPDX-License-Identifier: MIT
#include "options.h"

#include <QCommandLineParser>

namespace {

/// Has the parser pass over what Qt takes from the command line by itself.
void addOptionsOfQt(QCommandLineParser &parser)
{
    const auto add = [&parser](const char *name, const QString &value) {
        QCommandLineOption option(QString::fromLatin1(name), QString(), value);
        option.setFlags(QCommandLineOption::HiddenFromHelp);
        parser.addOption(option);
    };
    for (const char *name :
         {"dograb", "nograb", "qdebug", "qdevel", "reverse", "testability", "widgetcount"})
        add(name, QString());
    for (const char *name :
         {"display", "geometry", "icon", "name", "platform", "platformpluginpath", "platformtheme",
          "plugin", "qwindowgeometry", "qwindowicon", "qwindowtitle", "session", "style",
          "stylesheet", "title", "visual"})
        add(name, QStringLiteral("VALUE"));
    // With one hyphen or two.
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
}

/// The first option that lacks the value it needs.
QString optionWithoutValue(const QCommandLineParser &parser,
                           const QList<QCommandLineOption> &options)
{
    for (const QCommandLineOption &option : options) {
        const bool needsValue = !option.valueName().isEmpty();
        if (needsValue && parser.isSet(option) && parser.value(option).isEmpty())
            return option.names().first();
    }
    return QString();
}

} // namespace

Options Options::fromArguments(const QStringList &arguments, QString *error)
{
    const QStringList levels = {QStringLiteral("basic"), QStringLiteral("expert"),
                                QStringLiteral("guru")};
    const QStringList windows = {QStringLiteral("picker"), QStringLiteral("main"),
                                 QStringLiteral("tree")};
    const QStringList dialogs = {QStringLiteral("trigger"), QStringLiteral("pulse"),
                                 QStringLiteral("strobe"),  QStringLiteral("output"),
                                 QStringLiteral("color"),   QStringLiteral("frames"),
                                 QStringLiteral("about")};
    const QCommandLineOption simulate(QStringLiteral("simulate"),
                                      tr("Use simulated cameras; nothing is sent anywhere."));
    const QCommandLineOption camera(
        QStringLiteral("camera"), tr("Open the camera of this identifier, serial number or name."),
        QStringLiteral("ID"));
    const QCommandLineOption xml(
        QStringLiteral("xml"),
        tr("Show a GenICam description without a camera; its registers live in memory."),
        QStringLiteral("FILE"));
    const QCommandLineOption window(
        QStringLiteral("window"),
        tr("What to show first: the picker, in which the camera named by --camera is selected; the "
           "main window, with the tree beside it; the tree alone; or one of the main window's "
           "dialogs (trigger, pulse, strobe, output, color, frames, about) with the main window. "
           "All but the picker take the first usable camera without --camera. The picker when "
           "neither --simulate nor --camera nor --xml says what to show; the tree for --xml and "
           "--screenshot; otherwise the main window."),
        QStringLiteral("picker|main|tree|DIALOG"));
    const QCommandLineOption listCameras(
        QStringLiteral("list-cameras"),
        tr("Print one camera a line and exit: the identifier (MAC address, or vendor and serial "
           "number), the name, the IPv4 address if it has one and the access (read-write, "
           "read-only, no-access, subnet-mismatch or unknown), with tabs between them."));
    const QCommandLineOption list(
        QStringLiteral("list-features"),
        tr("Print the features as the tree shows them and exit: two blanks of indentation per "
           "level, the name, a tab, the value."));
    const QCommandLineOption visibility(QStringLiteral("visibility"),
                                        tr("The level of detail: basic, expert or guru."),
                                        QStringLiteral("LEVEL"), levels.first());
    const QCommandLineOption screenshot(QStringLiteral("screenshot"),
                                        tr("Save a picture of the first window, or of the dialog "
                                           "that --window names, and exit. Needs no display."),
                                        QStringLiteral("FILE"));

    QCommandLineParser parser;
    parser.setApplicationDescription(
        tr("Shows and changes the features of a camera, which is picked first.\n"
           "Exit status: 0 success (also when no camera is picked), 1 failure, 2 wrong usage."));
    const QList<QCommandLineOption> own = {simulate,    camera, xml,        window,
                                           listCameras, list,   visibility, screenshot};
    parser.addOptions(own);
    const QCommandLineOption help(
        {QStringLiteral("h"), QStringLiteral("help"), QStringLiteral("help-all")},
        tr("Print this help and exit."));
    parser.addOption(help);
    const QCommandLineOption version = parser.addVersionOption();
    addOptionsOfQt(parser);

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
    options.listCameras = parser.isSet(listCameras);
    options.listFeatures = parser.isSet(list);
    options.camera = parser.value(camera);
    options.description = parser.value(xml);
    options.screenshot = parser.value(screenshot);
    options.visibility = int(levels.indexOf(parser.value(visibility)));
    options.isVisibilityGiven = parser.isSet(visibility);
    const QString wanted = parser.value(window);
    const bool isToldWhat = options.simulate || parser.isSet(camera) || parser.isSet(xml);
    const bool isTree = parser.isSet(xml) || parser.isSet(screenshot) || options.listFeatures;
    if (dialogs.contains(wanted))
        options.dialog = wanted;
    if (wanted == QLatin1String("picker") || (wanted.isEmpty() && !isToldWhat))
        options.window = Window::Picker;
    else if (wanted == QLatin1String("main") || !options.dialog.isEmpty() ||
             (wanted.isEmpty() && !isTree))
        options.window = Window::Main;

    const QString valueless = optionWithoutValue(parser, own);
    const QString stray = parser.positionalArguments().value(0);
    const struct
    {
        bool isSo;
        QString message;
    } contradictions[] = {
        {!valueless.isEmpty(), tr("The option '--%1' needs a value.").arg(valueless)},
        {!stray.isNull(), tr("There is no option '%1'.").arg(stray)},
        {options.visibility < 0, tr("There is no visibility '%1'; use basic, expert or guru.")
                                     .arg(parser.value(visibility))},
        {parser.isSet(window) && !windows.contains(wanted) && !dialogs.contains(wanted),
         tr("There is no window '%1'; use one of: %2.")
             .arg(wanted, (windows + dialogs).join(QStringLiteral(", ")))},
        {options.listCameras &&
             (parser.isSet(camera) || parser.isSet(xml) || parser.isSet(window) ||
              options.listFeatures || parser.isSet(screenshot)),
         tr("All cameras are listed: use --list-cameras alone or with --simulate.")},
        {parser.isSet(xml) && (options.simulate || parser.isSet(camera)),
         tr("A description is shown without a camera: use --xml alone.")},
        {parser.isSet(xml) && options.window == Window::Picker,
         tr("A description is shown without a camera: there is nothing to pick.")},
        {parser.isSet(xml) && options.window == Window::Main,
         tr("The main window needs a camera: use --xml alone.")},
        {options.listFeatures && options.window == Window::Main,
         tr("Only the tree can be printed: use --list-features without --window.")},
        {options.listFeatures && options.window == Window::Picker,
         tr("Say whose features to list: --simulate, --camera ID or --xml FILE.")},
    };
    for (const auto &contradiction : contradictions) {
        if (contradiction.isSo && error->isEmpty())
            *error = contradiction.message;
    }
    return options;
}
