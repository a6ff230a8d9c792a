// Preloaded when the host is shown through Qt's VNC platform, which listens on every address of the machine: what
// asks for a port of all addresses gets that of this machine alone, so that nobody on the network sees the window.

#include <cstring>
#include <dlfcn.h>
#include <netinet/in.h>
#include <sys/socket.h>

extern "C" __attribute__((visibility("default"))) int bind(int descriptor, const sockaddr *address,
                                                           socklen_t length)
{
    static const auto systemBind = reinterpret_cast<decltype(&bind)>(dlsym(RTLD_NEXT, "bind"));
    if (address->sa_family == AF_INET && length >= sizeof(sockaddr_in)) {
        sockaddr_in local{};
        std::memcpy(&local, address, sizeof local);
        local.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        return systemBind(descriptor, reinterpret_cast<const sockaddr *>(&local), sizeof local);
    }
    if (address->sa_family == AF_INET6 && length >= sizeof(sockaddr_in6)) {
        sockaddr_in6 local{};
        std::memcpy(&local, address, sizeof local);
        // The loopback address as a socket of both families sees it, so that 127.0.0.1 reaches it.
        local.sin6_addr = in6_addr{{{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0xff, 0xff, 127, 0, 0, 1}}};
        return systemBind(descriptor, reinterpret_cast<const sockaddr *>(&local), sizeof local);
    }
    return systemBind(descriptor, address, length);
}
