# SPDX-License-Identifier: MIT
"""The C functions of the two libraries, with their types."""
import ctypes
import os
from ctypes import POINTER, c_char_p, c_double, c_int, c_int32, c_int64, c_size_t, c_uint32, c_void_p
from typing import Any, Dict, List, Optional, Tuple

FOLDER_VARIABLE = "ORVCAMERA_LIBRARIES"

#: If none of them is set, Qt ends the program when the application object is created.
DISPLAY_VARIABLES = ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM")

CHANGED = ctypes.CFUNCTYPE(None, c_void_p, c_void_p)

_TEXT = (c_int32, c_void_p, c_char_p, c_size_t, POINTER(c_size_t))
_NODES = (c_size_t, c_void_p, POINTER(c_void_p), c_size_t)
_REPORT = (c_char_p, c_size_t)

#: Types of result and arguments. Without them ctypes would truncate pointers to 32 bits.
_CAMERA_FUNCTIONS: Dict[str, Tuple[Any, ...]] = {
    "OrvCam_GetSystem": (c_void_p,),
    "OrvCam_ReleaseSystem": (None, c_void_p),
    "OrvCam_RefreshDevices": (c_int32, c_void_p, c_uint32),
    "OrvCam_GetDeviceCount": (c_uint32, c_void_p),
    "OrvCam_GetDeviceInfo": (c_void_p, c_void_p, c_uint32),
    "OrvCam_GetAccessState": (c_int32, c_void_p),
    "OrvCam_CreateDevice": (c_void_p, c_void_p, POINTER(c_int32), c_int32),
    "OrvCam_ReleaseDevice": (None, c_void_p),
    "OrvCam_GetParamArray": (c_void_p, c_void_p, POINTER(c_int32)),
    "OrvCam_GetErrorText": (c_char_p, c_int32),
    "OrvCam_GetLastErrorMessage": (c_char_p,),
    "OrvCam_ProcessEvents": (None, c_uint32),
    "OrvGenParam_GetNodeMap": (c_void_p, c_void_p, POINTER(c_int32)),
    "OrvGenParam_LoadDescription": (c_void_p, c_char_p, c_char_p, c_size_t),
    "OrvGenParam_ReleaseNodeMap": (None, c_void_p),
    "OrvGenParam_FindNode": (c_void_p, c_void_p, c_char_p),
    "OrvGenParam_GetFeatures": _NODES,
    "OrvGenParam_GetCategoryFeatures": _NODES,
    "OrvGenParam_GetEntries": _NODES,
    "OrvGenParam_GetKind": (c_int32, c_void_p),
    "OrvGenParam_GetName": _TEXT,
    "OrvGenParam_GetDisplayName": _TEXT,
    "OrvGenParam_GetToolTip": _TEXT,
    "OrvGenParam_GetDescription": _TEXT,
    "OrvGenParam_GetUnit": _TEXT,
    "OrvGenParam_GetVisibility": (c_int32, c_void_p, POINTER(c_int32)),
    "OrvGenParam_GetAccess": (c_int32, c_void_p, POINTER(c_int32)),
    "OrvGenParam_GetInteger": (c_int32, c_void_p, POINTER(c_int64)),
    "OrvGenParam_SetInteger": (c_int32, c_void_p, c_int64),
    "OrvGenParam_GetIntegerLimits": (c_int32, c_void_p) + (POINTER(c_int64),) * 3,
    "OrvGenParam_GetFloat": (c_int32, c_void_p, POINTER(c_double)),
    "OrvGenParam_SetFloat": (c_int32, c_void_p, c_double),
    "OrvGenParam_GetFloatLimits": (c_int32, c_void_p) + (POINTER(c_double),) * 3,
    "OrvGenParam_GetBoolean": (c_int32, c_void_p, POINTER(c_int32)),
    "OrvGenParam_SetBoolean": (c_int32, c_void_p, c_int32),
    "OrvGenParam_GetSymbolic": _TEXT,
    "OrvGenParam_SetSymbolic": (c_int32, c_void_p, c_char_p),
    "OrvGenParam_GetString": _TEXT,
    "OrvGenParam_SetString": (c_int32, c_void_p, c_char_p),
    "OrvGenParam_GetMaxLength": (c_int32, c_void_p, POINTER(c_int64)),
    "OrvGenParam_GetValueText": _TEXT,
    "OrvGenParam_SetValueText": (c_int32, c_void_p, c_char_p),
    "OrvGenParam_Execute": (c_int32, c_void_p),
    "OrvGenParam_IsDone": (c_int32, c_void_p, POINTER(c_int32)),
    "OrvGenParam_Watch": (c_void_p, c_void_p, CHANGED, c_void_p, POINTER(c_int32)),
    "OrvGenParam_Unwatch": (None, c_void_p),
}
for _name in ("DisplayName", "Vendor", "Model", "Serial", "VersionText", "UserName", "Id",
              "InterfaceDescription"):
    _CAMERA_FUNCTIONS["OrvCam_Get" + _name] = (c_char_p, c_void_p)

_GUI_FUNCTIONS: Dict[str, Tuple[Any, ...]] = {
    "CreateCamConfig": (c_void_p, c_void_p),
    "DestroyCamConfig": (None, c_void_p),
    "CreateGenParamTreeViewForNodemapA": (c_void_p, c_void_p, c_char_p, ctypes.c_ulong),
    "DestroyGenParamTreeView": (None, c_void_p),
    "CreateFeatureBrowserForNodemapA": (c_void_p, c_void_p, c_char_p, ctypes.c_ulong),
    "DestroyFeatureBrowser": (None, c_void_p),
    "SelectCameraA": (c_void_p, c_void_p, c_char_p, ctypes.c_ulong),
    "SaveCameraSettings": (c_int, c_void_p, c_char_p) + _REPORT,
    "LoadCameraSettings": (c_int, c_void_p, c_char_p, c_int) + _REPORT,
    "OrvCameraGuiApi_ProcessEvents": (c_int, c_int),
    "OrvCameraGuiApi_SetLanguage": (c_int, c_char_p),
}
for _kind in ("GenParamTreeView", "FeatureBrowser"):
    _GUI_FUNCTIONS[f"Get{_kind}Visibility"] = (c_int, c_void_p)
    _GUI_FUNCTIONS[f"Set{_kind}Visibility"] = (None, c_void_p, c_int)
    _GUI_FUNCTIONS[f"Save{_kind}State"] = (c_char_p, c_void_p)
    _GUI_FUNCTIONS[f"Load{_kind}State"] = (c_int, c_void_p, c_char_p)


class Library:
    """A library that is loaded when its first function is used."""

    def __init__(self, names: Tuple[str, ...], functions: Dict[str, Tuple[Any, ...]]) -> None:
        self._names = names
        self._functions = functions
        self._loaded: Optional[ctypes.CDLL] = None

    def _load(self) -> ctypes.CDLL:
        folder = os.environ.get(FOLDER_VARIABLE, "")
        for name in self._names[:-1]:
            try:
                return ctypes.CDLL(os.path.join(folder, name))
            except OSError:
                pass
        return ctypes.CDLL(os.path.join(folder, self._names[-1]))

    def __getattr__(self, name: str) -> Any:
        if name not in self._functions:
            raise AttributeError(name)
        if self._loaded is None:
            self._loaded = self._load()
        function: Any = getattr(self._loaded, name)
        function.restype, *function.argtypes = self._functions[name]
        setattr(self, name, function)
        return function


cam = Library(("libOrvCameraApi.so.1",), _CAMERA_FUNCTIONS)
#: There is one library for each version of Qt; this module works with both.
gui = Library(("libOrvCameraGuiApi.so.1", "libOrvCameraGuiApiQt6.so.1"), _GUI_FUNCTIONS)


class Error(Exception):
    """A failure that the camera or the library has reported.

    ``code`` is an error number of orvcameraapi.h (-1 to -11), ``text`` describes
    the failure in English, with the reason if there is one.
    """

    FAILED = -1
    INVALID_ARGUMENT = -2
    NOT_FOUND = -3
    NOT_AVAILABLE = -4
    ACCESS_DENIED = -5
    OUT_OF_RANGE = -6
    TIMEOUT = -7
    BUSY = -8
    GONE = -9
    WRONG_SUBNET = -10
    BAD_DESCRIPTION = -11

    def __init__(self, code: int, text: str = "") -> None:
        self.code = code
        self.text = text or decode(cam.OrvCam_GetErrorText(code))
        super().__init__(f"{self.text} ({code})")


def decode(text: Optional[bytes]) -> str:
    return text.decode("utf-8", "replace") if text else ""


def encode(text: str) -> bytes:
    """Encodes a text for C, where a text ends at the first 0."""
    if "\0" in text:
        raise ValueError("a text must not contain a 0 character")
    return text.encode("utf-8")


def check(code: int) -> None:
    """Raises the error of a function of orvgenparamapi.h."""
    if code != 0:
        raise Error(code, decode(cam.OrvCam_GetLastErrorMessage()))


def ask_text(name: str, handle: int) -> str:
    """The text that the function of that name returns, of any length."""
    function = getattr(cam, name)
    length = c_size_t(0)
    size = 256
    while True:
        buffer = ctypes.create_string_buffer(size)
        check(function(handle, buffer, size, ctypes.byref(length)))
        if length.value < size:
            return decode(buffer.value)
        size = length.value + 1


def ask_integer(name: str, handle: int, kind: Any = c_int32) -> int:
    value = kind(0)
    check(getattr(cam, name)(handle, ctypes.byref(value)))
    return int(value.value)


def ask_float(name: str, handle: int) -> float:
    value = c_double(0)
    check(getattr(cam, name)(handle, ctypes.byref(value)))
    return value.value


def ask_nodes(name: str, handle: int) -> List[int]:
    function = getattr(cam, name)
    count = function(handle, None, 0)
    nodes = (c_void_p * count)()
    return list(nodes[:min(function(handle, nodes, count), count)])


has_application = False


def need_application() -> None:
    """Must be called before functions that create Qt's application object."""
    global has_application
    if not has_application and not any(os.environ.get(name) for name in DISPLAY_VARIABLES):
        raise Error(Error.FAILED, "There is no display")
    has_application = True
