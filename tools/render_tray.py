#!/usr/bin/python3
"""Renders the tray item as panels show it, from the running application, into PNG files.

- docs/images/tray-sni-light.png and -dark.png: a StatusNotifierItem host's view. This script is the
  panel's watcher on a private session bus; it starts build/src/app/ferrow there (offscreen), reads
  the item's IconName, IconThemePath and XAyatanaLabel over D-Bus, resolves the icon through GTK's
  icon theme with the item's theme path added and recolours it as a symbolic icon, the way GNOME's
  and other GTK hosts do, and draws the label beside it on a light and a dark panel strip (2x).
- docs/images/tray-fallback-light.png and -dark.png: screenshots of the fallback tray icon
  (QSystemTrayIcon over XEmbed) in trayer under Xvfb, a 26 px panel on a light and a dark
  background, enlarged 4x with no smoothing.

Runs with the system's Python 3: python3-dbus, python3-gi-cairo and gir1.2-gtk-3.0, with Xvfb,
trayer and dbus-daemon. Usage: tools/render_tray.py [BUILD_DIR [OUTPUT_DIR]]
"""

import os
import subprocess
import sys
import tempfile
import time

HERE = os.path.dirname(os.path.abspath(__file__))
BUILD = os.path.abspath(sys.argv[1] if len(sys.argv) > 1 else os.path.join(HERE, "..", "build"))
OUTPUT = os.path.abspath(sys.argv[2] if len(sys.argv) > 2 else os.path.join(HERE, "..", "docs", "images"))
APP = os.path.join(BUILD, "src", "app", "ferrow")
WATCHER = "org.kde.StatusNotifierWatcher"
ITEM = "org.kde.StatusNotifierItem"

children = []


def start(command, **kwargs):
    process = subprocess.Popen(command, **kwargs)
    children.append(process)
    return process


def stop_all():
    for process in reversed(children):
        if process.poll() is None:
            process.terminate()
            try:
                process.wait(10)
            except subprocess.TimeoutExpired:
                process.kill()


def app_environment(bus_address, display):
    home = tempfile.mkdtemp(prefix="ferrow-tray-")
    environment = dict(os.environ, HOME=home, LANGUAGE="en", DBUS_SESSION_BUS_ADDRESS=bus_address,
                       XDG_CONFIG_HOME=os.path.join(home, "config"), XDG_DATA_HOME=os.path.join(home, "data"),
                       XDG_CACHE_HOME=os.path.join(home, "cache"), XDG_RUNTIME_DIR=os.path.join(home, "runtime"))
    os.makedirs(environment["XDG_RUNTIME_DIR"], mode=0o700)
    if display:
        environment.update(DISPLAY=display, QT_QPA_PLATFORM="xcb")
    else:
        environment.update(QT_QPA_PLATFORM="offscreen")
    return environment


def start_x_server():
    read, write = os.pipe()
    start(["Xvfb", "-displayfd", str(write), "-screen", "0", "640x200x24", "-nolisten", "tcp", "-noreset"], pass_fds=[write])
    os.close(write)
    with os.fdopen(read) as pipe:
        return ":" + pipe.readline().strip()


def start_bus():
    daemon = start(["dbus-daemon", "--session", "--nofork", "--print-address=1"], stdout=subprocess.PIPE,
                   stderr=subprocess.DEVNULL, text=True)
    return daemon.stdout.readline().strip()


def render_host_view(bus_address, Gtk, Gdk, GdkPixbuf, Pango, PangoCairo, cairo):
    import dbus
    import dbus.service
    from dbus.mainloop.glib import DBusGMainLoop
    from gi.repository import GLib

    DBusGMainLoop(set_as_default=True)
    bus = dbus.bus.BusConnection(bus_address)
    registered = []

    class Watcher(dbus.service.Object):
        @dbus.service.method(WATCHER, in_signature="s")
        def RegisterStatusNotifierItem(self, service):
            registered.append(service)

        @dbus.service.method(WATCHER, in_signature="s")
        def RegisterStatusNotifierHost(self, service):
            pass

        @dbus.service.method(dbus.PROPERTIES_IFACE, in_signature="ss", out_signature="v")
        def Get(self, interface, name):
            return self.GetAll(interface)[name]

        @dbus.service.method(dbus.PROPERTIES_IFACE, in_signature="s", out_signature="a{sv}")
        def GetAll(self, interface):
            return {"RegisteredStatusNotifierItems": dbus.Array(registered, signature="s"),
                    "IsStatusNotifierHostRegistered": True, "ProtocolVersion": dbus.Int32(0)}

    watcher = Watcher(bus, "/StatusNotifierWatcher")
    name = dbus.service.BusName(WATCHER, bus)
    start([APP], env=app_environment(bus_address, None), stdout=subprocess.DEVNULL)
    loop = GLib.MainLoop()
    GLib.timeout_add(100, lambda: loop.quit() if registered else True)
    GLib.timeout_add(30000, loop.quit)
    loop.run()
    if not registered:
        sys.exit("render_tray: the application registered no item")
    time.sleep(3)  # a few readings
    item = bus.get_object(registered[0], "/StatusNotifierItem")
    properties = dbus.Interface(item, dbus.PROPERTIES_IFACE)
    icon_name = str(properties.Get(ITEM, "IconName"))
    theme_path = str(properties.Get(ITEM, "IconThemePath"))
    label = str(properties.Get(ITEM, "XAyatanaLabel"))
    del watcher, name

    theme = Gtk.IconTheme.new()
    if theme_path:
        theme.append_search_path(theme_path)
    scale = 2
    info = theme.lookup_icon(icon_name, 16 * scale, Gtk.IconLookupFlags.FORCE_SIZE)
    if info is None:
        sys.exit(f"render_tray: the icon {icon_name} is not found with the theme path {theme_path!r}")
    print(f"render_tray: {icon_name} from {info.get_filename()}, label {label!r}")
    for appearance, background, foreground in (("light", (0.96, 0.96, 0.95), (0.18, 0.20, 0.21)),
                                               ("dark", (0.0, 0.0, 0.0), (0.93, 0.93, 0.93))):
        icon, _ = info.load_symbolic(Gdk.RGBA(*foreground, 1.0), None, None, None)
        width, height = 150 * scale, 32 * scale
        surface = cairo.ImageSurface(cairo.FORMAT_ARGB32, width, height)
        context = cairo.Context(surface)
        context.set_source_rgb(*background)
        context.paint()
        x = 12 * scale
        Gdk.cairo_set_source_pixbuf(context, icon, x, (height - icon.get_height()) / 2)
        context.paint()
        layout = PangoCairo.create_layout(context)
        layout.set_font_description(Pango.FontDescription(f"Sans Bold {10.5 * scale}"))
        layout.set_text(label, -1)
        _, extent = layout.get_pixel_extents()
        context.move_to(x + icon.get_width() + 4 * scale, (height - extent.height) / 2 - extent.y)
        context.set_source_rgb(*foreground)
        PangoCairo.show_layout(context, layout)
        surface.write_to_png(os.path.join(OUTPUT, f"tray-sni-{appearance}.png"))


def render_fallback(bus_address, display, Gdk, GdkPixbuf):
    screen_width = 640
    height, enlarge = 26, 4
    for appearance, tint in (("light", "0xf0f0f0"), ("dark", "0x202024")):
        width = 3 * height
        tray = start(["trayer", "--edge", "top", "--align", "right", "--widthtype", "pixel", "--width", str(width),
                      "--height", str(height), "--transparent", "true", "--alpha", "0", "--tint", tint],
                     env=dict(os.environ, DISPLAY=display), stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        time.sleep(1.5)
        # The bus has no watcher, so the application takes the X11 tray.
        app = start([APP], env=app_environment(bus_address, display), stdout=subprocess.DEVNULL)
        time.sleep(4)
        root = Gdk.Display.open(display).get_default_screen().get_root_window()
        shot = Gdk.pixbuf_get_from_window(root, screen_width - width, 0, width, height)
        shot = shot.scale_simple(width * enlarge, height * enlarge, GdkPixbuf.InterpType.NEAREST)
        shot.savev(os.path.join(OUTPUT, f"tray-fallback-{appearance}.png"), "png", [], [])
        for process in (app, tray):
            process.terminate()
            process.wait(10)


def main():
    if not os.access(APP, os.X_OK):
        sys.exit(f"render_tray: no application at {APP}; build it first")
    os.makedirs(OUTPUT, exist_ok=True)
    try:
        display = start_x_server()
        os.environ["DISPLAY"] = display
        import gi
        gi.require_version("Gtk", "3.0")
        gi.require_version("Gdk", "3.0")
        gi.require_version("GdkPixbuf", "2.0")
        gi.require_version("Pango", "1.0")
        gi.require_version("PangoCairo", "1.0")
        from gi.repository import Gdk, GdkPixbuf, Gtk, Pango, PangoCairo
        import cairo
        render_host_view(start_bus(), Gtk, Gdk, GdkPixbuf, Pango, PangoCairo, cairo)
        render_fallback(start_bus(), display, Gdk, GdkPixbuf)
    finally:
        stop_all()
    print(f"render_tray: wrote the tray images to {OUTPUT}")


if __name__ == "__main__":
    main()
