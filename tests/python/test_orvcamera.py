# SPDX-License-Identifier: MIT
"""Tests of the Python module with the simulated camera."""
import os
import sys
import tempfile
import unittest

import orvcamera
from orvcamera import Error


class OrvCameraTest(unittest.TestCase):
    def setUp(self):
        self.assertGreaterEqual(len(orvcamera.simulated()), 7)
        self.camera = orvcamera.Camera("SIM-0001")
        self.addCleanup(self.camera.close)

    def assert_code(self, code, function, *arguments):
        with self.assertRaises(Error) as caught:
            function(*arguments)
        self.assertEqual(caught.exception.code, code)
        self.assertTrue(caught.exception.text)

    def set(self, name, value):
        self.camera[name].value = value

    def test_values_of_each_kind(self):
        for name, value in (("Width", 640), ("TriggerDelay", 250.0), ("TriggerMode", "On"),
                            ("ReverseX", True), ("DeviceUserDefinedName", "Kamera ä 日本")):
            with self.subTest(name):
                self.set(name, value)
                self.assertEqual(self.camera[name].value, value)
                self.assertIs(type(self.camera[name].value), type(value))
        self.camera["Width"].text = "0x140"
        self.assertEqual(self.camera["Width"].text, "320")
        self.camera["TriggerMode"].value = "Off"

    def test_refusals(self):
        width = self.camera["Width"]
        self.assert_code(Error.OUT_OF_RANGE, self.set, "Width", width.max + width.increment)
        self.assert_code(Error.OUT_OF_RANGE, self.set, "Width", 2**64)
        self.assert_code(Error.ACCESS_DENIED, self.set, "DeviceModelName", "x")
        self.assert_code(Error.NOT_FOUND, width.execute)
        for name, value in (("Width", "640"), ("TriggerDelay", "1"), ("TriggerMode", 1)):
            with self.assertRaises(TypeError):
                self.set(name, value)
        with self.assertRaises(KeyError):
            self.camera["NoSuchFeature"]
        with self.assertRaises(ValueError):
            self.set("DeviceUserDefinedName", "a\0b")
        self.assert_code(Error.BUSY, orvcamera.Camera, "SIM-0001")
        self.assert_code(Error.GONE, orvcamera.Camera, "no such camera")
        self.assert_code(Error.BAD_DESCRIPTION, orvcamera.Description, "/no/such/file.xml")

    def test_feature_properties(self):
        delay = self.camera["TriggerDelay"]
        self.assertEqual((delay.kind, delay.unit, delay.min, delay.visibility),
                         ("float", "us", 0.0, 1))
        self.assertTrue(delay.tool_tip and delay.description and delay.display_name)
        entries = self.camera["TriggerMode"].entries
        self.assertEqual([entry.name for entry in entries], ["Off", "On"])
        self.assertTrue(entries[1].available)
        names = [feature.name for feature in self.camera]
        self.assertEqual(len(names), len(self.camera))
        self.assertIn("Width", names)
        self.assertIn("Width", self.camera)
        self.assertNotIn("Root", names)
        self.assertEqual({f.kind for f in self.camera.root.features}, {"category"})
        self.assertTrue(self.camera["Width"].writable)
        self.assertFalse(self.camera["DeviceModelName"].writable)

    def test_commands(self):
        trigger = self.camera["TriggerSoftware"]
        self.assertFalse(trigger.available)
        self.assert_code(Error.NOT_AVAILABLE, trigger.execute)
        self.camera["UserSetLoad"].execute(timeout=5)

    def test_changes(self):
        seen = []
        with self.camera["Width"].on_change(lambda feature: seen.append(feature.value)):
            self.set("Width", 480)
            self.assertIn(480, seen)
            orvcamera.process_events(0)
        del seen[:]
        once = self.camera["Width"].on_change(lambda feature: (seen.append(1), once.cancel()))
        self.set("Width", 320)
        self.set("Width", 640)
        self.assertEqual(seen, [1])

    def test_settings(self):
        with tempfile.TemporaryDirectory() as folder:
            path = os.path.join(folder, "settings.txt")
            self.set("Width", 480)
            self.assertEqual(self.camera.save(path), [])
            self.set("Width", 640)
            self.camera.load(path)
            self.assertEqual(self.camera["Width"].value, 480)
            self.assert_code(Error.FAILED, self.camera.load, path + "-")

    def test_closed_camera(self):
        width = self.camera["Width"]
        watch = width.on_change(print)
        features = iter(self.camera)
        with self.assertRaises(RuntimeError):
            orvcamera.simulated()
        self.camera.close()
        self.camera.close()
        watch.cancel()
        self.assert_code(Error.GONE, lambda: width.value)
        self.assert_code(Error.GONE, next, features)
        info = self.camera.info
        orvcamera.simulated()
        self.assert_code(Error.GONE, orvcamera.Camera, info)

    def test_windows(self):
        tree = self.camera.show("tree", wait=False)
        self.assertEqual(orvcamera.process_events(0.05), 1)
        tree.visibility = 2
        state = tree.state
        tree.visibility = 0
        tree.state = state
        self.assertEqual(tree.visibility, 2)
        with self.camera.show(wait=False) as window, self.camera.show("browser", wait=False):
            self.assertEqual(orvcamera.process_events(0.05), 3)
            with self.assertRaises(TypeError):
                window.state
        tree.close()
        with self.assertRaises(ValueError):
            self.camera.show("nonsense")
        orvcamera.set_language("ja")
        with self.assertRaises(ValueError):
            orvcamera.set_language("tlh")


class WithoutDisplayTest(unittest.TestCase):
    def test_window_library_is_not_loaded(self):
        program = ("import orvcamera, sys; orvcamera.simulated()\n"
                   "with orvcamera.Camera() as c:\n"
                   "    c['Width'].value = 640\n"
                   "    try: c.show()\n"
                   "    except orvcamera.Error: pass\n"
                   "orvcamera.process_events(0)\n"
                   "assert 'OrvCameraGuiApi' not in open('/proc/self/maps').read()\n")
        display = ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM")
        environment = {k: v for k, v in os.environ.items() if k not in display}
        status = os.spawnve(os.P_WAIT, sys.executable, [sys.executable, "-B", "-c", program],
                            environment)
        self.assertEqual(status, 0)


if __name__ == "__main__":
    unittest.main()
