// Qt's VNC platform listens on every address of the computer, and whoever reaches it sees and drives the
// program without a password. Loaded before the program (LD_PRELOAD), this library turns "listen on any
// address" into "listen on 127.0.0.1". scripts/run uses it on a machine without a display.

#include <arpa/inet.h>
#include <dlfcn.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include <cstring>

extern "C" int bind(int socket, const sockaddr* address, socklen_t length) noexcept
{
    using Bind = int (*)(int, const sockaddr*, socklen_t);
    static const auto next = reinterpret_cast<Bind>(dlsym(RTLD_NEXT, "bind"));
    if (address->sa_family == AF_INET && length >= sizeof(sockaddr_in)) {
        sockaddr_in local;
        std::memcpy(&local, address, sizeof local);
        if (local.sin_addr.s_addr == htonl(INADDR_ANY))
            local.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        return next(socket, reinterpret_cast<const sockaddr*>(&local), sizeof local);
    }
    if (address->sa_family == AF_INET6 && length >= sizeof(sockaddr_in6)) {
        sockaddr_in6 local;
        std::memcpy(&local, address, sizeof local);
        // The form in which a socket for both families names 127.0.0.1.
        if (std::memcmp(&local.sin6_addr, &in6addr_any, sizeof in6addr_any) == 0)
            inet_pton(AF_INET6, "::ffff:127.0.0.1", &local.sin6_addr);
        return next(socket, reinterpret_cast<const sockaddr*>(&local), sizeof local);
    }
    return next(socket, address, length);
}
