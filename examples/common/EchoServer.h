#pragma once

#include <atomic>
#include <thread>
#include <vector>

namespace vorn_example {

// A small echo service on 127.0.0.1 for the connection examples and tests:
// every byte a client sends comes back. It can be killed (its port refuses
// connections) or frozen (the kernel still completes handshakes from the
// backlog, but nothing is read or answered: a silently dead peer).
class EchoServer {
public:
    // Port 0 takes any free port; another number is bound again after a kill.
    explicit EchoServer(int port = 0);
    ~EchoServer();
    EchoServer(const EchoServer&) = delete;
    EchoServer& operator=(const EchoServer&) = delete;

    int port() const { return boundPort; }
    void kill();
    void freeze() { frozen = true; }

private:
    void serve();
    void closeAll();

    int listener = -1;
    int boundPort = 0;
    std::vector<int> clients;  // touched by the serving thread only
    std::atomic<bool> frozen{false};
    std::atomic<bool> stopping{false};
    std::thread server;
};

}  // namespace vorn_example
