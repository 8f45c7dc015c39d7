#include "TcpEchoConnection.h"

#include <arpa/inet.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "vorn_std/exception/VornConnectException.h"
#include "vorn_std/exception/VornObjectNotFoundException.h"

namespace vorn_example {

namespace {

bool waitFor(int fd, short events, int timeoutMs) {
    pollfd entry{fd, events, 0};
    return poll(&entry, 1, timeoutMs) == 1 && (entry.revents & events) != 0;
}

// A non-blocking connect bounded by the timeout.
int connectWithin(int port, int timeoutMs) {
    const int fd = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(static_cast<uint16_t>(port));
    if (connect(fd, reinterpret_cast<sockaddr*>(&address), sizeof address) != 0) {
        int error = errno;
        if (error == EINPROGRESS && waitFor(fd, POLLOUT, timeoutMs)) {
            socklen_t length = sizeof error;
            getsockopt(fd, SOL_SOCKET, SO_ERROR, &error, &length);
        }
        if (error != 0) {
            close(fd);
            return -1;
        }
    }
    return fd;
}

}  // namespace

TcpEchoConnection::TcpEchoConnection(std::vector<int> ports, int timeoutMs)
    : ports(std::move(ports)), timeoutMs(timeoutMs) {}

TcpEchoConnection::~TcpEchoConnection() { closeSocket(); }

std::wstring TcpEchoConnection::toString() const { return L"TcpEchoConnection{}"; }

std::wstring TcpEchoConnection::useServiceConnectionInfo(int index) {
    std::lock_guard<std::mutex> guard(mutex);
    if (index < 0 || index >= static_cast<int>(ports.size())) {
        throw vorn_std::VornObjectNotFoundException(L"No service at position " +
                                                    std::to_wstring(index) + L".");
    }
    selected = index;
    return L"127.0.0.1:" + std::to_wstring(ports[index]);
}

void TcpEchoConnection::establishConnection() {
    std::lock_guard<std::mutex> guard(mutex);
    if (socketFd >= 0) close(socketFd);
    socketFd = connectWithin(ports[selected], timeoutMs);
    if (socketFd < 0 || !echo("hello\n")) {
        closeSocket();
        throw vorn_std::VornConnectException(L"No echo from 127.0.0.1:" +
                                             std::to_wstring(ports[selected]) + L".");
    }
}

void TcpEchoConnection::disconnectConnection() {
    std::lock_guard<std::mutex> guard(mutex);
    closeSocket();
}

void TcpEchoConnection::sendHeartBeat() {
    std::lock_guard<std::mutex> guard(mutex);
    if (socketFd < 0 || !echo("beat\n")) {
        throw vorn_std::VornConnectException(L"Heart beat unanswered.");
    }
}

void TcpEchoConnection::watchWith(vorn_std::ConnectionManager& manager,
                                  const std::shared_ptr<TcpEchoConnection>& connection,
                                  int intervalMs) {
    manager.setTryAllServices(true);
    manager.setHeartBeatSender(connection);
    manager.setHeartBeatInterval(intervalMs);
    manager.setRecoveryInterval(intervalMs);
    manager.setHeartBeatEnabled(true);
}

void TcpEchoConnection::closeSocket() {
    if (socketFd >= 0) {
        close(socketFd);
        socketFd = -1;
    }
}

bool TcpEchoConnection::echo(const char* text) {
    const size_t length = std::strlen(text);
    if (send(socketFd, text, length, MSG_NOSIGNAL) != static_cast<ssize_t>(length)) {
        return false;
    }
    std::string answer;
    while (answer.size() < length) {
        if (!waitFor(socketFd, POLLIN, timeoutMs)) return false;
        char buffer[64];
        const ssize_t got = recv(socketFd, buffer, sizeof buffer, 0);
        if (got <= 0) return false;
        answer.append(buffer, static_cast<size_t>(got));
    }
    return answer == text;
}

}  // namespace vorn_example
