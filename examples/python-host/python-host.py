#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""A program with a Tk window: lets the user pick a camera and shows its features in that window."""
import argparse
import ctypes
import os
import signal
import sys
import tkinter
from ctypes import POINTER, c_char_p, c_int, c_int32, c_ulong, c_void_p, c_wchar_p

ACCESS_CONTROL = 2
EVENTS_MS = 10


def function(library, name, result, *arguments):
    """Without its types ctypes would take a function's pointers for ints of 32 bits."""
    found = getattr(library, name)
    found.restype = result
    found.argtypes = arguments
    return found


def library_of_windows(folder):
    """There is one for each Qt; to this program they are the same."""
    try:
        return ctypes.CDLL(os.path.join(folder, "libOrvCameraGuiApi.so.1"))
    except OSError:
        return ctypes.CDLL(os.path.join(folder, "libOrvCameraGuiApiQt6.so.1"))


class Api:
    """What this program needs of the libraries, in the given folder or where the system looks."""

    def __init__(self, folder):
        cam = ctypes.CDLL(os.path.join(folder, "libOrvCameraApi.so.1"))
        gui = library_of_windows(folder)
        glib = ctypes.CDLL("libglib-2.0.so.0")
        self.get_system = function(cam, "OrvCam_GetSystem", c_void_p)
        self.release_system = function(cam, "OrvCam_ReleaseSystem", None, c_void_p)
        self.display_name = function(cam, "OrvCam_GetDisplayName", c_char_p, c_void_p)
        self.open = function(cam, "OrvCam_CreateDevice", c_void_p, c_void_p, POINTER(c_int32),
                             c_int32)
        self.close = function(cam, "OrvCam_ReleaseDevice", None, c_void_p)
        self.parameters = function(cam, "OrvCam_GetParamArray", c_void_p, c_void_p,
                                   POINTER(c_int32))
        self.select_camera = function(gui, "SelectCameraW", c_void_p, c_void_p, c_wchar_p, c_ulong)
        self.create_tree = function(gui, "CreateGenParamTreeViewForArrayW", c_void_p, c_void_p,
                                    c_wchar_p, c_ulong)
        self.destroy_tree = function(gui, "DestroyGenParamTreeView", None, c_void_p)
        self.run_events = function(glib, "g_main_context_iteration", c_int, c_void_p, c_int)


class Host:
    def __init__(self, api):
        self.api = api
        self.window = tkinter.Tk()
        self.window.title("Python host")
        self.window.geometry("640x700")
        self.window.protocol("WM_DELETE_WINDOW", self.window.quit)
        self.caption = tkinter.Label(self.window, text="This line is Tk's.", anchor="w")
        self.caption.pack(fill="x", padx=8, pady=8)
        # A plain frame: one that is a container has ideas of its own about the size of its contents.
        self.panel = tkinter.Frame(self.window)
        self.panel.pack(fill="both", expand=True, padx=8, pady=(0, 8))
        # The X server must know the windows before anybody else hears of them.
        self.window.update()
        for number in (signal.SIGINT, signal.SIGTERM):
            signal.signal(number, lambda *_: self.window.quit())

    def pick(self, system):
        return self.api.select_camera(system, "Pick a camera", self.window.winfo_id())

    def show(self, info, device):
        """Shows the features until the window is closed."""
        self.caption["text"] = self.api.display_name(info).decode()
        tree = self.api.create_tree(self.api.parameters(device, None), "Features",
                                    self.panel.winfo_id())
        self.let_qt_work()
        self.window.mainloop()
        self.api.destroy_tree(tree)  # before what it shows and where it lives

    def let_qt_work(self):
        while self.api.run_events(None, False):
            pass
        self.window.after(EVENTS_MS, self.let_qt_work)


def run(api):
    host = Host(api)
    system = api.get_system()
    info = host.pick(system)
    if not info:
        api.release_system(system)
        return 0
    error = c_int32(0)
    device = api.open(info, ctypes.byref(error), ACCESS_CONTROL)
    if device:
        host.show(info, device)
    else:
        print(f"python-host: {api.display_name(info).decode()}: error {error.value}",
              file=sys.stderr)
    api.close(device)
    api.release_system(system)
    return 0 if device else 1


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--simulate", action="store_true", help="use simulated cameras")
    parser.add_argument("--libraries", default="", metavar="FOLDER",
                        help="where the libraries are, when they are not installed")
    options = parser.parse_args()
    if options.simulate:
        os.environ["ORVCAM_SIMULATION"] = "1"
    os.environ["QT_QPA_PLATFORM"] = "xcb"  # as Tk, also in a Wayland session
    return run(Api(options.libraries))


if __name__ == "__main__":
    sys.exit(main())
