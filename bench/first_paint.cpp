// first_paint: starts a program and tells how long it took to put its first
// painted frame on the X screen.
//
//   first_paint --title NAME --report FILE [--timeout SECONDS]
//               --pixel X,Y,RRGGBB [--pixel X,Y,!RRGGBB ...] -- PROGRAM [ARGS...]
//
// The clock starts just before fork()/exec() of PROGRAM. Every 2 ms the root
// window's tree is searched for a mapped (viewable) top-level window whose
// _NET_WM_NAME or WM_NAME is NAME; once there is one, the listed pixels of it
// (window coordinates) are read back from the screen. "X,Y,RRGGBB" waits for
// that colour, "X,Y,!RRGGBB" for any other colour. The frame counts as painted
// when every pixel agrees. Qt gives its windows no X background, so until the
// program has drawn, a mapped window still shows the root's pixels there.
//
// Then one line goes to FILE (usually a FIFO the caller reads):
//   pid=<PID> ms=<milliseconds> x=<X> y=<Y>
// or, if the timeout passes first, "pid=<PID> ms=timeout". Polling stops
// there; first_paint then just waits (no CPU) for PROGRAM to exit and exits
// with its status, so the caller can measure PROGRAM undisturbed and end it
// with a signal. PROGRAM keeps first_paint's stdout and stderr.
#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

struct PixelCheck {
    int x = 0;
    int y = 0;
    unsigned long rgb = 0;
    bool different = false; // true: any colour but rgb
};

double nowMs()
{
    timespec ts{};
    clock_gettime(CLOCK_MONOTONIC, &ts);
    return ts.tv_sec * 1000.0 + ts.tv_nsec / 1.0e6;
}

void sleepMs(long ms)
{
    timespec ts{ms / 1000, (ms % 1000) * 1000000L};
    while (nanosleep(&ts, &ts) == -1 && errno == EINTR) {
    }
}

// A window can vanish between finding it and reading it; that is no error here.
int ignoreXErrors(Display*, XErrorEvent*) { return 0; }

bool parsePixel(const char* text, PixelCheck* check)
{
    char colour[16] = {};
    if (std::sscanf(text, "%d,%d,%15s", &check->x, &check->y, colour) != 3)
        return false;
    const char* hex = colour;
    if (*hex == '!') {
        check->different = true;
        ++hex;
    }
    char* end = nullptr;
    check->rgb = std::strtoul(hex, &end, 16);
    return std::strlen(hex) == 6 && end && *end == '\0';
}

std::string windowName(Display* dpy, Window w, Atom netWmName, Atom utf8)
{
    Atom type = None;
    int format = 0;
    unsigned long count = 0;
    unsigned long after = 0;
    unsigned char* data = nullptr;
    std::string name;
    if (XGetWindowProperty(dpy, w, netWmName, 0, 256, False, utf8, &type, &format, &count, &after, &data) == Success
        && data && type == utf8 && format == 8)
        name.assign(reinterpret_cast<char*>(data), count);
    if (data)
        XFree(data);
    if (!name.empty())
        return name;
    char* plain = nullptr;
    if (XFetchName(dpy, w, &plain) && plain) {
        name = plain;
        XFree(plain);
    }
    return name;
}

// The first viewable child of the root named `title`, or None.
Window findWindow(Display* dpy, const std::string& title, Atom netWmName, Atom utf8)
{
    Window root = DefaultRootWindow(dpy);
    Window parent = None;
    Window* children = nullptr;
    unsigned int count = 0;
    Window found = None;
    if (!XQueryTree(dpy, root, &root, &parent, &children, &count))
        return None;
    for (unsigned int i = 0; i < count && found == None; ++i) {
        XWindowAttributes attrs;
        if (!XGetWindowAttributes(dpy, children[i], &attrs) || attrs.map_state != IsViewable)
            continue;
        if (windowName(dpy, children[i], netWmName, utf8) == title)
            found = children[i];
    }
    if (children)
        XFree(children);
    return found;
}

// The root's colour at (x, y) as 0xRRGGBB; the root has the default visual.
unsigned long rootPixel(Display* dpy, int x, int y, bool* ok)
{
    *ok = false;
    XImage* image = XGetImage(dpy, DefaultRootWindow(dpy), x, y, 1, 1, AllPlanes, ZPixmap);
    if (!image)
        return 0;
    const Visual* visual = DefaultVisual(dpy, DefaultScreen(dpy));
    const unsigned long value = XGetPixel(image, 0, 0);
    XDestroyImage(image);
    auto channel = [value](unsigned long mask) {
        if (!mask)
            return 0UL;
        unsigned long v = value & mask;
        while (!(mask & 1)) {
            mask >>= 1;
            v >>= 1;
        }
        return v * 255 / mask;
    };
    *ok = true;
    return (channel(visual->red_mask) << 16) | (channel(visual->green_mask) << 8) | channel(visual->blue_mask);
}

bool painted(Display* dpy, Window w, const std::vector<PixelCheck>& checks, int* originX, int* originY)
{
    Window child = None;
    if (!XTranslateCoordinates(dpy, w, DefaultRootWindow(dpy), 0, 0, originX, originY, &child))
        return false;
    for (const PixelCheck& c : checks) {
        bool ok = false;
        const unsigned long rgb = rootPixel(dpy, *originX + c.x, *originY + c.y, &ok);
        if (!ok || (rgb == c.rgb) == c.different)
            return false;
    }
    return true;
}

int usage()
{
    std::fprintf(stderr,
                 "usage: first_paint --title NAME --report FILE [--timeout SECONDS]\n"
                 "                   --pixel X,Y,[!]RRGGBB [...] -- PROGRAM [ARGS...]\n");
    return 2;
}

} // namespace

int main(int argc, char* argv[])
{
    std::string title;
    std::string reportPath;
    double timeoutMs = 30000;
    std::vector<PixelCheck> checks;
    int i = 1;
    for (; i < argc; ++i) {
        const std::string arg = argv[i];
        if (arg == "--")
            break;
        if (i + 1 >= argc)
            return usage();
        if (arg == "--title") {
            title = argv[++i];
        } else if (arg == "--report") {
            reportPath = argv[++i];
        } else if (arg == "--timeout") {
            timeoutMs = std::atof(argv[++i]) * 1000.0;
        } else if (arg == "--pixel") {
            PixelCheck check;
            if (!parsePixel(argv[++i], &check))
                return usage();
            checks.push_back(check);
        } else {
            return usage();
        }
    }
    if (title.empty() || reportPath.empty() || checks.empty() || i + 1 >= argc)
        return usage();
    char** program = argv + i + 1;

    Display* dpy = XOpenDisplay(nullptr);
    if (!dpy) {
        std::fprintf(stderr, "first_paint: cannot open display \"%s\"\n", XDisplayName(nullptr));
        return 2;
    }
    XSetErrorHandler(ignoreXErrors);
    const Atom netWmName = XInternAtom(dpy, "_NET_WM_NAME", False);
    const Atom utf8 = XInternAtom(dpy, "UTF8_STRING", False);

    const double start = nowMs();
    const pid_t pid = fork();
    if (pid < 0) {
        std::perror("first_paint: fork");
        return 2;
    }
    if (pid == 0) {
        close(ConnectionNumber(dpy));
        execvp(program[0], program);
        std::fprintf(stderr, "first_paint: cannot run %s: %s\n", program[0], std::strerror(errno));
        _exit(127);
    }

    std::string result;
    Window window = None;
    int x = 0;
    int y = 0;
    for (;;) {
        int status = 0;
        if (waitpid(pid, &status, WNOHANG) == pid) {
            std::fprintf(stderr, "first_paint: %s ended before painting\n", program[0]);
            FILE* report = std::fopen(reportPath.c_str(), "w");
            if (report) {
                std::fprintf(report, "pid=%d ms=exited\n", int(pid));
                std::fclose(report);
            }
            return 1;
        }
        if (window == None)
            window = findWindow(dpy, title, netWmName, utf8);
        if (window != None && painted(dpy, window, checks, &x, &y)) {
            char line[128];
            std::snprintf(line, sizeof line, "pid=%d ms=%.1f x=%d y=%d", int(pid), nowMs() - start, x, y);
            result = line;
            break;
        }
        if (window != None) {
            // Seen but not yet painted; look again next time in case it went away.
            XWindowAttributes attrs;
            if (!XGetWindowAttributes(dpy, window, &attrs) || attrs.map_state != IsViewable)
                window = None;
        }
        if (nowMs() - start > timeoutMs) {
            result = "pid=" + std::to_string(pid) + " ms=timeout";
            break;
        }
        sleepMs(2);
    }
    XCloseDisplay(dpy);

    FILE* report = std::fopen(reportPath.c_str(), "w");
    if (report) {
        std::fprintf(report, "%s\n", result.c_str());
        std::fclose(report);
    }

    int status = 0;
    while (waitpid(pid, &status, 0) == -1 && errno == EINTR) {
    }
    if (WIFEXITED(status))
        return WEXITSTATUS(status);
    return WIFSIGNALED(status) ? 128 + WTERMSIG(status) : 1;
}
