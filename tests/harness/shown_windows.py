"""The windows that appear on the X screen, as the server reports them: none is too short-lived."""

import ctypes
from typing import List

_SUBSTRUCTURE_NOTIFY = 1 << 19
_MAP_NOTIFY = 19


class _MapEvent(ctypes.Structure):
    """Xlib's XMapEvent, as long as its XEvent."""
    _fields_ = [("type", ctypes.c_int), ("serial", ctypes.c_ulong), ("sent", ctypes.c_int),
                ("display", ctypes.c_void_p), ("parent", ctypes.c_ulong),
                ("window", ctypes.c_ulong), ("unused", ctypes.c_long * 18)]


def _xlib() -> ctypes.CDLL:
    xlib = ctypes.CDLL("libX11.so.6")
    xlib.XOpenDisplay.restype = ctypes.c_void_p
    xlib.XDefaultRootWindow.restype = ctypes.c_ulong
    for function in ("XDefaultRootWindow", "XCloseDisplay", "XPending"):
        getattr(xlib, function).argtypes = [ctypes.c_void_p]
    xlib.XSelectInput.argtypes = [ctypes.c_void_p, ctypes.c_ulong, ctypes.c_long]
    xlib.XSync.argtypes = [ctypes.c_void_p, ctypes.c_int]
    xlib.XNextEvent.argtypes = [ctypes.c_void_p, ctypes.POINTER(_MapEvent)]
    return xlib


class ShownWindows:
    """Watches the screen from its creation to the end of its `with` block."""

    def __init__(self):
        self._xlib = _xlib()
        self._display = self._xlib.XOpenDisplay(None)
        if not self._display:
            raise OSError("no connection to the X server")
        self._xlib.XSelectInput(self._display, self._xlib.XDefaultRootWindow(self._display),
                                _SUBSTRUCTURE_NOTIFY)
        self._xlib.XSync(self._display, False)

    def __enter__(self) -> "ShownWindows":
        return self

    def __exit__(self, *_) -> None:
        self._xlib.XCloseDisplay(self._display)

    def since_last_call(self) -> List[int]:
        """The ids of the top-level windows, or of their frames, that have appeared."""
        self._xlib.XSync(self._display, False)
        shown = []
        event = _MapEvent()
        while self._xlib.XPending(self._display):
            self._xlib.XNextEvent(self._display, ctypes.byref(event))
            if event.type == _MAP_NOTIFY:
                shown.append(event.window)
        return shown
