// A real connection: the manager keeps a TCP client on one of two echo
// services on 127.0.0.1, through a killed server and a silently dead one.
#include <gtest/gtest.h>

#include <memory>

#include "EchoServer.h"
#include "TcpEchoConnection.h"
#include "support/ConnectionDoubles.h"
#include "vorn_std/VornStd.h"

using namespace vorn_std;
using vorn_example::EchoServer;
using vorn_example::TcpEchoConnection;
using vorn_test::RecordingListener;

namespace {

constexpr int IntervalMs = 30;
constexpr int EchoTimeoutMs = 200;

std::wstring host(const EchoServer& server) { return L"127.0.0.1:" + std::to_wstring(server.port()); }

}  // namespace

TEST(TcpRecovery, KilledServerThenSilentServerAreBothRecoveredFrom) {
    auto first = std::make_unique<EchoServer>();
    EchoServer second;
    const int firstPort = first->port();
    auto connection = std::make_shared<TcpEchoConnection>(
        std::vector<int>{first->port(), second.port()}, EchoTimeoutMs);
    auto listener = std::make_shared<RecordingListener>();
    ConnectionManager manager(L"echo client", connection);
    manager.addListener(listener);
    TcpEchoConnection::watchWith(manager, connection, IntervalMs);
    manager.connect();
    EXPECT_EQ(host(*first), manager.getHost());

    first->kill();  // heart beats find the connection closed: on to the second
    const auto afterKill = listener->waitFor(3);
    ASSERT_EQ(3u, afterKill.size());
    EXPECT_EQ(L"down " + host(*first), afterKill[1]);
    EXPECT_EQ(L"up " + host(second), afterKill[2]);

    second.freeze();  // accepts from its backlog, never answers
    first = std::make_unique<EchoServer>(firstPort);
    const auto afterFreeze = listener->waitFor(5);
    ASSERT_EQ(5u, afterFreeze.size());
    EXPECT_EQ(L"down " + host(second), afterFreeze[3]);
    EXPECT_EQ(L"up " + host(*first), afterFreeze[4]);
    EXPECT_TRUE(manager.isConnected());
    manager.shutdown();
}
