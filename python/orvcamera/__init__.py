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

``orvcamera.simulated()`` gives cameras to try it with. What fails raises ``orvcamera.Error``.

Nothing but windows takes a display. All calls are made on one thread. The libraries are looked for
where the system has them, or in the folder that the environment variable ORVCAMERA_LIBRARIES names.
"""
from ._cameras import (Camera, CameraInfo, cameras, process_events, select_camera, set_language,
                       shut_down, simulated)
from ._features import KINDS, Description, Entry, Feature, NodeMap, Subscription
from ._native import Error

__all__ = ["Camera", "CameraInfo", "Description", "Entry", "Error", "Feature", "KINDS", "NodeMap",
           "Subscription", "cameras", "process_events", "select_camera", "set_language",
           "shut_down", "simulated"]

for _name in __all__:  # as tracebacks and help() are to call them
    if isinstance(globals()[_name], type):
        globals()[_name].__module__ = __name__
