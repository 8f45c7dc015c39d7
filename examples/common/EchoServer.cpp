#include "EchoServer.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <stdexcept>

namespace vorn_example {

namespace {
constexpr int PollMs = 20;
constexpr int Backlog = 16;
}  // namespace

EchoServer::EchoServer(int port) {
    listener = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const int yes = 1;
    setsockopt(listener, SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(static_cast<uint16_t>(port));
    if (bind(listener, reinterpret_cast<sockaddr*>(&address), sizeof address) != 0 ||
        listen(listener, Backlog) != 0) {
        close(listener);
        throw std::runtime_error("echo server cannot listen");
    }
    socklen_t length = sizeof address;
    getsockname(listener, reinterpret_cast<sockaddr*>(&address), &length);
    boundPort = ntohs(address.sin_port);
    server = std::thread([this] { serve(); });
}

EchoServer::~EchoServer() { kill(); }

void EchoServer::kill() {
    if (!stopping.exchange(true) && server.joinable()) {
        server.join();
    }
}

void EchoServer::serve() {
    while (!stopping) {
        std::vector<pollfd> watched;
        if (!frozen) {
            watched.push_back({listener, POLLIN, 0});
            for (int client : clients) watched.push_back({client, POLLIN, 0});
        }
        if (poll(watched.data(), watched.size(), PollMs) <= 0) {
            continue;
        }
        for (const pollfd& entry : watched) {
            if ((entry.revents & (POLLIN | POLLHUP | POLLERR)) == 0) continue;
            if (entry.fd == listener) {
                const int client = accept4(listener, nullptr, nullptr, SOCK_CLOEXEC);
                if (client >= 0) clients.push_back(client);
                continue;
            }
            char buffer[512];
            const ssize_t got = read(entry.fd, buffer, sizeof buffer);
            if (got <= 0 || write(entry.fd, buffer, static_cast<size_t>(got)) != got) {
                close(entry.fd);
                clients.erase(std::find(clients.begin(), clients.end(), entry.fd));
            }
        }
    }
    closeAll();
}

void EchoServer::closeAll() {
    for (int client : clients) close(client);
    clients.clear();
    close(listener);
    listener = -1;
}

}  // namespace vorn_example
