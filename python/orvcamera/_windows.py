# SPDX-License-Identifier: MIT
"""The windows."""
import operator
from typing import Any, Optional, TypeVar

from ._native import Error, decode, encode, gui, need_application

#: For each window: functions that open and close it, and a part of its state functions' names.
_KINDS = {
    "tree": ("CreateGenParamTreeViewForNodemapA", "DestroyGenParamTreeView", "GenParamTreeView"),
    "browser": ("CreateFeatureBrowserForNodemapA", "DestroyFeatureBrowser", "FeatureBrowser"),
    "config": ("CreateCamConfig", "DestroyCamConfig", ""),
}

W = TypeVar("W", bound="Window")


class Window:
    """An open window of a camera. Closed by ``close``, a ``with`` block, or with its camera."""

    def __init__(self, owner: Any, kind: str, title: str, parent: int) -> None:
        if kind not in _KINDS:
            raise ValueError(f"{kind!r} is none of {', '.join(_KINDS)}")
        create, self._destroy, self._state = _KINDS[kind]
        node_map = owner._check_open()
        title_text = encode(title)
        if kind == "config":
            device = getattr(owner, "_device", None)
            if not device:
                raise ValueError("the configuration window takes a camera")
            need_application()
            self._handle: Optional[int] = gui.CreateCamConfig(device)
        else:
            need_application()
            self._handle = getattr(gui, create)(node_map, title_text, parent)

    @property
    def is_open(self) -> bool:
        """False after ``close``. A window that the user has closed still counts as open."""
        return self._handle is not None

    def wait(self) -> None:
        """Runs until the user has closed all windows of this module."""
        while gui.OrvCameraGuiApi_ProcessEvents(100) > 0:
            pass  # Python handles Ctrl+C between two calls

    def close(self) -> None:
        handle, self._handle = self._handle, None
        if handle:
            getattr(gui, self._destroy)(handle)

    def _open(self) -> int:
        if not self._handle:
            raise Error(Error.GONE, "The window has been closed")
        if not self._state:
            raise TypeError("the configuration window has no state and no visibility")
        return self._handle

    @property
    def state(self) -> str:
        """The expanded categories and the level, as a text to be saved and restored."""
        handle = self._open()
        return decode(getattr(gui, f"Save{self._state}State")(handle))

    @state.setter
    def state(self, state: str) -> None:
        handle = self._open()
        if not getattr(gui, f"Load{self._state}State")(handle, encode(state)):
            raise ValueError("this is no state of such a window")

    @property
    def visibility(self) -> int:
        """The level of the shown features: 0 basic, 1 expert, 2 guru."""
        handle = self._open()
        return int(getattr(gui, f"Get{self._state}Visibility")(handle))

    @visibility.setter
    def visibility(self, visibility: int) -> None:
        handle = self._open()
        if operator.index(visibility) not in (0, 1, 2):
            raise ValueError("the visibility is 0, 1 or 2")
        getattr(gui, f"Set{self._state}Visibility")(handle, visibility)

    def __enter__(self: W) -> W:
        return self

    def __exit__(self, *_: Any) -> None:
        self.close()
