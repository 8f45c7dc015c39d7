#pragma once

#include <atomic>
#include <cstdint>
#include <deque>
#include <memory>
#include <set>
#include <string>

#include "vorn_std/base/Object.h"
#include "vorn_std/connection/AbstractConnectionManager.h"
#include "vorn_std/connection/IConnectionPolicy.h"
#include "vorn_std/thread/AbstractNotificationThread.h"
#include "vorn_std/thread/Lock.h"

namespace vorn_std {

// Keeps a client connected to one of a list of equivalent services. The
// host's implementer knows how to reach position n of its list; the manager
// decides when: the first attempt (on the caller's thread), heart beats on an
// idle connection, and, after a loss, recovery through the connection policy
// on a thread of its own until it succeeds or is told to stop. Status changes
// reach listeners in order on a second thread, never on a caller's stack.
//
// One re-entrant lock guards every field; the implementer's calls run under
// it (a slow connect blocks the getters of other threads), heart beats and
// listeners without it. Lock order: manager, policy, then a thread's own
// lock. shutdown() tells both threads to stop under the lock, then waits for
// them outside it; the destructor calls shutdown() first.
class VORNSTD_API ConnectionManager : public AbstractConnectionManager, public Object {
public:
    static constexpr int DEFAULT_HEARTBEAT_INTERVAL = 30000;
    static constexpr int DEFAULT_RECOVERY_INTERVAL = 15000;

    class VORNSTD_API ServiceStatus {
    public:
        ServiceStatus(bool isUp, const std::wstring& host);
        virtual ~ServiceStatus();
        std::wstring toString() const;
        bool isUpFlag;
        std::wstring host;
    };

    // Throws VornIllegalArgumentException for an empty name or a null implementer.
    ConnectionManager(const std::wstring& name,
                      const std::shared_ptr<IConnectionImplementer>& implementer);
    ~ConnectionManager() override;
    ConnectionManager(const ConnectionManager&) = delete;
    ConnectionManager& operator=(const ConnectionManager&) = delete;

    std::wstring getClassName() const override;
    std::shared_ptr<IConnectionImplementer> getConnectionImplementer() const override;
    std::wstring getName() const override;
    std::shared_ptr<ISendHeartBeat> getHeartBeatSender() const override;
    bool isHeartBeatEnabled() const override;
    int getHeartBeatInterval() const override;
    bool isRecoveryEnabled() const override;
    int getRecoveryInterval() const override;
    bool isConnected() const override;
    bool isInRecovery() const override;
    std::wstring getHost() const override;
    bool isKeepConnectionAlive() const;
    bool isTryAllServices() const;
    std::shared_ptr<IConnectionPolicy> getConnectionPolicy() const;
    unsigned long long getLastOperationTime() const;

    // Null turns heart beats off.
    void setHeartBeatSender(const std::shared_ptr<ISendHeartBeat>& sender) override;
    void setHeartBeatEnabled(bool enabled) override;
    // Below 1: VornIllegalArgumentException. In force at once.
    void setHeartBeatInterval(int ms) override;
    void setRecoveryEnabled(bool enabled) override;
    void setRecoveryInterval(int ms) override;
    void setTryAllServices(bool tryAll);
    // While set, disconnect() does nothing.
    void setKeepConnectionAlive(bool keepAlive);
    void setConnectionPolicy(const std::shared_ptr<IConnectionPolicy>& policy);
    // The host calls this after each successful exchange: it keeps heart
    // beats off a busy connection.
    void setLastOperationTime() override;

    std::wstring toString() const override;
    void addListener(const std::shared_ptr<IConnectionStatusListener>& listener) override;
    void removeListener(const std::shared_ptr<IConnectionStatusListener>& listener) override;
    // The wish to be connected stands even when this throws: recovery then
    // goes on in the background. Throws VornConnectException while recovery
    // runs, or when no service could be reached.
    void connect() override;
    // Withdraws the wish; stops a running recovery.
    void disconnect() override;
    void doRecovery(bool dropActiveConnection) override;
    void shutdown() override;

private:
    class NotificationThread;
    class RecoveryThread;
    friend class NotificationThread;
    friend class RecoveryThread;

    void initialConnectAttempt();
    void attemptToConnectToOneHost();
    void attemptToConnectToAllHosts(bool isRecovery);
    void connectAt(int index, const std::wstring& host);
    void processRecovery();
    void sendHeartBeat(const std::shared_ptr<ISendHeartBeat>& sender);
    void notifyListeners(bool isUp, const std::wstring& host);
    void notifyListener(const std::shared_ptr<IConnectionStatusListener>& listener, bool isUp,
                        const std::wstring& host);
    std::set<std::shared_ptr<IConnectionStatusListener>> getListeners();
    std::shared_ptr<ServiceStatus> getStatus();
    template <typename T>
    void startThreadIfNecessary(std::shared_ptr<T>& thread, const wchar_t* kind);
    void wakeThread(const std::shared_ptr<AbstractNotificationThread>& thread, const wchar_t* kind);
    void announceConnected(const wchar_t* function);
    void setInterval(int& interval, int ms, const wchar_t* function, const wchar_t* label);

    mutable Lock lock;
    const std::wstring name;
    const std::shared_ptr<IConnectionImplementer> connImpl;
    std::set<std::shared_ptr<IConnectionStatusListener>> listeners;  // guarded by lock
    std::deque<std::shared_ptr<ServiceStatus>> statusQueue;          // guarded by lock
    std::shared_ptr<NotificationThread> notificationThread;          // guarded by lock
    std::shared_ptr<ISendHeartBeat> heartBeatSender;                 // guarded by lock
    std::shared_ptr<RecoveryThread> recoveryThread;                  // guarded by lock
    // Flags are written under the lock and read without it by the recovery thread.
    std::atomic<bool> isHeartBeatEnabledFlag;
    int heartBeatInterval;  // guarded by lock
    std::atomic<bool> isRecoveryEnabledFlag;
    int recoveryInterval;  // guarded by lock
    std::shared_ptr<IConnectionPolicy> connectionPolicy;  // guarded by lock
    std::atomic<bool> isTryAllServicesFlag;
    std::atomic<bool> isKeepConnectionAliveFlag;
    std::atomic<bool> isConnectedFlag;
    std::atomic<bool> isInRecoveryFlag;
    std::atomic<bool> isWantToBeConnectedFlag;
    unsigned long long lastOperationTime;  // guarded by lock
    std::wstring currentHost;              // guarded by lock
};

}  // namespace vorn_std
