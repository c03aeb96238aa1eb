// A small X11 client for the smoke test and the start-up benchmark:
//   xwindow wait NAME SECONDS   waits until a mapped top-level window titled NAME exists and
//                               prints when it saw it, in nanoseconds since the epoch (so a
//                               caller measures from its own start, without this helper's
//                               exit); exit 1 on time-out
//   xwindow close NAME          asks that window to close, as a window manager's close box does
#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>

#include <chrono>
#include <cstdio>
#include <memory>
#include <string>
#include <poll.h>
#include <time.h>

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

// The window itself if it is mapped and titled NAME, else such a window inside it (a window
// manager's frame holds the program's window).
Window FindMapped(Display* display, Window window, const std::string& name)
{
    XWindowAttributes attributes;
    if (XGetWindowAttributes(display, window, &attributes) && attributes.map_state == IsViewable &&
        HasName(display, window, name))
        return window;
    Window root = 0, up = 0, *children = nullptr;
    unsigned count = 0;
    if (!XQueryTree(display, window, &root, &up, &children, &count))
        return 0;
    Window found = 0;
    for (unsigned i = 0; i < count && !found; ++i)
        found = FindMapped(display, children[i], name);
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
    if (command == "wait") {
        const auto limit = std::chrono::steady_clock::now() + std::chrono::duration<double>(argc > 3 ? std::atof(argv[3]) : 10.0);
        const Window root = DefaultRootWindow(display);
        // Each top-level mapping wakes us, and only the newly mapped window is looked at: walking
        // the whole tree at every event would keep the display server busy while the program
        // under test starts. A title given after the mapping is caught by a walk every 50 ms.
        XSelectInput(display, root, SubstructureNotifyMask);
        XSync(display, False);
        timespec seen{};
        const auto look = [&](Window window) {   // notes when, then whether the window is there
            clock_gettime(CLOCK_REALTIME, &seen);
            return FindMapped(display, window, name);
        };
        Window found = look(root);
        for (auto walked = std::chrono::steady_clock::now(); !found;) {
            const auto now = std::chrono::steady_clock::now();
            if (now > limit)
                return 1;
            if (now - walked > std::chrono::milliseconds(50)) {
                walked = now;
                found = look(root);
                continue;
            }
            pollfd x{ConnectionNumber(display), POLLIN, 0};
            if (!XPending(display))
                poll(&x, 1, 50);
            for (XEvent event; !found && XPending(display);) {
                XNextEvent(display, &event);
                if (event.type == MapNotify)
                    found = look(event.xmap.window);
            }
        }
        std::printf("%lld\n", static_cast<long long>(seen.tv_sec) * 1000000000LL + seen.tv_nsec);
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
