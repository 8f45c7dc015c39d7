#pragma once

#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "vorn_std/connection/ConnectionManager.h"
#include "vorn_std/connection/IConnectionImplementer.h"
#include "vorn_std/connection/ISendHeartBeat.h"

namespace vorn_example {

// A host's implementer for echo services on 127.0.0.1. A connection counts as
// established only once the peer has echoed a probe: a frozen server still
// completes the handshake from its backlog. Heart beats are echoes too.
// Connecting and every echo wait at most timeoutMs.
class TcpEchoConnection : public vorn_std::IConnectionImplementer, public vorn_std::ISendHeartBeat {
public:
    TcpEchoConnection(std::vector<int> ports, int timeoutMs);
    ~TcpEchoConnection();

    std::wstring toString() const override;
    std::wstring useServiceConnectionInfo(int index) override;
    void establishConnection() override;
    void disconnectConnection() override;
    void sendHeartBeat() override;

    // Sets a manager up to try every service, with this object's heart
    // beats and one interval for heart beats and recovery.
    static void watchWith(vorn_std::ConnectionManager& manager,
                          const std::shared_ptr<TcpEchoConnection>& connection, int intervalMs);

private:
    void closeSocket();
    // Sends text and waits for it to come back; false on any failure.
    bool echo(const char* text);

    std::mutex mutex;  // the socket is used by the manager's caller and its recovery thread
    std::vector<int> ports;
    int timeoutMs;
    int selected = -1;
    int socketFd = -1;
};

}  // namespace vorn_example
