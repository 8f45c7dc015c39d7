#include <gtest/gtest.h>

#include <atomic>
#include <future>
#include <thread>

#include "support/ConnectionDoubles.h"
#include "support/DebugCapture.h"
#include "support/Failures.h"
#include "support/Threads.h"
#include "vorn_std/VornStd.h"

using namespace vorn_std;
using vorn_test::CountingHeartBeat;
using vorn_test::RecordingListener;
using vorn_test::ScriptedServices;
using vorn_test::waitUntil;

namespace {

using Events = std::vector<std::wstring>;

struct Fixture {
    explicit Fixture(std::vector<bool> up)
        : services(std::make_shared<ScriptedServices>(std::move(up))),
          listener(std::make_shared<RecordingListener>()),
          manager(std::make_unique<ConnectionManager>(L"client", services)) {
        manager->addListener(listener);
        manager->setRecoveryInterval(5);
    }
    std::shared_ptr<ScriptedServices> services;
    std::shared_ptr<RecordingListener> listener;
    std::unique_ptr<ConnectionManager> manager;
};

size_t count(const std::string& text, const std::string& what) {
    size_t found = 0;
    for (size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + 1))
        ++found;
    return found;
}

}  // namespace

TEST(ConnectionManagerArguments, RefusedWithTheirTexts) {
    auto services = std::make_shared<ScriptedServices>(std::vector<bool>{true});
    EXPECT_EQ(L"Connection manager name value is empty.",
              vorn_test::messageOf<VornIllegalArgumentException>(
                  [&] { ConnectionManager(L"", services); }));
    EXPECT_EQ(L"Connection implementer value is NULL.",
              vorn_test::messageOf<VornIllegalArgumentException>(
                  [&] { ConnectionManager(L"c", nullptr); }));
    ConnectionManager manager(L"c", services);
    EXPECT_EQ(L"Heart beat interval value 0 is below minimum of 1.",
              vorn_test::messageOf<VornIllegalArgumentException>(
                  [&] { manager.setHeartBeatInterval(0); }));
    EXPECT_EQ(L"Recovery interval value -5 is below minimum of 1.",
              vorn_test::messageOf<VornIllegalArgumentException>(
                  [&] { manager.setRecoveryInterval(-5); }));
    EXPECT_EQ(L"Connection policy value is NULL.",
              vorn_test::messageOf<VornIllegalArgumentException>(
                  [&] { manager.setConnectionPolicy(nullptr); }));
    EXPECT_EQ(
        L"Connection listener value is NULL.",
        vorn_test::messageOf<VornIllegalArgumentException>([&] { manager.addListener(nullptr); }));
    manager.setHeartBeatInterval(1);
    EXPECT_EQ(1, manager.getHeartBeatInterval());
}

TEST(ConnectionManagerConnect, SecondConnectIsQuietAndAnnouncedOnce) {
    vorn_test::DebugCapture capture;
    Fixture f({true});
    f.manager->connect();
    f.manager->connect();
    EXPECT_TRUE(f.manager->isConnected());
    EXPECT_EQ(L"host0", f.manager->getHost());
    EXPECT_EQ((Events{L"up host0"}), f.listener->waitFor(1));
    EXPECT_EQ(1u, count(capture.text(), "INFO : Client <client> connected to service at <host0>."));
    EXPECT_EQ(1, f.services->connections.load());
}

TEST(ConnectionManagerConnect, EmptyListWithTryAllIsNotFoundAndStartsNoRecovery) {
    Fixture f({});
    f.manager->setTryAllServices(true);
    EXPECT_THROW(f.manager->connect(), VornObjectNotFoundException);
    EXPECT_FALSE(f.manager->isInRecovery());
    EXPECT_FALSE(f.manager->isConnected());
}

TEST(ConnectionManagerConnect, TryAllWalksToTheOnlyWorkingService) {
    Fixture f({false, false, true});
    f.manager->setTryAllServices(true);
    f.manager->connect();
    EXPECT_EQ((std::vector<int>{0, 1, 2}), f.services->attempted());
    EXPECT_EQ(2, f.manager->getConnectionPolicy()->getIndexOfConnectionInfoInLastSuccessful());
    EXPECT_EQ(L"host2", f.manager->getHost());
}

TEST(ConnectionManagerConnect, LastPlusOneWrapsToTheTopAfterTheFinalPosition) {
    Fixture f({true, true});
    f.manager->setConnectionPolicy(std::make_shared<LastPlusOneConnectionPolicy>());
    f.manager->getConnectionPolicy()->setIndexOfConnectionInfoInLastAttempt(1);
    f.manager->connect();
    EXPECT_EQ((std::vector<int>{0}), f.services->attempted());  // 2 was refused before any call
    EXPECT_EQ(L"host0", f.manager->getHost());
}

TEST(ConnectionManagerConnect, FailureReportsToTheCallerAndRecoversInTheBackground) {
    vorn_test::DebugCapture capture;
    Fixture f({false, false});
    EXPECT_EQ(L"refused by host0",
              vorn_test::messageOf<VornConnectException>([&] { f.manager->connect(); }));
    EXPECT_TRUE(f.manager->isInRecovery());
    EXPECT_EQ(L"client. Automatic recovery to service is in progress.",
              vorn_test::messageOf<VornConnectException>([&] { f.manager->connect(); }));
    f.services->setUp(1, true);
    EXPECT_EQ((Events{L"up host1"}), f.listener->waitFor(1));
    EXPECT_TRUE(waitUntil([&] { return f.manager->isConnected(); }));
    EXPECT_FALSE(f.manager->isInRecovery());
    EXPECT_NE(std::string::npos,
              capture.text().find("ERROR : Client <client> failed to connect to any service."));
}

TEST(ConnectionManagerDisconnect, KeepAliveLeavesTheConnectionAndTheWish) {
    Fixture f({true});
    f.manager->connect();
    f.manager->setKeepConnectionAlive(true);
    f.manager->disconnect();
    EXPECT_TRUE(f.manager->isConnected());
    EXPECT_NE(std::wstring::npos, f.manager->toString().find(L",isWantToBeConnectedFlag=true,"));
    f.manager->setKeepConnectionAlive(false);
    f.manager->disconnect();
    EXPECT_FALSE(f.manager->isConnected());
    EXPECT_EQ((Events{L"up host0", L"down host0"}), f.listener->waitFor(2));
    EXPECT_EQ(1, f.services->disconnections.load());
}

TEST(ConnectionManagerRecovery, LossIsAnnouncedDownThenUpOnTheNextService) {
    Fixture f({true, true});
    f.manager->connect();
    f.services->setUp(0, false);
    f.manager->doRecovery(true);
    EXPECT_EQ((Events{L"up host0", L"down host0", L"up host1"}), f.listener->waitFor(3));
    EXPECT_TRUE(waitUntil([&] { return f.manager->isConnected(); }));
}

TEST(ConnectionManagerRecovery, DisconnectStopsARunningRecovery) {
    Fixture f({false});
    EXPECT_THROW(f.manager->connect(), VornConnectException);
    f.manager->disconnect();
    EXPECT_FALSE(f.manager->isInRecovery());
    f.services->setUp(0, true);
    f.manager->setRecoveryEnabled(true);  // no wish to be connected: nothing starts
    EXPECT_FALSE(f.manager->isInRecovery());
    EXPECT_FALSE(f.manager->isConnected());
}

TEST(ConnectionManagerRecovery, OtherFailureEndsTheRecoveryThreadWithRecoveryFlagged) {
    vorn_test::DebugCapture capture;
    Fixture f({false});
    EXPECT_THROW(f.manager->connect(), VornConnectException);
    std::atomic<bool> armed{true};
    f.services->setBeforeConnect([&] {
        if (armed.exchange(false)) throw std::logic_error("implementer bug");
    });
    ASSERT_TRUE(waitUntil(
        [&] { return capture.text().find("terminated unexpectedly") != std::string::npos; }));
    EXPECT_TRUE(f.manager->isInRecovery());
    EXPECT_NE(std::string::npos,
              capture.text().find("Reason: Caught std::exception of type std::logic_error"));
}

TEST(ConnectionManagerHeartBeat, DeadPeerIsDetectedAndRecovered) {
    Fixture f({true, true});
    auto heartBeat = std::make_shared<CountingHeartBeat>();
    f.manager->setHeartBeatSender(heartBeat);
    f.manager->setHeartBeatInterval(5);
    f.manager->setHeartBeatEnabled(true);
    f.manager->connect();
    ASSERT_TRUE(waitUntil([&] { return heartBeat->sent.load() > 0; }));
    f.services->setUp(0, false);
    heartBeat->dead = true;
    EXPECT_EQ((Events{L"up host0", L"down host0", L"up host1"}), f.listener->waitFor(3));
}

TEST(ConnectionManagerHeartBeat, BusyConnectionNeverSendsOne) {
    Fixture f({true});
    auto heartBeat = std::make_shared<CountingHeartBeat>();
    f.manager->setHeartBeatSender(heartBeat);
    f.manager->setHeartBeatInterval(300);  // the recovery thread checks about twice
    f.manager->setHeartBeatEnabled(true);
    f.manager->connect();
    for (int i = 0; i < 70; ++i) {
        f.manager->setLastOperationTime();
        Thread::sleep(10);
    }
    EXPECT_EQ(0, heartBeat->sent.load());
}

TEST(ConnectionManagerListeners, ThrowingListenerStopsNeitherOthersNorLaterEvents) {
    Fixture f({true});
    auto thrower = std::make_shared<RecordingListener>();
    thrower->onStatus = [](bool) { throw VornIOException(L"listener broke"); };
    f.manager->addListener(thrower);
    f.manager->connect();
    f.manager->disconnect();
    EXPECT_EQ((Events{L"up host0", L"down host0"}), f.listener->waitFor(2));
    EXPECT_EQ((Events{L"up host0", L"down host0"}), thrower->waitFor(2));
}

TEST(ConnectionManagerListeners, NothingQueuedWithoutListenersAndLateListenersSeeOnlyNews) {
    auto services = std::make_shared<ScriptedServices>(std::vector<bool>{true});
    ConnectionManager manager(L"client", services);
    manager.connect();
    auto late = std::make_shared<RecordingListener>();
    manager.addListener(late);
    manager.disconnect();
    EXPECT_EQ((Events{L"down host0"}), late->waitFor(1));
}

TEST(ConnectionManagerListeners, ListenerMayRemoveItselfDuringItsCallback) {
    Fixture f({true});
    auto once = std::make_shared<RecordingListener>();
    once->onStatus = [&](bool) { f.manager->removeListener(once); };
    f.manager->addListener(once);
    f.manager->connect();
    f.manager->disconnect();
    EXPECT_EQ((Events{L"up host0", L"down host0"}), f.listener->waitFor(2));
    EXPECT_EQ((Events{L"up host0"}), once->waitFor(1));
}

TEST(ConnectionManagerShutdown, WhileARecoveryAttemptIsInProgress) {
    Fixture f({false});
    vorn_std::Event entered(false, false);
    vorn_std::Event release(false, false);
    EXPECT_THROW(f.manager->connect(), VornConnectException);
    f.services->setBeforeConnect([&] {
        entered.signal();
        Concurrency::waitForSingleObject(release, -1);
    });
    ASSERT_EQ(0, Concurrency::waitForSingleObject(entered, 30000));
    auto stopping = std::async(std::launch::async, [&] { f.manager->shutdown(); });
    release.signal();
    EXPECT_EQ(std::future_status::ready, stopping.wait_for(vorn_test::Eventually));
    EXPECT_FALSE(f.manager->isInRecovery());
    EXPECT_FALSE(f.manager->isConnected());
    f.services->setBeforeConnect(nullptr);
    f.services->setUp(0, true);
    f.manager->connect();  // allowed again, and restarts the threads
    EXPECT_TRUE(f.manager->isConnected());
}

TEST(ConnectionManagerShutdown, ConnectConcurrentlyWithLoss) {
    Fixture f({true, true});
    f.manager->connect();
    std::atomic<bool> stop{false};
    std::thread losing([&] {
        for (int i = 0; i < 200 && !stop; ++i) f.manager->doRecovery(true);
    });
    for (int i = 0; i < 200; ++i) {
        try {
            f.manager->connect();
        } catch (const VornConnectException&) {
        }
    }
    stop = true;
    losing.join();
    EXPECT_TRUE(waitUntil([&] { return f.manager->isConnected() && !f.manager->isInRecovery(); }));
    f.manager->shutdown();
    EXPECT_FALSE(f.manager->isConnected());
}

TEST(ConnectionManagerText, EveryFieldInOrder) {
    auto services = std::make_shared<ScriptedServices>(std::vector<bool>{true});
    ConnectionManager manager(L"client", services);
    EXPECT_EQ(
        L"ConnectionManager{name='client',connImpl=ScriptedServices{},heartBeatSender=NULL,"
        L"isHeartBeatEnabledFlag=false,heartBeatInterval=30000,isRecoveryEnabledFlag=true,"
        L"recoveryInterval=15000,connectionPolicy=ZeroStartConnectionPolicy{"
        L"AbstractConnectionPolicy{indexOfLastAttempted=-1,indexOfLastSuccessful=-1}},"
        L"isTryAllServicesFlag=false,isKeepConnectionAliveFlag=false,isConnectedFlag=false,"
        L"isInRecoveryFlag=false,isWantToBeConnectedFlag=false,lastOperationTime=0,currentHost=''}",
        manager.toString());
    EXPECT_EQ(L"ServiceStatus{isUpFlag=true,host='h'}",
              ConnectionManager::ServiceStatus(true, L"h").toString());
}
