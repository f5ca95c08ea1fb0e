// SPDX-License-Identifier: MIT
#include "featurelist.h"
#include "featuresource.h"
#include "options.h"
#include "translation.h"

#include <orvgenparamtreeview.h>

#include <QApplication>
#include <QTemporaryDir>
#include <QTextStream>
#include <QTimer>
#include <QTreeView>

#include <cstring>
#include <memory>

namespace {

enum ExitStatus { Success = 0, Failure = 1, WrongUsage = 2 };

int fail(ExitStatus status, const QString &message)
{
    QTextStream(stderr) << "orvcamconfig: " << message << '\n';
    return status;
}

bool isGiven(int argc, char **argv, const char *option)
{
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], option) == 0)
            return true;
    }
    return false;
}

/// Text needs no display, nor the session that Qt would miss with a complaint.
std::unique_ptr<QTemporaryDir> goWithoutDisplay()
{
    std::unique_ptr<QTemporaryDir> runtimeFolder;
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (!qEnvironmentVariableIsSet("XDG_RUNTIME_DIR")) {
        runtimeFolder = std::make_unique<QTemporaryDir>();
        qputenv("XDG_RUNTIME_DIR", runtimeFolder->path().toLocal8Bit());
    }
    return runtimeFolder;
}

int printFeatures(const OrvGui::OrvGenParamTreeView &view)
{
    QTextStream out(stdout);
    out.setCodec("UTF-8");
    printFeatures(*view.treeView()->model(), out);
    out.flush();
    return out.status() == QTextStream::Ok ? Success
                                           : fail(Failure, QObject::tr("The output failed."));
}

/// Shows the window, and saves a picture of it as soon as it has been painted.
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

} // namespace

int main(int argc, char **argv)
{
    std::unique_ptr<QTemporaryDir> runtimeFolder;
    const bool isText = isGiven(argc, argv, "--list-features") || isGiven(argc, argv, "--help") ||
                        isGiven(argc, argv, "-h") || isGiven(argc, argv, "--version");
    if (isText)
        runtimeFolder = goWithoutDisplay();

    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("orvcamconfig"));
    QApplication::setApplicationVersion(QStringLiteral(ORV_VERSION));

    translate(application);

    QString error;
    const Options options = Options::fromArguments(QApplication::arguments(), &error);
    if (!error.isEmpty())
        return fail(WrongUsage, error);
    const std::unique_ptr<FeatureSource> source = FeatureSource::open(options, &error);
    if (!source)
        return fail(Failure, error);

    OrvGui::OrvGenParamTreeView view(source->nodeMap(), nullptr);
    view.setVisibility(static_cast<OrvGui::Visibility>(options.visibility));
    if (options.listFeatures)
        return printFeatures(view);

    view.setWindowTitle(source->title());
    view.resize(640, 800);
    view.treeView()->expandToDepth(0);
    if (!options.screenshot.isEmpty())
        return takePicture(view, options.screenshot);
    view.show();
    return QApplication::exec();
}
