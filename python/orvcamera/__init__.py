# SPDX-License-Identifier: MIT
"""Machine-vision cameras: their features, settings files and windows.

    import orvcamera

    with orvcamera.Camera() as camera:          # or Camera("serial number")
        camera["ExposureTime"].value = 5000
        print(camera["ExposureTime"].max, camera["ExposureTime"].unit)
        for feature in camera:
            print(feature.name, feature.available)
        camera.save("settings.txt")
        camera.show()                            # the configuration window

``orvcamera.simulated()`` returns simulated cameras to try this with. Failures raise
``orvcamera.Error``.

Only windows need a display. All calls must be made on one thread. The libraries are loaded from the
system's folders, or from the folder in the environment variable ORVCAMERA_LIBRARIES.
"""
from ._cameras import (Camera, CameraInfo, cameras, process_events, select_camera, set_language,
                       shut_down, simulated)
from ._features import KINDS, Description, Entry, Feature, NodeMap, Subscription
from ._native import Error

__all__ = ["Camera", "CameraInfo", "Description", "Entry", "Error", "Feature", "KINDS", "NodeMap",
           "Subscription", "cameras", "process_events", "select_camera", "set_language",
           "shut_down", "simulated"]

for _name in __all__:  # the module name in tracebacks and help()
    if isinstance(globals()[_name], type):
        globals()[_name].__module__ = __name__
