// SPDX-License-Identifier: MIT
#include "options.h"

#include <QCommandLineParser>
#include <QHash>

#include <cstddef>

namespace {

/// Declares Qt's own options, so that the parser accepts them.
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
    // Both may begin with one hyphen or two.
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
}

/// An option of this program.
struct Declaration
{
    const char *name;
    const char *value; ///< the value's name in the help; null for an option without one
    const char *help;
};

const Declaration declarations[] = {
    {"simulate", nullptr,
     QT_TRANSLATE_NOOP("Options", "Use simulated cameras; nothing is sent anywhere.")},
    {"camera", "ID",
     QT_TRANSLATE_NOOP("Options", "Open the camera of this identifier, serial number or name.")},
    {"xml", "FILE",
     QT_TRANSLATE_NOOP(
         "Options", "Show a GenICam description without a camera; its registers live in memory.")},
    {"window", "picker|main|tree|DIALOG",
     QT_TRANSLATE_NOOP(
         "Options",
         "What to show first: the picker, in which the camera named by --camera is selected; the "
         "main window, with the tree beside it; the tree alone; or one of the main window's "
         "dialogs (trigger, pulse, strobe, output, color, frames, about) with the main window. "
         "All but the picker take the first usable camera without --camera. The picker when "
         "neither --simulate nor --camera nor --xml says what to show; the tree for --xml and "
         "--screenshot; otherwise the main window.")},
    {"list-cameras", nullptr,
     QT_TRANSLATE_NOOP(
         "Options",
         "Print one camera a line and exit: the identifier (MAC address, or vendor and serial "
         "number), the name, the IPv4 address if it has one and the access (read-write, "
         "read-only, no-access, subnet-mismatch or unknown), with tabs between them.")},
    {"list-features", nullptr,
     QT_TRANSLATE_NOOP(
         "Options",
         "Print the features as the tree shows them and exit: two blanks of indentation per "
         "level, the name, a tab, the value.")},
    {"visibility", "LEVEL",
     QT_TRANSLATE_NOOP("Options", "The level of detail: basic, expert or guru.")},
    {"screenshot", "FILE",
     QT_TRANSLATE_NOOP("Options", "Save a picture of the first window, or of the dialog "
                                  "that --window names, and exit. Needs no display.")},
    {"get", "NAME...",
     QT_TRANSLATE_NOOP(
         "Options",
         "Print the values of these features as the tree shows them, one a line: the name, a "
         "tab, the value. This and the following options are carried out in the order given, "
         "without a window.")},
    {"set", "NAME=VALUE...", QT_TRANSLATE_NOOP("Options", "Set features to such values.")},
    {"execute", "NAME",
     QT_TRANSLATE_NOOP("Options", "Execute a command, and wait until it is done.")},
    {"save", "FILE", QT_TRANSLATE_NOOP("Options", "Save the settings of the camera in a file.")},
    {"load", "FILE",
     QT_TRANSLATE_NOOP("Options",
                       "Write the settings in a file to the camera, and tell what it refuses.")},
    {"compare", "FILE",
     QT_TRANSLATE_NOOP(
         "Options",
         "Print what is not the same, one a line: the feature, the value in the file, the value "
         "in the camera, with tabs between them.")},
    {"json", nullptr,
     QT_TRANSLATE_NOOP("Options", "Print what these options have to tell as one JSON document.")},
    {"any-model", nullptr, QT_TRANSLATE_NOOP("Options", "Load settings of another model, too.")},
};

const char *const levels[] = {"basic", "expert", "guru"};
const char *const windows[] = {"picker", "main", "tree"};
const char *const dialogs[] = {"trigger", "pulse", "strobe", "output", "color", "frames", "about"};

template<std::size_t count>
QStringList listOf(const char *const (&texts)[count])
{
    QStringList list;
    for (const char *text : texts)
        list << QLatin1String(text);
    return list;
}

const char *const actionNames[] = {"get", "set", "execute", "save", "load", "compare"};

/// The index of the option that an argument names, with one hyphen or two; -1 for none.
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

/// Converts "--get A B" to "--get A --get B", and "--set" likewise: the parser does not report the
/// positions of other arguments among the options.
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

/// In the given order. `error` is unchanged when all are valid.
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

void declare(QCommandLineParser &parser)
{
    parser.setApplicationDescription(
        Options::tr("Shows and changes the features of a camera, which is picked first.\n"
                    "Exit status: 0 success (also when no camera is picked), 1 failure (also when "
                    "a camera refuses something, or is not as a file), 2 wrong usage."));
    for (const Declaration &declaration : declarations)
        parser.addOption({QLatin1String(declaration.name), Options::tr(declaration.help),
                          QLatin1String(declaration.value)});
    parser.addOption({{QStringLiteral("h"), QStringLiteral("help"), QStringLiteral("help-all")},
                      Options::tr("Print this help and exit.")});
    parser.addVersionOption();
    addOptionsOfQt(parser);
}

/// The first option whose required value is missing.
QString optionWithoutValue(const QCommandLineParser &parser)
{
    for (const Declaration &declaration : declarations) {
        const QString name = QLatin1String(declaration.name);
        if (declaration.value && parser.isSet(name) && parser.value(name).isEmpty())
            return name;
    }
    return QString();
}

/// The options from the parsed arguments, which must be consistent.
class CommandLine
{
    Q_DECLARE_TR_FUNCTIONS(Options)

public:
    explicit CommandLine(const QCommandLineParser &parser) : m_parser(parser) {}

    Options options(QString *error) const;
    /// The reason why the options are inconsistent; empty when they are consistent.
    QString contradiction(const Options &options) const;

private:
    bool isSet(const char *name) const { return m_parser.isSet(QLatin1String(name)); }
    QString value(const char *name) const { return m_parser.value(QLatin1String(name)); }
    bool namesCamera() const { return isSet("simulate") || isSet("camera") || isSet("xml"); }
    Options::Window firstWindow(const Options &options) const;

    const QCommandLineParser &m_parser;
};

Options CommandLine::options(QString *error) const
{
    Options options;
    options.simulate = isSet("simulate");
    options.listCameras = isSet("list-cameras");
    options.listFeatures = isSet("list-features");
    options.camera = value("camera");
    options.description = value("xml");
    options.screenshot = value("screenshot");
    options.json = isSet("json");
    options.anyModel = isSet("any-model");
    options.actions = actionsOf(m_parser, error);
    options.isVisibilityGiven = isSet("visibility");
    if (options.isVisibilityGiven)
        options.visibility = int(listOf(levels).indexOf(value("visibility")));
    if (listOf(dialogs).contains(value("window")))
        options.dialog = value("window");
    options.window = firstWindow(options);
    return options;
}

Options::Window CommandLine::firstWindow(const Options &options) const
{
    const QString named = value("window");
    const bool isTree =
        isSet("xml") || isSet("screenshot") || options.listFeatures || !options.actions.isEmpty();
    if (named == QLatin1String("picker") || (named.isEmpty() && !namesCamera()))
        return Options::Window::Picker;
    if (named == QLatin1String("main") || !options.dialog.isEmpty() || (named.isEmpty() && !isTree))
        return Options::Window::Main;
    return Options::Window::Tree;
}

QString CommandLine::contradiction(const Options &options) const
{
    const QString valueless = optionWithoutValue(m_parser);
    const QString stray = m_parser.positionalArguments().value(0);
    const QStringList allWindows = listOf(windows) + listOf(dialogs);
    const bool hasActions = !options.actions.isEmpty();
    const struct
    {
        bool holds;
        QString message;
    } contradictions[] = {
        {!valueless.isEmpty(), tr("The option '--%1' needs a value.").arg(valueless)},
        {!stray.isNull(), tr("There is no option '%1'.").arg(stray)},
        {options.visibility < 0,
         tr("There is no visibility '%1'; use basic, expert or guru.").arg(value("visibility"))},
        {isSet("window") && !allWindows.contains(value("window")),
         tr("There is no window '%1'; use one of: %2.")
             .arg(value("window"), allWindows.join(QStringLiteral(", ")))},
        {options.listCameras && (isSet("camera") || isSet("xml") || isSet("window") ||
                                 options.listFeatures || isSet("screenshot")),
         tr("All cameras are listed: use --list-cameras alone or with --simulate.")},
        {isSet("xml") && (isSet("simulate") || isSet("camera")),
         tr("A description is shown without a camera: use --xml alone.")},
        {isSet("xml") && options.window == Options::Window::Picker,
         tr("A description is shown without a camera: there is nothing to pick.")},
        {isSet("xml") && options.window == Options::Window::Main,
         tr("The main window needs a camera: use --xml alone.")},
        {options.listFeatures && options.window == Options::Window::Main,
         tr("Only the tree can be printed: use --list-features without --window.")},
        {options.listFeatures && options.window == Options::Window::Picker,
         tr("Say whose features to list: --simulate, --camera ID or --xml FILE.")},
        {hasActions && (isSet("window") || isSet("screenshot") || options.listCameras ||
                        options.listFeatures),
         tr("Features are read and written without a window: use --get, --set, --execute, --save, "
            "--load and --compare without --window, --screenshot and the lists.")},
        {hasActions && !namesCamera(),
         tr("Say whose features these are: --simulate, --camera ID or --xml FILE.")},
        {!hasActions && options.json,
         tr("There is nothing for --json to print: use it with --get, --set, --execute, --save, "
            "--load or --compare.")},
        {options.anyModel && !isSet("load"),
         tr("No settings are loaded: use --any-model with --load.")},
    };
    for (const auto &contradiction : contradictions) {
        if (contradiction.holds)
            return contradiction.message;
    }
    return QString();
}

} // namespace

Options Options::fromArguments(const QStringList &arguments, QString *error)
{
    QCommandLineParser parser;
    declare(parser);
    if (!parser.parse(withOneValueEach(arguments))) {
        *error = parser.errorText();
        return Options();
    }
    if (parser.isSet(QStringLiteral("version")))
        parser.showVersion();
    if (parser.isSet(QStringLiteral("help")))
        parser.showHelp();

    const CommandLine commandLine(parser);
    const Options options = commandLine.options(error);
    if (error->isEmpty())
        *error = commandLine.contradiction(options);
    return options;
}
