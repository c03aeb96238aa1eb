// A small X11 client for the smoke test and the start-up benchmark:
//   xwindow wait NAME SECONDS   waits until a mapped top-level window titled NAME exists,
//                               prints the milliseconds it took; exit 1 on time-out
//   xwindow close NAME          asks that window to close, as a window manager's close box does
#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>

#include <chrono>
#include <cstdio>
#include <cstring>
#include <memory>
#include <string>
#include <poll.h>

namespace {
bool HasName(Display* display, Window window, const std::string& name)
{
    char* title = nullptr;
    bool match = false;
    if (XFetchName(display, window, &title) && title) {
        match = name == title;
        XFree(title);
    }
    return match;
}

Window FindMapped(Display* display, Window parent, const std::string& name)
{
    Window root = 0, up = 0, *children = nullptr;
    unsigned count = 0;
    if (!XQueryTree(display, parent, &root, &up, &children, &count))
        return 0;
    Window found = 0;
    for (unsigned i = 0; i < count && !found; ++i) {
        XWindowAttributes attributes;
        if (XGetWindowAttributes(display, children[i], &attributes) && attributes.map_state == IsViewable &&
            HasName(display, children[i], name))
            found = children[i];
        else
            found = FindMapped(display, children[i], name);
    }
    if (children)
        XFree(children);
    return found;
}
}

int main(int argc, char* argv[])
{
    if (argc < 3) {
        std::fprintf(stderr, "usage: xwindow wait NAME SECONDS | xwindow close NAME\n");
        return 2;
    }
    const std::unique_ptr<Display, int (*)(Display*)> connection(XOpenDisplay(nullptr), XCloseDisplay);
    Display* display = connection.get();
    if (!display) {
        std::fprintf(stderr, "xwindow: no display\n");
        return 2;
    }
    const std::string command = argv[1], name = argv[2];
    const auto start = std::chrono::steady_clock::now();
    if (command == "wait") {
        const double seconds = argc > 3 ? std::atof(argv[3]) : 10.0;
        // A top-level window's mapping wakes us at once, so the time is not rounded up to a
        // polling step; a title set after the mapping is caught by looking again every 5 ms.
        XSelectInput(display, DefaultRootWindow(display), SubstructureNotifyMask);
        XSync(display, False);
        while (!FindMapped(display, DefaultRootWindow(display), name)) {
            if (std::chrono::steady_clock::now() - start > std::chrono::duration<double>(seconds))
                return 1;
            pollfd x{ConnectionNumber(display), POLLIN, 0};
            if (!XPending(display))
                poll(&x, 1, 5);
            for (XEvent event; XPending(display);)
                XNextEvent(display, &event);
        }
        const auto ms = std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - start);
        std::printf("%lld\n", static_cast<long long>(ms.count()));
        return 0;
    }
    if (command == "close") {
        const Window window = FindMapped(display, DefaultRootWindow(display), name);
        if (!window)
            return 1;
        XEvent event{};
        event.xclient.type = ClientMessage;
        event.xclient.window = window;
        event.xclient.message_type = XInternAtom(display, "WM_PROTOCOLS", False);
        event.xclient.format = 32;
        event.xclient.data.l[0] = long(XInternAtom(display, "WM_DELETE_WINDOW", False));
        event.xclient.data.l[1] = CurrentTime;
        XSendEvent(display, window, False, NoEventMask, &event);
        XFlush(display);
        return 0;
    }
    return 2;
}
