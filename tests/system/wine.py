# SPDX-License-Identifier: GPL-3.0-or-later
"""A Windows of its own under Wine, with a COM port, a printer and the packed program."""

import os
import pathlib
import shutil
import subprocess
import tempfile
import zipfile

# Of the instrument; the folder of the program has a name that is not plain.
PORT = 7
PLACE = "Messung \u00dcn\u00eft\u00e9 \u6d4b"
WINE = shutil.which("wine64") or "/usr/lib/wine/wine64"
SERVER = shutil.which("wineserver") or "/usr/lib/wine/wineserver64"
BUILTIN = pathlib.Path("/usr/lib/x86_64-linux-gnu/wine/x86_64-windows")
# As little as a printer must say of itself.
PRINTER = """*PPD-Adobe: "4.3"
*LanguageLevel: "3"
*DefaultPageSize: A4
*PageSize A4/A4: "<</PageSize[595 842]/ImagingBBox null>>setpagedevice"
*DefaultImageableArea: A4
*ImageableArea A4/A4: "18 18 577 824"
*DefaultPaperDimension: A4
*PaperDimension A4/A4: "595 842"
*DefaultFont: Courier
*Font Courier: Standard "(002.004S)" Standard ROM
"""


class Windows:
    """A Windows of its own, with the package unpacked in a folder whose name is not plain."""

    def __init__(self, package, user=None):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="tracewell-windows-"))
        self.device, self.page = self.folder / "device", self.folder / "page.ps"
        # Who may do everything is no test of what may not be done.
        self.as_user = []
        if user is not None and os.geteuid() == 0:
            os.chown(self.folder, user, user)
            self.as_user = ["setpriv", f"--reuid={user}", f"--regid={user}", "--clear-groups"]
        self.environment = {**os.environ, "HOME": str(self.folder), "WINEPREFIX": str(self.folder / "wine"),
                            "WINEDEBUG": "-all", "WINEDLLOVERRIDES": "mscoree=;mshtml="}
        self.run("wineboot", "--init")
        drivers = self.folder / "wine/drive_c/windows/system32/spool/drivers/x64/3"
        drivers.mkdir(parents=True, exist_ok=True)
        shutil.copy(BUILTIN / "wineps.drv", drivers)
        (drivers / "bench.ppd").write_text(PRINTER)
        settings = self.folder / "settings.reg"
        settings.write_text(self.settings(), encoding="utf-16")
        self.run("reg", "import", settings)
        # The list of ports is made at its start.
        self.stop()
        place = self.folder / "wine/drive_c" / PLACE
        zipfile.ZipFile(package).extractall(place)
        self.program = next(place.iterdir())

    def settings(self):
        """A COM port, two adapters, a printer that prints into a file, a font for those of Windows."""
        adapters = r"HKEY_LOCAL_MACHINE\System\CurrentControlSet\Enum\ROOT\PORTS"
        printing = r"HKEY_LOCAL_MACHINE\System\CurrentControlSet\Control\Print"
        users = r"HKEY_CURRENT_USER\Software\Microsoft\Windows NT\CurrentVersion"
        ports = "{4d36e978-e325-11ce-bfc1-08002be10318}"
        page = f"wineps.drv,{self.page}"
        keys = {
            r"HKEY_LOCAL_MACHINE\Software\Wine\Ports": {f"COM{PORT}": self.device},
            rf"{adapters}\0": {"ClassGUID": ports, "FriendlyName": f"Pr\u00fcfplatz (COM{PORT})"},
            rf"{adapters}\0\Device Parameters": {"PortName": f"COM{PORT}"},
            rf"{adapters}\1": {"ClassGUID": ports, "FriendlyName": "Bench"},
            rf"{adapters}\1\Device Parameters": {"PortName": "COM78"},
            rf"{printing}\Environments\Windows x64\Drivers\Version-3\PS":
                {"Driver": "wineps.drv", "Configuration File": "wineps.drv", "Data File": "bench.ppd"},
            rf"{printing}\Printers\Bench":
                {"Name": "Bench", "Printer Driver": "PS", "Port": self.page, "Print Processor": "winprint",
                 "Datatype": "RAW", "Share Name": "", "Location": "", "Description": "", "Parameters": "",
                 "Separator File": ""},
            rf"{users}\Windows": {"Device": f"Bench,{page}"},
            rf"{users}\Devices": {"Bench": page},
            r"HKEY_CURRENT_USER\Software\Wine\Fonts\Replacements":
                dict.fromkeys(["Segoe UI", "Tahoma", "MS Shell Dlg", "MS Shell Dlg 2"], "DejaVu Sans"),
        }
        lines = ["Windows Registry Editor Version 5.00"]
        for key, values in keys.items():
            lines += ["", f"[{key}]", *(f'"{name}"="{value}"' for name, value in values.items())]
        return "\r\n".join([*lines, ""])

    def run(self, *command, **others):
        # Its server tells its life when it loses a line, and the line is a terminal.
        others = {"stdout": subprocess.DEVNULL, "stderr": subprocess.DEVNULL, **others}
        return subprocess.run([*self.as_user, WINE, *command], env=self.environment, check=True, **others)

    def stop(self):
        for how in ("--kill", "--wait"):
            subprocess.run([*self.as_user, SERVER, how], env=self.environment, stderr=subprocess.DEVNULL)

    def remove(self):
        self.stop()
        shutil.rmtree(self.folder)
