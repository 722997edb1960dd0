#include "displayprobe.h"

#include <QByteArray>
#include <QList>
#include <QtGlobal>

#if defined(Q_OS_LINUX)
#include <netdb.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <cerrno>
#include <cstddef>
#include <cstring>
#endif

namespace DisplayProbe {

#if defined(Q_OS_LINUX)
namespace {

// X displays listen on TCP port 6000 + the display number.
constexpr int kXTcpPortBase = 6000;
// How long a display over the network may take to answer.
constexpr int kConnectTimeoutMs = 3000;

// Connects to a local socket by path; "abstract" uses Linux's abstract
// name space (a leading NUL), where X servers also listen.
bool localSocketAnswers(const QByteArray& path, bool abstract)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const int offset = abstract ? 1 : 0;
    if (path.isEmpty() || path.size() + offset >= int(sizeof address.sun_path))
        return false;
    std::memcpy(address.sun_path + offset, path.constData(), size_t(path.size()));
    const socklen_t length = socklen_t(offsetof(sockaddr_un, sun_path) + offset + path.size() + (abstract ? 0 : 1));
    const int fd = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (fd < 0)
        return false;
    const bool answered = ::connect(fd, reinterpret_cast<const sockaddr*>(&address), length) == 0;
    ::close(fd);
    return answered;
}

bool tcpAnswers(const QByteArray& host, int port)
{
    addrinfo hints{};
    hints.ai_socktype = SOCK_STREAM;
    addrinfo* found = nullptr;
    if (::getaddrinfo(host.constData(), QByteArray::number(port).constData(), &hints, &found) != 0)
        return false;
    bool answered = false;
    for (addrinfo* a = found; a && !answered; a = a->ai_next) {
        const int fd = ::socket(a->ai_family, a->ai_socktype | SOCK_NONBLOCK | SOCK_CLOEXEC, a->ai_protocol);
        if (fd < 0)
            continue;
        if (::connect(fd, a->ai_addr, a->ai_addrlen) == 0) {
            answered = true;
        } else if (errno == EINPROGRESS) {
            pollfd waiting{fd, POLLOUT, 0};
            int error = 0;
            socklen_t size = sizeof error;
            answered = ::poll(&waiting, 1, kConnectTimeoutMs) == 1
                && ::getsockopt(fd, SOL_SOCKET, SO_ERROR, &error, &size) == 0 && error == 0;
        }
        ::close(fd);
    }
    ::freeaddrinfo(found);
    return answered;
}

// DISPLAY is [protocol/][host]:number[.screen]; an empty host, "unix" or a
// unix protocol is this machine's socket.
bool xAnswers(const QByteArray& display)
{
    const int colon = display.lastIndexOf(':');
    if (colon < 0)
        return false;
    QByteArray host = display.left(colon);
    const QByteArray number = display.mid(colon + 1).split('.').constFirst(); // the screen does not matter
    bool ok = false;
    const int n = number.toInt(&ok);
    if (!ok || n < 0)
        return false;
    const int slash = host.indexOf('/');
    const QByteArray protocol = slash >= 0 ? host.left(slash) : QByteArray();
    if (slash >= 0)
        host = host.mid(slash + 1);
    if (host.isEmpty() || host == "unix" || protocol == "unix") {
        const QByteArray socket = "/tmp/.X11-unix/X" + number;
        return localSocketAnswers(socket, true) || localSocketAnswers(socket, false);
    }
    return tcpAnswers(host, kXTcpPortBase + n);
}

bool waylandAnswers(const QByteArray& name)
{
    if (name.startsWith('/'))
        return localSocketAnswers(name, false);
    const QByteArray runtime = qgetenv("XDG_RUNTIME_DIR");
    return !runtime.isEmpty() && localSocketAnswers(runtime + '/' + name, false);
}

} // namespace

Result probe()
{
    if (!qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        return Result::ChosenByHand;
    const QByteArray display = qgetenv("DISPLAY");
    const QByteArray wayland = qgetenv("WAYLAND_DISPLAY");
    const bool x = !display.isEmpty() && xAnswers(display);
    const bool w = !wayland.isEmpty() && waylandAnswers(wayland);
    if (x && !w)
        qputenv("QT_QPA_PLATFORM", "xcb");
    return x || w ? Result::Reachable : Result::Missing;
}
#else
Result probe()
{
    return Result::Reachable;
}
#endif

} // namespace DisplayProbe
