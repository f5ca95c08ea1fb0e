// SPDX-License-Identifier: MIT
#include "portdevice.h"

#include <arv.h>

G_BEGIN_DECLS

#define ORV_TYPE_PORT_DEVICE (orv_port_device_get_type())
G_DECLARE_FINAL_TYPE(OrvPortDevice, orv_port_device, ORV, PORT_DEVICE, ArvDevice)

struct _OrvPortDevice
{
    ArvDevice parent;
    OrvAravis::RegisterPort *port;
};

G_DEFINE_TYPE(OrvPortDevice, orv_port_device, ARV_TYPE_DEVICE)

G_END_DECLS

static OrvAravis::RegisterPort &portOf(ArvDevice *device)
{
    return *ORV_PORT_DEVICE(device)->port;
}

static void orv_port_device_init(OrvPortDevice *device)
{
    device->port = nullptr;
}

static void orv_port_device_class_init(OrvPortDeviceClass *type)
{
    ArvDeviceClass *deviceClass = ARV_DEVICE_CLASS(type);
    deviceClass->read_memory = [](ArvDevice *device, guint64 address, guint32 size, void *buffer,
                                  GError **error) -> gboolean {
        return portOf(device).read(address, size, buffer, error);
    };
    deviceClass->write_memory = [](ArvDevice *device, guint64 address, guint32 size, void *buffer,
                                   GError **error) -> gboolean {
        return portOf(device).write(address, size, buffer, error);
    };
    deviceClass->read_register = [](ArvDevice *device, guint64 address, guint32 *value,
                                    GError **error) -> gboolean {
        return portOf(device).readRegister(address, value, error);
    };
    deviceClass->write_register = [](ArvDevice *device, guint64 address, guint32 value,
                                     GError **error) -> gboolean {
        return portOf(device).writeRegister(address, value, error);
    };
}

namespace OrvAravis {

ArvDevice *newPortDevice(RegisterPort *port)
{
    auto *device = ORV_PORT_DEVICE(g_object_new(ORV_TYPE_PORT_DEVICE, nullptr));
    device->port = port;
    return ARV_DEVICE(device);
}

} // namespace OrvAravis
