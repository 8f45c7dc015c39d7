// A host that keeps one TCP connection to either of two echo services on
// 127.0.0.1 through the connection manager. It kills the first service, then
// freezes the second (it still accepts, but never answers) while the first
// comes back, and prints what its listener hears. The manager's numbered
// messages appear on standard error, as the log is not configured.
#include <vorn_std/VornStd.h>

#include <chrono>
#include <clocale>
#include <condition_variable>
#include <cstdio>
#include <memory>
#include <mutex>

#include "EchoServer.h"
#include "TcpEchoConnection.h"

using namespace vorn_std;
using vorn_example::EchoServer;
using vorn_example::TcpEchoConnection;

namespace {

constexpr int IntervalMs = 100;
constexpr int EchoTimeoutMs = 300;

// Prints each status and lets the host wait for the next one.
class PrintingListener : public IConnectionStatusListener {
public:
    std::wstring toString() const override { return L"PrintingListener{}"; }

    void statusChanged(bool isUp, const std::wstring& host) override {
        std::printf("listener: service %ls is %s\n", host.c_str(), isUp ? "up" : "down");
        std::fflush(stdout);
        {
            std::lock_guard<std::mutex> guard(mutex);
            ++heard;
        }
        changed.notify_all();
    }

    bool waitForEvents(int count) {
        std::unique_lock<std::mutex> guard(mutex);
        return changed.wait_for(guard, std::chrono::seconds(20), [&] { return heard >= count; });
    }

private:
    std::mutex mutex;
    std::condition_variable changed;
    int heard = 0;
};

void step(const char* what) {
    std::printf("host: %s\n", what);
    std::fflush(stdout);
}

}  // namespace

int main() {
    std::setlocale(LC_ALL, "");
    auto first = std::make_unique<EchoServer>();
    EchoServer second;
    const int firstPort = first->port();
    auto connection = std::make_shared<TcpEchoConnection>(
        std::vector<int>{first->port(), second.port()}, EchoTimeoutMs);
    auto listener = std::make_shared<PrintingListener>();

    ConnectionManager manager(L"demo client", connection);
    manager.addListener(listener);
    TcpEchoConnection::watchWith(manager, connection, IntervalMs);

    step("connecting");
    manager.connect();
    bool recovered = listener->waitForEvents(1);

    step("killing the first echo service");
    first->kill();
    recovered = recovered && listener->waitForEvents(3);

    step("freezing the second echo service and bringing the first back");
    second.freeze();
    first = std::make_unique<EchoServer>(firstPort);
    recovered = recovered && listener->waitForEvents(5);

    std::printf("host: connected to %ls, %s\n", manager.getHost().c_str(),
                recovered ? "recovered both times" : "did NOT recover in time");
    manager.shutdown();
    return recovered ? 0 : 1;
}
