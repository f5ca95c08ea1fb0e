// SPDX-License-Identifier: MIT
//
// A Qt program with two feature trees side by side, here of two simulated cameras. It saves the
// expanded categories, the column widths and the levels when its window is closed, and restores
// them at the next start.
//
//   qt-host [SETTINGS.ini]
#include "twotrees.h"

#include <OrvCam.h>

#include <QApplication>
#include <QSettings>

#include <memory>
#include <vector>

namespace {

/// The first cameras that can be controlled.
std::vector<OrvCam::Released<OrvCam::Device>> openCameras(OrvCam::System *system, std::size_t count)
{
    std::vector<OrvCam::Released<OrvCam::Device>> devices;
    OrvCam_RefreshDevices(system, 200);
    for (uint32_t i = 0; i < OrvCam_GetDeviceCount(system) && devices.size() < count; ++i) {
        OrvCam::DeviceInfo *info = OrvCam_GetDeviceInfo(system, i);
        if (info->GetAccessState() != OrvCam::AccessReadWrite)
            continue;
        if (auto *device = OrvCam_CreateDevice(info, nullptr, OrvCam::AccessControl))
            devices.emplace_back(device);
    }
    devices.resize(count);
    return devices;
}

OrvGenParam::Array *parametersOf(const OrvCam::Released<OrvCam::Device> &device)
{
    return device ? device->GetParamArray() : nullptr;
}

} // namespace

int main(int argc, char **argv)
{
#if QT_VERSION < 0x060000
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps); // as Qt 6 always does
#endif
    QApplication application(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("OrvCameraGuiApi"));
    QApplication::setApplicationName(QStringLiteral("qt-host"));

    qputenv("ORVCAM_SIMULATION", "1"); // remove this line to use real cameras
    const OrvCam::Released<OrvCam::System> system(OrvCam_GetSystem());
    const std::vector<OrvCam::Released<OrvCam::Device>> cameras = openCameras(system.get(), 2);

    const QStringList arguments = QApplication::arguments();
    std::unique_ptr<QSettings> settings(arguments.size() > 1
                                            ? new QSettings(arguments.at(1), QSettings::IniFormat)
                                            : new QSettings);
    // Declared last: the trees must be destroyed before the cameras.
    TwoTrees window(parametersOf(cameras[0]), parametersOf(cameras[1]), *settings);
    window.setWindowTitle(QApplication::translate("main", "Two cameras"));
    window.show();
    return QApplication::exec();
}
