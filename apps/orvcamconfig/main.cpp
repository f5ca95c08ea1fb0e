// SPDX-License-Identifier: MIT
#include "actions.h"
#include "cameras.h"
#include "camerawindows.h"
#include "featurelist.h"
#include "featuresource.h"
#include "options.h"
#include "placing.h"
#include "translation.h"
#include "windowsystem.h"

#include <base/cameratext.h>
#include <orvcameraguiapi_version.h>
#include <orvcameraselectordialog.h>
#include <orvfeaturebrowser.h>
#include <orvgenparamtreeview.h>

#include <QApplication>
#include <QFile>
#include <QMessageBox>
#include <QSettings>
#include <QTextStream>
#include <QTimer>
#include <QTreeView>

#include <memory>
#include <optional>

namespace {

enum ExitStatus { Success = 0, Failure = 1, WrongUsage = 2 };

int fail(ExitStatus status, const QString &message)
{
    QTextStream(stderr) << "orvcamconfig: " << message << '\n';
    return status;
}

/// Handles the help and version options, and exits. Needs no display.
Options readOptions(int argc, char **argv, QString *error, QString *complaint)
{
    QCoreApplication application(argc, argv);
    translate(application);
    *complaint = QObject::tr("No window can be shown: %1");
    return Options::fromArguments(QCoreApplication::arguments(), error);
}

WindowSystem::Need displayFor(const Options &options)
{
    if (options.listFeatures || options.listCameras || !options.actions.isEmpty())
        return WindowSystem::Need::Text;
    return options.screenshot.isEmpty() ? WindowSystem::Need::Windows : WindowSystem::Need::Picture;
}

/// Calls `print` with a stream to the standard output, in UTF-8.
template<typename Print>
int printText(Print print)
{
    QString text;
    QTextStream out(&text);
    print(out);
    out.flush();
    const QByteArray bytes = text.toUtf8();
    QFile file;
    const bool isPrinted = file.open(stdout, QIODevice::WriteOnly) &&
                           file.write(bytes) == bytes.size() && file.flush();
    return isPrinted ? Success : fail(Failure, QObject::tr("The output failed."));
}

/// Shows the window, and saves a screenshot when it has been painted.
int takePicture(QWidget &window, const QString &fileName)
{
    window.show();
    bool saved = false;
    QTimer::singleShot(500, &window, [&] {
        saved = window.grab().save(fileName);
        QApplication::quit();
    });
    QApplication::exec();
    return saved ? Success
                 : fail(Failure, QObject::tr("The picture '%1' cannot be written.").arg(fileName));
}

int carryOut(const FeatureSource &source, const Options &options)
{
    QTextStream errors(stderr);
    if (!source.warning().isEmpty())
        errors << "orvcamconfig: " << source.warning() << '\n';
    ActionRunner runner(*source.nodeMap(),
                        options.anyModel ? ActionRunner::AnyModel : ActionRunner::SameModel);
    const bool isGood = runner.run(options.actions);
    for (const QString &complaint : runner.complaints())
        errors << "orvcamconfig: " << complaint << '\n';
    const int printed = printText([&](QTextStream &out) {
        if (options.json)
            out << QString::fromUtf8(runner.json(source.title()));
        else
            out << runner.text();
    });
    return isGood ? printed : Failure;
}

int listFeatures(const FeatureSource &source, const Options &options)
{
    OrvGui::OrvGenParamTreeView view;
    view.setVisibility(static_cast<OrvGui::Visibility>(options.visibility));
    view.setParams(source.nodeMap());
    if (!source.warning().isEmpty())
        QTextStream(stderr) << "orvcamconfig: " << source.warning() << '\n';
    const QAbstractItemModel &model = *view.treeView()->model();
    fetchFeatures(model, source.nodeMap());
    return printText([&](QTextStream &out) { printFeatures(model, out); });
}

int showFeatures(const FeatureSource &source, const Options &options)
{
    if (!options.actions.isEmpty())
        return carryOut(source, options);
    if (options.listFeatures)
        return listFeatures(source, options);
    OrvGui::OrvFeatureBrowser view;
    view.setVisibility(static_cast<OrvGui::Visibility>(options.visibility));
    view.setParams(source.nodeMap());
    view.setWindowTitle(source.title());
    view.resize(Placing::treeSize(&view));
    Placing::center(&view);
    view.treeView()->expandToDepth(0);
    if (!options.screenshot.isEmpty())
        return takePicture(view, options.screenshot);
    view.show();
    return QApplication::exec();
}

int showDescription(const Options &options)
{
    QString error;
    const auto source = FeatureSource::openDescription(options.description, &error);
    return source ? showFeatures(*source, options) : fail(Failure, error);
}

/// Shows the configuration window and the tree. A screenshot does not depend on earlier runs.
int configure(OrvCam::Released<OrvCam::Device> device, const Options &options)
{
    const bool isPicture = !options.screenshot.isEmpty();
    QSettings settings;
    std::optional<OrvGui::Visibility> level;
    if (options.isVisibilityGiven)
        level = static_cast<OrvGui::Visibility>(options.visibility);
    CameraWindows windows(std::move(device), isPicture ? nullptr : &settings, level);
    QWidget *first = &windows.configuration();
    if (!isPicture)
        windows.show();
    if (!options.dialog.isEmpty()) {
        QString error;
        first = windows.openDialog(options.dialog, &error);
        if (!first)
            return fail(Failure, error);
    }
    if (isPicture)
        return takePicture(*first, options.screenshot);
    return QApplication::exec();
}

int configureCamera(OrvCam::System &system, const Options &options)
{
    QString error;
    OrvCam::DeviceInfo *camera = findCamera(system, options.camera, &error);
    OrvCam::Released<OrvCam::Device> device = camera ? openDevice(*camera, &error) : nullptr;
    if (device)
        return configure(std::move(device), options);
    return error.isEmpty() ? Success : fail(Failure, error); // empty when the user has cancelled
}

int showCamera(OrvCam::System &system, const Options &options)
{
    QString error;
    OrvCam::DeviceInfo *camera = findCamera(system, options.camera, &error);
    const bool isText = options.listFeatures || !options.actions.isEmpty();
    const auto open = isText ? &FeatureSource::openCameraForText : &FeatureSource::openCamera;
    const auto source = camera ? open(*camera, &error) : nullptr;
    if (source)
        return showFeatures(*source, options);
    return error.isEmpty() ? Success : fail(Failure, error); // empty when the user has cancelled
}

/// False when the picker has no such camera.
bool select(const OrvGui::OrvCameraSelectorDialog &picker, const OrvCam::DeviceInfo &camera)
{
    auto *tree = picker.findChild<QTreeView *>(QStringLiteral("cameraTreeView"));
    const QModelIndexList named = tree->model()->match(tree->model()->index(0, 0), Qt::DisplayRole,
                                                       QString::fromUtf8(camera.GetDisplayName()),
                                                       -1, Qt::MatchExactly | Qt::MatchRecursive);
    for (const QModelIndex &index : named) {
        tree->setCurrentIndex(index);
        if (picker.selectedCamera() == &camera)
            return true;
    }
    return false;
}

/// Runs the picker until a camera can be opened.
int pickCamera(OrvCam::System &system, const Options &options)
{
    QString error;
    const OrvCam::DeviceInfo *selected =
        options.camera.isEmpty() ? nullptr : findCamera(system, options.camera, &error);
    if (!options.camera.isEmpty() && !selected)
        return fail(Failure, error);

    OrvGui::OrvCameraSelectorDialog picker(&system);
    if (selected && !select(picker, *selected))
        return fail(Failure, QObject::tr("The camera '%1' is gone.").arg(options.camera));
    if (!options.screenshot.isEmpty())
        return takePicture(picker, options.screenshot);
    while (picker.exec() == QDialog::Accepted) {
        if (auto device = openDevice(*picker.selectedCamera(), &error))
            return configure(std::move(device), options);
        if (!error.isEmpty())
            QMessageBox::critical(nullptr, QApplication::applicationName(),
                                  OrvGui::literally(error));
    }
    return Success;
}

int listCameras(OrvCam::System &system)
{
    int count = 0;
    const int status = printText([&](QTextStream &out) { count = printCameras(system, out); });
    if (count == 0 && status == Success)
        QTextStream(stderr) << "orvcamconfig: " << QObject::tr("No camera was found.") << '\n';
    return status;
}

int run(const Options &options)
{
    if (!options.description.isEmpty())
        return showDescription(options);

    if (options.simulate)
        qputenv("ORVCAM_SIMULATION", "1");
    const OrvCam::Released<OrvCam::System> system(OrvCam_GetSystem());
    if (!system)
        return fail(Failure, QObject::tr("The camera system cannot be started."));
    if (options.listCameras)
        return listCameras(*system);
    switch (options.window) {
    case Options::Window::Picker:
        return pickCamera(*system, options);
    case Options::Window::Main:
        return configureCamera(*system, options);
    default:
        return showCamera(*system, options);
    }
}

} // namespace

int main(int argc, char **argv)
{
    // Determines the folder of the settings.
    QApplication::setOrganizationName(QStringLiteral("orvcamconfig"));
    QApplication::setApplicationName(QStringLiteral("orvcamconfig"));
    QApplication::setApplicationVersion(QStringLiteral(ORVCAMERAGUIAPI_VERSION_TEXT));

    QString error;
    QString complaint;
    const Options options = readOptions(argc, argv, &error, &complaint);
    if (!error.isEmpty())
        return fail(WrongUsage, error);

    WindowSystem windowSystem(argc, argv, displayFor(options), complaint);
    QApplication::setDesktopFileName(QStringLiteral("orvcamconfig"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/res/orvicon.ico")));
    translate(windowSystem.application());
    return run(options);
}
