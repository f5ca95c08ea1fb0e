// SPDX-License-Identifier: MIT
#include "options.h"

#include <QCommandLineParser>
#include <QHash>

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

const char *const actionNames[] = {"get", "set", "execute", "save", "load", "compare"};

/// Which of these an argument is, with one hyphen or two; -1 for none.
int actionOf(const QString &argument)
{
    QString name = argument.section(QLatin1Char('='), 0, 0);
    for (int hyphens = 0; hyphens < 2 && name.startsWith(QLatin1Char('-')); ++hyphens)
        name.remove(0, 1);
    for (int kind = Action::Get; kind <= Action::Compare; ++kind) {
        if (argument.startsWith(QLatin1Char('-')) && name == QLatin1String(actionNames[kind]))
            return kind;
    }
    return -1;
}

/// "--get A B" as "--get A --get B", likewise for "--set": the parser does not say where among the
/// options other arguments were.
QStringList withOneValueEach(const QStringList &arguments)
{
    QStringList expanded;
    int list = -1; // the option whose values are being read
    bool hasValue = false;
    for (const QString &argument : arguments) {
        const bool isOption = argument.startsWith(QLatin1Char('-'));
        if (!isOption && list >= 0 && hasValue)
            expanded << QStringLiteral("--%1").arg(QLatin1String(actionNames[list]));
        expanded << argument;
        hasValue = !isOption || argument.contains(QLatin1Char('='));
        if (!isOption)
            continue;
        const int kind = actionOf(argument);
        list = kind == Action::Get || kind == Action::Set ? kind : -1;
    }
    return expanded;
}

/// In the order given. `error` is left alone when all make sense.
Actions actionsOf(const QCommandLineParser &parser, QString *error)
{
    Actions actions;
    QHash<QString, int> seen;
    for (const QString &name : parser.optionNames()) {
        const int kind = actionOf(QStringLiteral("--") + name);
        if (kind < 0)
            continue;
        Action action{static_cast<Action::Kind>(kind), parser.values(name).value(seen[name]++), {}};
        const int sign = int(action.subject.indexOf(QLatin1Char('=')));
        if (kind == Action::Set && sign <= 0)
            *error = Options::tr("'%1' sets nothing: use --set NAME=VALUE.").arg(action.subject);
        if (kind == Action::Set) {
            action.value = action.subject.mid(sign + 1);
            action.subject.truncate(sign);
        }
        if (action.subject.isEmpty() && error->isEmpty())
            *error = Options::tr("The option '--%1' needs a value.").arg(name);
        actions.append(action);
    }
    return actions;
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
    const QCommandLineOption get(
        QStringLiteral("get"),
        tr("Print the values of these features as the tree shows them, one a line: the name, a "
           "tab, the value. This and the following options are carried out in the order given, "
           "without a window."),
        QStringLiteral("NAME..."));
    const QCommandLineOption set(QStringLiteral("set"), tr("Set features to such values."),
                                 QStringLiteral("NAME=VALUE..."));
    const QCommandLineOption execute(QStringLiteral("execute"),
                                     tr("Execute a command, and wait until it is done."),
                                     QStringLiteral("NAME"));
    const QCommandLineOption save(QStringLiteral("save"),
                                  tr("Save the settings of the camera in a file."),
                                  QStringLiteral("FILE"));
    const QCommandLineOption load(
        QStringLiteral("load"),
        tr("Write the settings in a file to the camera, and tell what it refuses."),
        QStringLiteral("FILE"));
    const QCommandLineOption compare(
        QStringLiteral("compare"),
        tr("Print what is not the same, one a line: the feature, the value in the file, the value "
           "in the camera, with tabs between them."),
        QStringLiteral("FILE"));
    const QCommandLineOption json(
        QStringLiteral("json"), tr("Print what these options have to tell as one JSON document."));
    const QCommandLineOption anyModel(QStringLiteral("any-model"),
                                      tr("Load settings of another model, too."));

    QCommandLineParser parser;
    parser.setApplicationDescription(
        tr("Shows and changes the features of a camera, which is picked first.\n"
           "Exit status: 0 success (also when no camera is picked), 1 failure (also when a camera "
           "refuses something, or is not as a file), 2 wrong usage."));
    const QList<QCommandLineOption> own = {simulate,   camera,     xml,  window,  listCameras, list,
                                           visibility, screenshot, get,  set,     execute,     save,
                                           load,       compare,    json, anyModel};
    parser.addOptions(own);
    const QCommandLineOption help(
        {QStringLiteral("h"), QStringLiteral("help"), QStringLiteral("help-all")},
        tr("Print this help and exit."));
    parser.addOption(help);
    const QCommandLineOption version = parser.addVersionOption();
    addOptionsOfQt(parser);

    Options options;
    if (!parser.parse(withOneValueEach(arguments))) {
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
    options.json = parser.isSet(json);
    options.anyModel = parser.isSet(anyModel);
    options.actions = actionsOf(parser, error);
    options.visibility = int(levels.indexOf(parser.value(visibility)));
    options.isVisibilityGiven = parser.isSet(visibility);
    const QString wanted = parser.value(window);
    const bool isToldWhat = options.simulate || parser.isSet(camera) || parser.isSet(xml);
    const bool isTree = parser.isSet(xml) || parser.isSet(screenshot) || options.listFeatures ||
                        !options.actions.isEmpty();
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
        {!options.actions.isEmpty() && (parser.isSet(window) || parser.isSet(screenshot) ||
                                        options.listCameras || options.listFeatures),
         tr("Features are read and written without a window: use --get, --set, --execute, --save, "
            "--load and --compare without --window, --screenshot and the lists.")},
        {!options.actions.isEmpty() && !isToldWhat,
         tr("Say whose features these are: --simulate, --camera ID or --xml FILE.")},
        {options.actions.isEmpty() && options.json,
         tr("There is nothing for --json to print: use it with --get, --set, --execute, --save, "
            "--load or --compare.")},
        {options.anyModel && !parser.isSet(load),
         tr("No settings are loaded: use --any-model with --load.")},
    };
    for (const auto &contradiction : contradictions) {
        if (contradiction.isSo && error->isEmpty())
            *error = contradiction.message;
    }
    return options;
}
