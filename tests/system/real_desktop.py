# SPDX-License-Identifier: GPL-3.0-or-later
"""What the system tests share: an X server of their own, the program in a folder of its own, and
krm410-sim behind a link.

Each test is called with TRACEWELL KRM410_SIM DATA_FOLDER. Where a control is on the screen is said by
Whereabouts.cpp; what the user does there is done by xdotool.
"""

import ctypes
import os
import pathlib
import shutil
import signal
import socket
import subprocess
import sys
import tempfile
import time
import typing
import unittest

TRACEWELL, SIMULATOR, DATA = (os.path.abspath(argument) for argument in sys.argv[1:4])
WIDTH, HEIGHT = 1280, 800
# Built beside the program, under tests/.
PLUGINS = pathlib.Path(TRACEWELL).parents[1] / "tests" / "plugins"


# Seconds until something that must come counts as never coming.
PATIENCE = 60


def wait_for(condition, seconds, what):
    """Looks ten times for each of the seconds. On a busy machine each look takes longer, as what it
    waits for does."""
    for _ in range(10 * seconds):
        result = condition()
        if result:
            return result
        time.sleep(0.1)
    raise AssertionError(f"{what}: not in {10 * seconds} looks")


def strain():
    """How many times as long as on a machine of its own a computation takes at present."""
    begun, used = time.monotonic(), time.process_time()
    while time.process_time() - used < 0.2:
        pass
    return max(1, (time.monotonic() - begun) / 0.2)


def resident_kilobytes(pid):
    for line in pathlib.Path(f"/proc/{pid}/status").read_text().splitlines():
        if line.startswith("VmRSS:"):
            return int(line.split()[1])
    raise ProcessLookupError(pid)


def run(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


class Picture(ctypes.Structure):
    """XImage, as far as it is read here."""

    _fields_ = [("width", ctypes.c_int), ("height", ctypes.c_int), ("xoffset", ctypes.c_int),
                ("format", ctypes.c_int), ("data", ctypes.c_void_p), ("byte_order", ctypes.c_int),
                ("bitmap_unit", ctypes.c_int), ("bitmap_bit_order", ctypes.c_int),
                ("bitmap_pad", ctypes.c_int), ("depth", ctypes.c_int),
                ("bytes_per_line", ctypes.c_int), ("bits_per_pixel", ctypes.c_int)]


class Screen:
    """An X server, and what is seen on it."""

    ALL_PLANES = ctypes.c_ulong(-1)
    Z_PIXMAP = 2

    def __init__(self):
        read_end, write_end = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write_end), "-noreset", "-screen", "0", f"{WIDTH}x{HEIGHT}x24"],
            pass_fds=[write_end], stderr=subprocess.DEVNULL)
        os.close(write_end)
        with os.fdopen(read_end) as pipe:
            os.environ["DISPLAY"] = ":" + pipe.readline().strip()
        self.x11 = ctypes.CDLL("libX11.so.6")
        self.x11.XOpenDisplay.restype = ctypes.c_void_p
        self.x11.XDefaultRootWindow.restype = ctypes.c_ulong
        self.x11.XGetImage.restype = ctypes.POINTER(Picture)
        self.display = ctypes.c_void_p(wait_for(lambda: self.x11.XOpenDisplay(None), 10, "the X server"))
        self.root = ctypes.c_ulong(self.x11.XDefaultRootWindow(self.display))

    def stop(self):
        self.x11.XCloseDisplay(self.display)
        self.server.terminate()
        self.server.wait()

    def pixels(self, place):
        """The colours there as 0xRRGGBB, row by row."""
        picture = self.x11.XGetImage(self.display, self.root, place.left, place.top, place.width,
                                     place.height, self.ALL_PLANES, self.Z_PIXMAP)
        seen = picture.contents
        assert (seen.bits_per_pixel, seen.bytes_per_line) == (32, 4 * place.width)
        data = ctypes.string_at(seen.data, 4 * place.width * place.height)
        self.x11.XDestroyImage(picture)
        return memoryview(data).cast("I")

    def where(self, place, is_meant):
        """The positions there with a colour for which is_meant(red, green, blue) holds."""
        pixels = self.pixels(place)
        meant = {colour for colour in set(pixels) if is_meant(*parts(colour))}
        return {(place.left + i % place.width, place.top + i // place.width)
                for i, colour in enumerate(pixels) if colour in meant}


def parts(colour):
    """Red, green, blue."""
    return colour >> 16 & 255, colour >> 8 & 255, colour & 255


class Place(typing.NamedTuple):
    """Where an object of the program is on the screen, and the text on it."""

    left: int
    top: int
    width: int
    height: int
    text: str

    def middle(self):
        return str(self.left + self.width // 2), str(self.top + self.height // 2)


class Program:
    """A copy of the program in a folder of its own."""

    def __init__(self, port):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="tracewell-system-"))
        for file in (TRACEWELL, *pathlib.Path(TRACEWELL).parent.glob("tracewell-*.so")):
            shutil.copy(file, self.folder)
        for file in pathlib.Path(DATA).iterdir():
            shutil.copy(file, self.folder)
        self.setup = self.folder / "default.dso"
        self.write_port(port)
        self.environment = dict(os.environ)
        self.process = None

    def write_port(self, port):
        text = self.setup.read_bytes().replace(b",None,0\r\n", b",None,%d\r\n" % port)
        self.setup.write_bytes(text)

    def make_known(self):
        """Lets it say where its objects are on the screen."""
        self.environment["QT_PLUGIN_PATH"] = str(PLUGINS)
        self.environment["QT_QPA_GENERIC_PLUGINS"] = f"whereabouts:{self.folder}/whereabouts"

    window = None

    def command(self):
        return [self.folder / "tracewell"]

    def start(self):
        self.process = subprocess.Popen(self.command(), cwd=self.folder, env=self.environment)
        self.window = None
        self.window = self.find("Tracewell")
        run("xdotool", "windowmove", "--sync", self.window, "0", "0",
            "windowsize", "--sync", self.window, str(WIDTH), str(HEIGHT))
        self.focus(self.window)

    def windows(self, title):
        found = subprocess.run(
            ["xdotool", "search", "--all", "--onlyvisible", "--pid", str(self.process.pid),
             "--name", f"^{title}$"], capture_output=True, text=True).stdout.split()
        return [window for window in found if window != self.window]

    def find(self, title, besides=None):
        """The window of that title, other than the main one and the one given."""
        return wait_for(lambda: [window for window in self.windows(title) if window != besides],
                        PATIENCE, f"the window {title}")[0]

    def closed(self, title):
        wait_for(lambda: not self.windows(title), PATIENCE, f"{title} to close")

    def focus(self, window):
        run("xdotool", "windowfocus", "--sync", window)

    def keys(self, *names):
        run("xdotool", "key", *names)

    def type(self, text):
        run("xdotool", "type", text)

    def shown(self, name):
        """The place of an object, "frmDSO.cmdStart", that a click would reach; None without one."""
        with socket.socket(socket.AF_UNIX) as question:
            question.settimeout(PATIENCE)
            question.connect(str(self.folder / "whereabouts"))
            question.sendall(name.encode() + b"\n")
            with question.makefile(encoding="utf-8") as answer:
                *place, text = answer.readline().rstrip("\n").split(" ", 4) or [""]
        return Place(*map(int, place), text) if place else None

    def place(self, name):
        return wait_for(lambda: self.shown(name), PATIENCE, name)

    def click(self, name, button=1):
        """Button 4 turns the wheel up, 5 down."""
        run("xdotool", "mousemove", *self.place(name).middle(), "click", str(button))

    def processor_seconds(self):
        fields = pathlib.Path(f"/proc/{self.process.pid}/stat").read_text().rsplit(")", 1)[1].split()
        return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")

    def load(self, seconds):
        """Percent of one core that the program uses during so many seconds."""
        before = self.processor_seconds()
        time.sleep(seconds)
        return 100 * (self.processor_seconds() - before) / seconds

    def close(self):
        """As the user does, with the question answered by its default."""
        self.focus(self.window)
        self.keys("ctrl+q")
        self.focus(self.find("Tracewell"))
        self.keys("Return")
        self.process.wait(PATIENCE)

    def remove(self):
        if self.process and self.process.poll() is None:
            self.process.kill()
            self.process.wait()
        shutil.rmtree(self.folder)


class Instrument:
    """krm410-sim behind a link."""

    def __init__(self, link):
        self.process = subprocess.Popen([SIMULATOR, "--link", str(link)], stdin=subprocess.PIPE,
                                        stdout=subprocess.PIPE, text=True)
        self.process.stdout.readline()

    def fault(self, line):
        self.process.stdin.write(line + "\n")
        self.process.stdin.flush()

    def stop(self):
        self.process.terminate()
        self.process.wait()
        self.process.stdin.close()
        self.process.stdout.close()


class DeviceServer:
    """Passes a serial device on to a TCP port: ser2net, or socat where that does not come to listen."""

    GREETING = "bench 3, line 1"

    def __init__(self, device, port, folder):
        settings = folder / "ser2net.yaml"
        settings.write_text(f"""%YAML 1.1
---
connection: &line
  accepter: tcp,127.0.0.1,{port}
  connector: serialdev,{device},19200n81,local
  options:
    banner: "{self.GREETING}\\r\\n"
""")
        socat = f"TCP-LISTEN:{port},bind=127.0.0.1,reuseaddr,fork"
        for command in (["ser2net", "-n", "-u", "-c", settings],
                        ["socat", socat, f"FILE:{device},raw,echo=0"]):
            if not shutil.which(command[0]):
                continue
            self.process = subprocess.Popen(command, stdout=subprocess.DEVNULL,
                                            stderr=subprocess.DEVNULL, start_new_session=True)
            if self.listens(port):
                print("device server:", command[0])
                return
            self.stop()
        raise AssertionError("no device server listens")

    @staticmethod
    def listens(port):
        """Looks without connecting, which would be the server's one client."""
        row = f"0100007F:{port:04X} 00000000:0000 0A"
        end = time.monotonic() + 3
        while time.monotonic() < end:
            if row in pathlib.Path("/proc/net/tcp").read_text():
                return True
            time.sleep(0.1)
        return False

    def stop(self):
        """With those that serve a client; ser2net does not heed a SIGTERM where it could not start."""
        if self.process.poll() is None:
            os.killpg(self.process.pid, signal.SIGKILL)
            self.process.wait()


def free_port():
    with socket.socket() as found:
        found.bind(("127.0.0.1", 0))
        return found.getsockname()[1]


class SystemTestCase(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.screen = Screen()

    @classmethod
    def tearDownClass(cls):
        cls.screen.stop()

    def make_program(self, port):
        program = Program(port)
        program.make_known()
        self.addCleanup(program.remove)
        return program

    def make_instrument(self, program):
        instrument = Instrument(program.folder / "com7")
        self.addCleanup(instrument.stop)
        return instrument

    def make_server(self, program, port):
        """In front of the instrument."""
        server = DeviceServer(program.folder / "com7", port, program.folder)
        self.addCleanup(server.stop)
        return server

    def trace(self, program):
        """Where the plot shows the colour of channel 1. The strip of scales above it has that colour, too, and
        the banner at its lower edge one that is close to it."""
        plot = program.place("frmDSO.plot")
        return self.screen.where(plot._replace(height=plot.height * 4 // 5),
                                 lambda red, green, blue: red > 170 and 120 < green < red and red - blue > 90)

    def expect_live_trace(self, program):
        first = wait_for(lambda: len(trace := self.trace(program)) > 300 and trace, PATIENCE,
                         "a trace")
        wait_for(lambda: len(trace := self.trace(program)) > 300 and trace != first, PATIENCE, "a second frame")

    def lamp(self, program):
        counts = {"blue": 0, "green": 0, "red": 0}
        for red, green, blue in map(parts, self.screen.pixels(program.place("frmDSO.spConnect"))):
            for name, value, others in (("red", red, green + blue), ("green", green, red + blue),
                                        ("blue", blue, red + green)):
                counts[name] += value > 150 and value > others
        return max(counts, key=counts.get)

    def expect_lamp(self, program, colour):
        wait_for(lambda: self.lamp(program) == colour, PATIENCE, f"the {colour} lamp")


def main():
    unittest.main(argv=sys.argv[:1], verbosity=2)
