#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""A program with a Tk window. The user picks a camera; the window shows its features."""
import argparse
import os
import signal
import sys
import tkinter

import orvcamera

EVENTS_MS = 10


class Host:
    def __init__(self):
        self.window = tkinter.Tk()
        self.window.title("Python host")
        self.window.geometry("640x700")
        self.window.protocol("WM_DELETE_WINDOW", self.window.quit)
        self.caption = tkinter.Label(self.window, text="This line is Tk's.", anchor="w")
        self.caption.pack(fill="x", padx=8, pady=8)
        # A plain frame: a container frame would resize its contents.
        self.panel = tkinter.Frame(self.window)
        self.panel.pack(fill="both", expand=True, padx=8, pady=(0, 8))
        # The X server must know the windows before others use them.
        self.window.update()
        for number in (signal.SIGINT, signal.SIGTERM):
            signal.signal(number, lambda *_: self.window.quit())

    def pick(self):
        return orvcamera.select_camera("Pick a camera", self.window.winfo_id())

    def show(self, camera):
        """Shows the features until the window is closed."""
        self.caption["text"] = camera.info.display_name
        tree = camera.show("tree", "Features", wait=False, parent=self.panel.winfo_id())
        self.let_qt_work()
        self.window.mainloop()
        tree.close()  # before its frame

    def let_qt_work(self):
        orvcamera.process_events()
        self.window.after(EVENTS_MS, self.let_qt_work)


def run():
    host = Host()
    info = host.pick()
    if not info:
        return 0
    try:
        with orvcamera.Camera(info) as camera:
            host.show(camera)
    except orvcamera.Error as error:
        print(f"python-host: {info.display_name}: {error}", file=sys.stderr)
        return 1
    return 0


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--simulate", action="store_true", help="use simulated cameras")
    parser.add_argument("--libraries", default="", metavar="FOLDER",
                        help="where the libraries are, when they are not installed")
    options = parser.parse_args()
    if options.simulate:
        os.environ["ORVCAM_SIMULATION"] = "1"
    if options.libraries:
        os.environ["ORVCAMERA_LIBRARIES"] = options.libraries
    os.environ["QT_QPA_PLATFORM"] = "xcb"  # as Tk does, even in a Wayland session
    return run()


if __name__ == "__main__":
    sys.exit(main())
