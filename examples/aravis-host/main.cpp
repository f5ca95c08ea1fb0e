// SPDX-License-Identifier: MIT
//
// A program that takes images with Aravis and shows the features of the same camera: in a tree, or
// in the configuration window.
//
//   aravis-host [--main] [CAMERA]
//
// CAMERA is an Aravis identifier, as "arv-tool-0.8" lists it; the default is Aravis's own fake
// camera.

// Before Qt, whose keywords are names in GLib.
#include <arv.h>

#include "grabber.h"

#include <OrvCam.h>
#include <orvcamconfig.h>
#include <orvcameraapi-aravis.h>
#include <orvgenparamtreeview.h>

#include <QApplication>
#include <QTextStream>
#include <QTimer>

#include <memory>
#include <stdexcept>

namespace {

std::unique_ptr<QWidget> makeWindow(OrvCam::Device *device, bool isMain)
{
    if (isMain)
        return std::make_unique<OrvGui::OrvCamConfig>(device);
    auto tree = std::make_unique<OrvGui::OrvGenParamTreeView>(device->GetParamArray(), nullptr);
    tree->resize(640, 800);
    return tree;
}

int show(Grabber &grabber, bool isMain)
{
    int32_t error = OrvCam::Success;
    const OrvCam::Released<OrvCam::Device> device(OrvCam_AdoptArvDevice(grabber.device(), &error));
    if (!device)
        throw std::runtime_error("The camera cannot be shown: error " + std::to_string(error));

    const std::unique_ptr<QWidget> window = makeWindow(device.get(), isMain);
    const QString title = QString::fromUtf8(device->GetDeviceInfo()->GetDisplayName());
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, window.get(), [&] {
        window->setWindowTitle(
            QStringLiteral("%1: %2 images").arg(title).arg(grabber.takeImages()));
    });
    timer.start(50);
    window->show();
    return QApplication::exec();
} // the window is destroyed before the device, and both before the camera

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QStringList arguments = QApplication::arguments().mid(1);
    const bool isMain = arguments.removeAll(QStringLiteral("--main")) > 0;
    arv_enable_interface("Fake");
    try {
        Grabber grabber(arguments.value(0, QStringLiteral("Fake_1")).toStdString());
        return show(grabber, isMain);
    } catch (const std::exception &e) {
        QTextStream(stderr) << "aravis-host: " << e.what() << '\n';
        return 1;
    }
}
