# SPDX-License-Identifier: MIT
"""Features, which are the parameters of a camera, and the maps that contain them."""
import ctypes
import operator
import os
import time
from ctypes import c_double, c_int32, c_int64, c_void_p
from typing import Any, Callable, Iterator, List, NamedTuple, Optional, Tuple, TypeVar, Union

from . import _native
from ._native import Error, ask_float, ask_integer, ask_nodes, ask_text, cam, check, encode

INTEGER, FLOAT, ENUMERATION, BOOLEAN, COMMAND, STRING, CATEGORY, REGISTER = range(8)

#: What ``Feature.kind`` can be, besides "other".
KINDS = ("integer", "float", "enumeration", "boolean", "command", "string", "category", "register")

NOT_AVAILABLE, WRITE_ONLY, READ_ONLY, READ_WRITE = 1, 2, 3, 4

Value = Union[int, float, bool, str]


class Entry(NamedTuple):
    """An entry of an enumeration. Its attributes date from the call of ``Feature.entries``."""

    name: str  #: the ``Feature.value`` that selects it
    display_name: str  #: for the user
    value: int
    available: bool  #: whether it can be chosen at the moment


class Subscription:
    """A subscription to changes. It ends with ``cancel`` or a ``with`` block."""

    def __init__(self, feature: "Feature", callback: Callable[["Feature"], Any]) -> None:
        self._function = _native.CHANGED(lambda node, data: callback(feature))
        error = c_int32(0)
        self._handle: Optional[int] = cam.OrvGenParam_Watch(feature._handle, self._function, None,
                                                            ctypes.byref(error))
        if not self._handle:
            check(error.value)

    def cancel(self) -> None:
        """Ends the callbacks. May be called in the callback, and repeatedly."""
        handle, self._handle = self._handle, None
        if handle:
            cam.OrvGenParam_Unwatch(handle)

    def __enter__(self) -> "Subscription":
        return self

    def __exit__(self, *_: Any) -> None:
        self.cancel()


class Feature:
    """A parameter, or a category of them. Made by ``camera["Name"]``; valid until it is closed.

    Failures raise ``Error``. Every write waits for the camera, and so does reading a value
    that is not cached.
    """

    def __init__(self, owner: "NodeMap", node: int) -> None:
        self._owner = owner
        self._node = node
        self._kind: int = cam.OrvGenParam_GetKind(self._handle)
        self._name = ask_text("OrvGenParam_GetName", self._handle)

    @property
    def _handle(self) -> int:
        self._owner._check_open()
        return self._node

    @property
    def name(self) -> str:
        return self._name

    @property
    def kind(self) -> str:
        """One of ``KINDS``, or "other"."""
        return KINDS[self._kind] if 0 <= self._kind < len(KINDS) else "other"

    @property
    def display_name(self) -> str:
        """The name for the user."""
        return ask_text("OrvGenParam_GetDisplayName", self._handle)

    @property
    def tool_tip(self) -> str:
        return ask_text("OrvGenParam_GetToolTip", self._handle)

    @property
    def description(self) -> str:
        return ask_text("OrvGenParam_GetDescription", self._handle)

    @property
    def unit(self) -> str:
        """The unit of ``value``, ``min`` and ``max``; empty if there is none."""
        return ask_text("OrvGenParam_GetUnit", self._handle)

    @property
    def visibility(self) -> int:
        """0 basic, 1 expert, 2 guru, 3 invisible."""
        return ask_integer("OrvGenParam_GetVisibility", self._handle)

    def _access(self) -> int:
        try:
            return ask_integer("OrvGenParam_GetAccess", self._handle)
        except Error as error:
            if error.code == Error.GONE:
                return NOT_AVAILABLE
            raise

    @property
    def available(self) -> bool:
        """Whether it can be used at the moment; it may be read-only or write-only."""
        return self._access() > NOT_AVAILABLE

    @property
    def readable(self) -> bool:
        return self._access() in (READ_ONLY, READ_WRITE)

    @property
    def writable(self) -> bool:
        return self._access() in (WRITE_ONLY, READ_WRITE)

    @property
    def value(self) -> Any:
        """An int, float or bool; the name of an entry; a text. Commands and categories have none.

        Setting one of another type raises ``TypeError``; only a float takes any number.
        """
        handle = self._handle
        if self._kind == INTEGER:
            return ask_integer("OrvGenParam_GetInteger", handle, c_int64)
        if self._kind == FLOAT:
            return ask_float("OrvGenParam_GetFloat", handle)
        if self._kind == BOOLEAN:
            return bool(ask_integer("OrvGenParam_GetBoolean", handle))
        if self._kind == ENUMERATION:
            return ask_text("OrvGenParam_GetSymbolic", handle)
        if self._kind == STRING:
            return ask_text("OrvGenParam_GetString", handle)
        if self._kind == REGISTER:
            return self.text
        raise TypeError(f"{self._name} is of the kind {self.kind} and has no value")

    @value.setter
    def value(self, value: Value) -> None:
        handle = self._handle
        if self._kind == INTEGER:
            check(cam.OrvGenParam_SetInteger(handle, self._int64(value)))
        elif self._kind == FLOAT:
            check(cam.OrvGenParam_SetFloat(handle, self._number(value)))
        elif self._kind == BOOLEAN:
            check(cam.OrvGenParam_SetBoolean(handle, self._flag(value)))
        elif self._kind == ENUMERATION:
            check(cam.OrvGenParam_SetSymbolic(handle, self._text(value)))
        elif self._kind == STRING:
            check(cam.OrvGenParam_SetString(handle, self._text(value)))
        elif self._kind == REGISTER:
            check(cam.OrvGenParam_SetValueText(handle, self._text(value)))
        else:
            raise TypeError(f"{self._name} is of the kind {self.kind} and has no value")

    def _int64(self, value: Any) -> int:
        number = operator.index(value)
        if not -2**63 <= number < 2**63:
            raise Error(Error.OUT_OF_RANGE, f"{number} is no 64-bit number for '{self._name}'")
        return number

    def _flag(self, value: Any) -> int:
        return 1 if operator.index(value) else 0

    def _number(self, value: Any) -> float:
        if isinstance(value, (str, bytes)):
            raise TypeError(f"{self._name} takes a number")
        try:
            return float(value)
        except OverflowError:
            raise Error(Error.OUT_OF_RANGE, f"The number for '{self._name}' is too large") from None

    def _text(self, value: Any) -> bytes:
        if not isinstance(value, str):
            raise TypeError(f"{self._name} takes a str")
        return encode(value)

    @property
    def text(self) -> str:
        """The value of any kind as text, in the form of settings files. Commands cannot be set."""
        return ask_text("OrvGenParam_GetValueText", self._handle)

    @text.setter
    def text(self, text: str) -> None:
        check(cam.OrvGenParam_SetValueText(self._handle, self._text(text)))

    def _limits(self) -> Tuple[Any, Any, Any]:
        if self._kind not in (INTEGER, FLOAT):
            raise TypeError(f"{self._name} is of the kind {self.kind} and has no limits")
        kind: Any = c_int64 if self._kind == INTEGER else c_double
        name = "Integer" if self._kind == INTEGER else "Float"
        limits = (kind(0), kind(0), kind(0))
        function = getattr(cam, f"OrvGenParam_Get{name}Limits")
        check(function(self._handle, *(ctypes.byref(limit) for limit in limits)))
        low, high, increment = (limit.value for limit in limits)
        return low, high, increment

    @property
    def min(self) -> Any:
        """The current minimum of an integer or float."""
        return self._limits()[0]

    @property
    def max(self) -> Any:
        return self._limits()[1]

    @property
    def increment(self) -> Any:
        """Values are ``min`` plus a multiple of this; 0.0 for a float without an increment."""
        return self._limits()[2]

    @property
    def max_length(self) -> int:
        """The maximum length of a text, in bytes of UTF-8."""
        return ask_integer("OrvGenParam_GetMaxLength", self._handle, c_int64)

    @property
    def entries(self) -> List[Entry]:
        """All entries of an enumeration, in the order of the camera's description."""
        return [Entry(ask_text("OrvGenParam_GetSymbolic", node),
                      ask_text("OrvGenParam_GetDisplayName", node),
                      ask_integer("OrvGenParam_GetInteger", node, c_int64),
                      ask_integer("OrvGenParam_GetAccess", node) > NOT_AVAILABLE)
                for node in ask_nodes("OrvGenParam_GetEntries", self._handle)]

    @property
    def features(self) -> List["Feature"]:
        """The features and categories in a category."""
        nodes = ask_nodes("OrvGenParam_GetCategoryFeatures", self._handle)
        return [Feature(self._owner, node) for node in nodes]

    def execute(self, timeout: Optional[float] = None) -> None:
        """Executes a command. With a time-out in seconds, waits until the camera has executed it;
        raises ``Error`` with the code ``TIMEOUT`` if that takes longer."""
        check(cam.OrvGenParam_Execute(self._handle))
        if timeout is None:
            return
        end = time.monotonic() + timeout
        while not self.done:
            if time.monotonic() >= end:
                raise Error(Error.TIMEOUT)
            time.sleep(0.01)

    @property
    def done(self) -> bool:
        """Whether the camera has executed a command. Reads from the camera."""
        return bool(ask_integer("OrvGenParam_IsDone", self._handle))

    def on_change(self, callback: Callable[["Feature"], Any]) -> Subscription:
        """Has ``callback(feature)`` called after every change of value, limits or availability.

        The callback runs on the thread that opened the camera, which must also call this method:
        immediately for changes on that thread, and in ``orvcamera.process_events`` for all others,
        including those by the camera itself. Its exceptions go to ``sys.unraisablehook``. It must
        not close the camera or a window.
        """
        return self._owner._keep(Subscription(self, callback))

    def __repr__(self) -> str:
        return f"<orvcamera.Feature {self._name} ({self.kind})>"


M = TypeVar("M", bound="NodeMap")


class NodeMap:
    """Features by name. The base class of ``Camera`` and ``Description``."""

    def __init__(self) -> None:
        self._map: Optional[int] = None
        self._windows: List[Any] = []
        self._kept: List[Subscription] = []

    def _check_open(self) -> int:
        if not self._map:
            raise Error(Error.GONE, "It has been closed")
        return self._map

    def _keep(self, subscription: Subscription) -> Subscription:
        self._kept = [kept for kept in self._kept if kept._handle]
        self._kept.append(subscription)
        return subscription

    def _end_uses(self) -> None:
        for kept in self._kept:
            kept.cancel()
        self._kept = []
        for window in self._windows:
            window.close()
        self._windows = []
        self._map = None

    def close(self) -> None:
        """Closes it with its windows and callbacks. A second call does nothing."""
        raise NotImplementedError

    def __enter__(self: M) -> M:
        self._check_open()
        return self

    def __exit__(self, *_: Any) -> None:
        self.close()

    def get(self, name: str) -> Optional[Feature]:
        """The feature of that name, or None."""
        node = cam.OrvGenParam_FindNode(self._check_open(), encode(name))
        return Feature(self, node) if node else None

    def __getitem__(self, name: str) -> Feature:
        """The feature of that name; raises ``KeyError`` if there is none."""
        feature = self.get(name)
        if feature is None:
            raise KeyError(name)
        return feature

    def __contains__(self, name: object) -> bool:
        return isinstance(name, str) and self.get(name) is not None

    def __iter__(self) -> Iterator[Feature]:
        """All features, in the order of the camera's description, without categories."""
        nodes = ask_nodes("OrvGenParam_GetFeatures", self._check_open())
        return (Feature(self, node) for node in nodes)

    def __len__(self) -> int:
        return int(cam.OrvGenParam_GetFeatures(self._check_open(), None, 0))

    def __bool__(self) -> bool:
        return True

    @property
    def root(self) -> Feature:
        """The category that contains all others."""
        return self["Root"]

    def save(self, path: Union[str, "os.PathLike[str]"]) -> List[str]:
        """Writes all settings to a file. Returns a line for each feature that could not be read."""
        return self._settings("SaveCameraSettings", path)

    def load(self, path: Union[str, "os.PathLike[str]"], any_model: bool = False) -> List[str]:
        """Writes the settings of a file to the camera. Returns a line for each setting
        that was refused or that the camera lacks. Raises ``Error`` for a file of another model,
        unless ``any_model`` is True."""
        return self._settings("LoadCameraSettings", path, 1 if any_model else 0)

    def _settings(self, name: str, path: Any, *options: int) -> List[str]:
        done, partly, other_model = 0, 1, 3
        report = ctypes.create_string_buffer(1 << 20)
        function = getattr(_native.gui, name)
        result = function(self._check_open(), encode(os.fspath(path)), *options, report,
                          len(report))
        text = _native.decode(report.value)
        if result == other_model:
            raise Error(Error.INVALID_ARGUMENT, text or "The file is of another model")
        if result not in (done, partly):
            raise Error(Error.FAILED, text)
        return text.splitlines()

    def show(self, window: str = "tree", title: str = "", wait: bool = True,
             parent: int = 0) -> Any:
        """Opens a window: "tree", "browser" (the tree with a search), and for a camera "config".

        Waits until the user closes it, unless ``wait`` is False: then it returns a ``Window``, which
        works while ``orvcamera.process_events`` runs. ``parent`` is the native id of a window of
        another toolkit that the tree or browser fills.
        """
        from ._windows import Window
        opened = Window(self, window, title, parent)
        self._windows = [kept for kept in self._windows if kept.is_open] + [opened]
        if not wait:
            return opened
        with opened:
            opened.wait()
        return None


class Description(NodeMap):
    """The features of a device description file (XML) without a camera. All values start at 0."""

    def __init__(self, path: Union[str, "os.PathLike[str]"]) -> None:
        super().__init__()
        name = os.fsencode(path)
        if b"\0" in name:
            raise ValueError("a file name must not contain a 0 character")
        reason = ctypes.create_string_buffer(1024)
        self._map = cam.OrvGenParam_LoadDescription(name, reason, len(reason))
        if not self._map:
            raise Error(Error.BAD_DESCRIPTION, _native.decode(reason.value))

    def close(self) -> None:
        handle = self._map
        self._end_uses()
        if handle:
            cam.OrvGenParam_ReleaseNodeMap(handle)
