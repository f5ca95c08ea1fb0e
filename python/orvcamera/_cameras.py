# SPDX-License-Identifier: MIT
"""Finding and opening cameras."""
import atexit
import ctypes
import os
from ctypes import c_int32
from typing import Any, List, Optional, Set, Union

from . import _native
from ._features import NodeMap
from ._native import Error, cam, decode

MONITOR, CONTROL = 1, 2

_system: Optional[int] = None
_generation = 0  # of the system; cameras of earlier generations are invalid
_open_cameras: "Set[Camera]" = set()


def _get_system() -> int:
    global _system
    if _system is None:
        _system = cam.OrvCam_GetSystem()
        if not _system:
            _system = None
            raise Error(Error.FAILED, "The camera system cannot be made")
    return _system


def shut_down() -> None:
    """Closes all cameras with their windows, and the camera system. Called at exit."""
    global _system, _generation
    for camera in list(_open_cameras):
        camera.close()
    if _system is not None:
        cam.OrvCam_ReleaseSystem(_system)
        _system = None
        _generation += 1


atexit.register(shut_down)


class CameraInfo:
    """A camera that was found. Its texts date from that search; missing texts are empty.

    Attributes: ``id`` (unique: MAC address, or vendor and serial number),
    ``display_name``, ``vendor``, ``model``, ``serial``, ``version``, ``user_name``, ``interface``,
    and ``access`` (1 free, 2 read-only, 3 in use, 1001 address outside the subnet, else unknown).
    """

    def __init__(self, handle: int) -> None:
        self._handle = handle
        self._generation = _generation

        def text(name: str) -> str:
            return decode(getattr(cam, "OrvCam_Get" + name)(handle))
        self.id = text("Id")
        self.display_name = text("DisplayName")
        self.vendor = text("Vendor")
        self.model = text("Model")
        self.serial = text("Serial")
        self.version = text("VersionText")
        self.user_name = text("UserName")
        self.interface = text("InterfaceDescription")
        self.access: int = cam.OrvCam_GetAccessState(handle)

    def __repr__(self) -> str:
        return f"<orvcamera.CameraInfo {self.display_name} {self.id}>"


def cameras(timeout: float = 0.2) -> List[CameraInfo]:
    """Searches for cameras for ``timeout`` seconds. Interfaces that fail are skipped."""
    system = _get_system()
    cam.OrvCam_RefreshDevices(system, max(0, min(int(timeout * 1000), 2**32 - 1)))
    count = cam.OrvCam_GetDeviceCount(system)
    handles = (cam.OrvCam_GetDeviceInfo(system, index) for index in range(count))
    return [CameraInfo(handle) for handle in handles if handle]


def simulated() -> List[CameraInfo]:
    """Switches to simulated cameras, which use no network, and returns them.

    Raises ``RuntimeError`` while a camera is open. Cameras found earlier become invalid.
    """
    if _open_cameras:
        raise RuntimeError("close the cameras first")
    shut_down()
    os.environ["ORVCAM_SIMULATION"] = "1"
    return cameras()


def _find(name: Optional[str]) -> CameraInfo:
    found = cameras()
    for info in found:
        if name is None and info.access == 1:
            return info
        if name and name in (info.id, info.serial, info.user_name, info.display_name):
            return info
    raise Error(Error.GONE, f"No camera {name!r} was found" if name else "No free camera was found")


class Camera(NodeMap):
    """An open camera: a mapping of its features by name.

    ``camera`` is a ``CameraInfo``, or the id, serial number, user name or display name of a camera
    to search for; the default is the first free camera. With ``control=False`` the camera can only
    be read, even while another program has control. Raises ``Error``.

    It stays open until ``close``, the end of its ``with`` block or the end of the program. All
    methods must be called on one thread.
    """

    def __init__(self, camera: Union[CameraInfo, str, None] = None, control: bool = True) -> None:
        super().__init__()
        self._device: Optional[int] = None
        self.info = camera if isinstance(camera, CameraInfo) else _find(camera)
        if self.info._generation != _generation:
            raise Error(Error.GONE, "The camera was found by a system that has ended")
        error = c_int32(0)
        device = cam.OrvCam_CreateDevice(self.info._handle, ctypes.byref(error),
                                         CONTROL if control else MONITOR)
        if not device:
            raise Error(error.value)
        array = cam.OrvCam_GetParamArray(device, ctypes.byref(error))
        self._map = cam.OrvGenParam_GetNodeMap(array, ctypes.byref(error)) if array else None
        if not self._map:
            cam.OrvCam_ReleaseDevice(device)
            raise Error(error.value)
        self._device = device
        _open_cameras.add(self)

    @property
    def is_open(self) -> bool:
        return self._device is not None

    @property
    def connected(self) -> bool:
        """False after ``close``, and while the camera is unplugged."""
        return bool(self._device and cam.OrvCam_GetParamArray(self._device, None))

    def close(self) -> None:
        """Closes the camera, its windows and callbacks. A second call does nothing."""
        device, self._device = self._device, None
        if device:
            self._end_uses()
            cam.OrvCam_ReleaseDevice(device)
            _open_cameras.discard(self)

    def show(self, window: str = "config", title: str = "", wait: bool = True,
             parent: int = 0) -> Any:
        """Opens a window: "config" (the configuration window), "tree" (all features) or "browser"
        (the same with a search). See ``NodeMap.show``."""
        return super().show(window, title or self.info.display_name, wait, parent)

    def __repr__(self) -> str:
        return f"<orvcamera.Camera {self.info.display_name}>"


def select_camera(title: str = "", parent: int = 0) -> Optional[CameraInfo]:
    """Lets the user pick a camera in a dialog; returns None if the user cancels. ``parent`` is the
    native id of the dialog's parent window."""
    text = _native.encode(title)
    _native.need_application()
    handle = _native.gui.SelectCameraA(_get_system(), text, parent)
    return CameraInfo(handle) if handle else None


def process_events(seconds: float = 0.0) -> int:
    """Processes events for ``seconds``; returns the number of open windows.

    Changes by the camera itself are noticed only during this call. Needs no display.
    """
    milliseconds = max(0, min(int(seconds * 1000), 2**31 - 1))
    if _native.has_application:
        return int(_native.gui.OrvCameraGuiApi_ProcessEvents(milliseconds))
    cam.OrvCam_ProcessEvents(milliseconds)
    return 0


def set_language(language: Optional[str]) -> None:
    """Sets the language of windows opened later ("de", "ja", "en"; None for the locale's).

    Needs a display. Raises ``ValueError`` for a language without a translation.
    """
    code = None if language is None else _native.encode(language)
    _native.need_application()
    if not _native.gui.OrvCameraGuiApi_SetLanguage(code):
        raise ValueError(f"there is no translation to {language!r}")
