#include "vorn_std/connection/ConnectionManager.h"

#include <cxxabi.h>

#include <exception>
#include <vector>

#include "internal/PlatformText.h"
#include "internal/Trace.h"
#include "vorn_std/base/ErrorUtils.h"
#include "vorn_std/connection/IConnectionImplementer.h"
#include "vorn_std/connection/IConnectionStatusListener.h"
#include "vorn_std/connection/ISendHeartBeat.h"
#include "vorn_std/connection/ZeroStartConnectionPolicy.h"
#include "vorn_std/exception/VornConnectException.h"
#include "vorn_std/exception/VornObjectNotFoundException.h"
#include "vorn_std/log/VornLoggerSTD.h"
#include "vorn_std/thread/AutoLock.h"
#include "vorn_std/thread/Concurrency.h"
#include "vorn_std/thread/TimeUtils.h"

namespace vorn_std {

namespace {

constexpr const wchar_t* ClassName = L"vorn_std.ConnectionManager";
constexpr const wchar_t* NameLabel = L"Connection manager name";
constexpr const wchar_t* ImplementerLabel = L"Connection implementer";
constexpr const wchar_t* PolicyLabel = L"Connection policy";
constexpr const wchar_t* ListenerLabel = L"Connection listener";
constexpr const wchar_t* HeartBeatIntervalLabel = L"Heart beat interval";
constexpr const wchar_t* RecoveryIntervalLabel = L"Recovery interval";
constexpr const wchar_t* RecoveryInProgressText = L". Automatic recovery to service is in progress.";
constexpr const wchar_t* NoServiceReachedText = L". Unable to connect to any service.";
constexpr const wchar_t* IgnoredText = L"Caught <%ls> which is ignored.";
constexpr const wchar_t* NotificationKind = L"notification";
constexpr const wchar_t* RecoveryKind = L"recovery";
constexpr const wchar_t* NullText = L"NULL";

const wchar_t* word(bool flag) { return flag ? L"true" : L"false"; }

const wchar_t* const Connect = L"vorn_std::ConnectionManager::connect";
const wchar_t* const Disconnect = L"vorn_std::ConnectionManager::disconnect";
const wchar_t* const DoRecovery = L"vorn_std::ConnectionManager::doRecovery";
const wchar_t* const AllHosts = L"vorn_std::ConnectionManager::attemptToConnectToAllHosts";
const wchar_t* const ProcessRecovery = L"vorn_std::ConnectionManager::processRecovery";
const wchar_t* const SendHeartBeat = L"vorn_std::ConnectionManager::sendHeartBeat";
const wchar_t* const NotifyListener = L"vorn_std::ConnectionManager::notifyListener";
const wchar_t* const StartThread = L"vorn_std::ConnectionManager::startThreadIfNecessary";
const wchar_t* const WakeThread = L"vorn_std::ConnectionManager::wakeThread";
const wchar_t* const Shutdown = L"vorn_std::ConnectionManager::shutdown";
const wchar_t* const HeartBeatOfRecovery =
    L"vorn_std::ConnectionManager::RecoveryThread::sendHeartBeat";

}  // namespace

// Recovery and heart beats: sleeps for the recovery interval while
// recovering, the heart beat interval while connected with heart beats on,
// and without limit otherwise.
class ConnectionManager::RecoveryThread : public AbstractNotificationThread {
public:
    explicit RecoveryThread(ConnectionManager* manager)
        : AbstractNotificationThread(manager->name + L" recovery thread"), manager(manager) {}

    std::wstring toString() const override {
        return L"RecoveryThread{" + AbstractNotificationThread::toString() + L"}";
    }

    void run() override {
        while (!isShutdown()) {
            if (manager->isWantToBeConnectedFlag) {
                if (manager->isInRecoveryFlag) {
                    manager->processRecovery();
                } else if (manager->isConnectedFlag && manager->isHeartBeatEnabledFlag) {
                    sendHeartBeat();
                }
            }
            sleepForPeriod(period());
        }
    }

private:
    long period() const {
        if (manager->isInRecoveryFlag) {
            return manager->getRecoveryInterval();
        }
        if (manager->isConnectedFlag && manager->isHeartBeatEnabledFlag) {
            return manager->getHeartBeatInterval();
        }
        return -1;
    }

    // Only an idle connection is probed: recent work by the host proves it alive.
    void sendHeartBeat() {
        const std::shared_ptr<ISendHeartBeat> sender = manager->getHeartBeatSender();
        if (!sender) {
            return;
        }
        const unsigned long long due =
            manager->getLastOperationTime() +
            static_cast<unsigned long long>(manager->getHeartBeatInterval());
        if (due < TimeUtils::getCurrentTimeMs()) {
            try {
                manager->sendHeartBeat(sender);
            } catch (const VornConnectException&) {
                VornLoggerSTD::getInstance().STD2000(HeartBeatOfRecovery, manager->name.c_str(),
                                                     manager->getHost().c_str());
                manager->doRecovery(true);
            }
        }
    }

    ConnectionManager* manager;
};

// Delivers status events one at a time, in order, with no manager lock held.
class ConnectionManager::NotificationThread : public AbstractNotificationThread {
public:
    explicit NotificationThread(ConnectionManager* manager)
        : AbstractNotificationThread(manager->name + L" notification thread"), manager(manager) {}

    std::wstring toString() const override {
        return L"NotificationThread{" + AbstractNotificationThread::toString() + L"}";
    }

    void run() override {
        while (!isShutdown()) {
            for (auto status = manager->getStatus(); status && !isShutdown();
                 status = manager->getStatus()) {
                for (const auto& listener : manager->getListeners()) {
                    VORN_TRACE(L"vorn_std::ConnectionManager::NotificationThread::run",
                               L"Notifying <%ls> listener.", listener->toString().c_str());
                    manager->notifyListener(listener, status->isUpFlag, status->host);
                }
            }
            sleepForPeriod(-1);
        }
    }

private:
    ConnectionManager* manager;
};

ConnectionManager::ServiceStatus::ServiceStatus(bool isUp, const std::wstring& host)
    : isUpFlag(isUp), host(host) {}

ConnectionManager::ServiceStatus::~ServiceStatus() = default;

std::wstring ConnectionManager::ServiceStatus::toString() const {
    return std::wstring(L"ServiceStatus{isUpFlag=") + word(isUpFlag) + L",host='" + host + L"'}";
}

ConnectionManager::ConnectionManager(const std::wstring& name,
                                     const std::shared_ptr<IConnectionImplementer>& implementer)
    : name(name),
      connImpl(implementer),
      isHeartBeatEnabledFlag(false),
      heartBeatInterval(DEFAULT_HEARTBEAT_INTERVAL),
      isRecoveryEnabledFlag(true),
      recoveryInterval(DEFAULT_RECOVERY_INTERVAL),
      connectionPolicy(std::make_shared<ZeroStartConnectionPolicy>()),
      isTryAllServicesFlag(false),
      isKeepConnectionAliveFlag(false),
      isConnectedFlag(false),
      isInRecoveryFlag(false),
      isWantToBeConnectedFlag(false),
      lastOperationTime(0) {
    ErrorUtils::isEmptyEx(name, L"vorn_std::ConnectionManager::ConnectionManager", NameLabel);
    ErrorUtils::isNullEx(implementer.get(), L"vorn_std::ConnectionManager::ConnectionManager",
                         ImplementerLabel);
}

ConnectionManager::~ConnectionManager() { shutdown(); }

std::wstring ConnectionManager::getClassName() const { return ClassName; }

std::shared_ptr<IConnectionImplementer> ConnectionManager::getConnectionImplementer() const {
    return connImpl;
}

std::wstring ConnectionManager::getName() const { return name; }

std::shared_ptr<ISendHeartBeat> ConnectionManager::getHeartBeatSender() const {
    AutoLock<Lock> guard(&lock);
    return heartBeatSender;
}

bool ConnectionManager::isHeartBeatEnabled() const { return isHeartBeatEnabledFlag; }

int ConnectionManager::getHeartBeatInterval() const {
    AutoLock<Lock> guard(&lock);
    return heartBeatInterval;
}

bool ConnectionManager::isRecoveryEnabled() const { return isRecoveryEnabledFlag; }

int ConnectionManager::getRecoveryInterval() const {
    AutoLock<Lock> guard(&lock);
    return recoveryInterval;
}

bool ConnectionManager::isConnected() const { return isConnectedFlag; }
bool ConnectionManager::isInRecovery() const { return isInRecoveryFlag; }

std::wstring ConnectionManager::getHost() const {
    AutoLock<Lock> guard(&lock);
    return currentHost;
}

bool ConnectionManager::isKeepConnectionAlive() const { return isKeepConnectionAliveFlag; }
bool ConnectionManager::isTryAllServices() const { return isTryAllServicesFlag; }

std::shared_ptr<IConnectionPolicy> ConnectionManager::getConnectionPolicy() const {
    AutoLock<Lock> guard(&lock);
    return connectionPolicy;
}

unsigned long long ConnectionManager::getLastOperationTime() const {
    AutoLock<Lock> guard(&lock);
    return lastOperationTime;
}

void ConnectionManager::setHeartBeatSender(const std::shared_ptr<ISendHeartBeat>& sender) {
    AutoLock<Lock> guard(&lock);
    heartBeatSender = sender;
}

void ConnectionManager::setHeartBeatEnabled(bool enabled) {
    AutoLock<Lock> guard(&lock);
    isHeartBeatEnabledFlag = enabled;
    if (enabled) {
        startThreadIfNecessary(recoveryThread, RecoveryKind);
    }
    wakeThread(recoveryThread, RecoveryKind);
}

void ConnectionManager::setHeartBeatInterval(int ms) {
    setInterval(heartBeatInterval, ms, L"vorn_std::ConnectionManager::setHeartBeatInterval",
                HeartBeatIntervalLabel);
}

// The recovery thread is woken so that the new interval is in force at once.
void ConnectionManager::setInterval(int& interval, int ms, const wchar_t* function,
                                    const wchar_t* label) {
    ErrorUtils::isBelowMinimumEx(ms, 1, function, label);
    AutoLock<Lock> guard(&lock);
    interval = ms;
    wakeThread(recoveryThread, RecoveryKind);
}

void ConnectionManager::setRecoveryEnabled(bool enabled) {
    AutoLock<Lock> guard(&lock);
    isRecoveryEnabledFlag = enabled;
    if (enabled) {
        doRecovery(false);
    } else {
        isInRecoveryFlag = false;
        wakeThread(recoveryThread, RecoveryKind);
    }
}

void ConnectionManager::setRecoveryInterval(int ms) {
    setInterval(recoveryInterval, ms, L"vorn_std::ConnectionManager::setRecoveryInterval",
                RecoveryIntervalLabel);
}

void ConnectionManager::setTryAllServices(bool tryAll) {
    AutoLock<Lock> guard(&lock);
    isTryAllServicesFlag = tryAll;
}

void ConnectionManager::setKeepConnectionAlive(bool keepAlive) {
    AutoLock<Lock> guard(&lock);
    isKeepConnectionAliveFlag = keepAlive;
}

void ConnectionManager::setConnectionPolicy(const std::shared_ptr<IConnectionPolicy>& policy) {
    ErrorUtils::isNullEx(policy.get(), L"vorn_std::ConnectionManager::setConnectionPolicy",
                         PolicyLabel);
    AutoLock<Lock> guard(&lock);
    connectionPolicy = policy;
}

void ConnectionManager::setLastOperationTime() {
    AutoLock<Lock> guard(&lock);
    lastOperationTime = TimeUtils::getCurrentTimeMs();
}

std::wstring ConnectionManager::toString() const {
    AutoLock<Lock> guard(&lock);
    return L"ConnectionManager{name='" + name + L"',connImpl=" + connImpl->toString() +
           L",heartBeatSender=" + (heartBeatSender ? heartBeatSender->toString() : NullText) +
           L",isHeartBeatEnabledFlag=" + word(isHeartBeatEnabledFlag) + L",heartBeatInterval=" +
           std::to_wstring(heartBeatInterval) + L",isRecoveryEnabledFlag=" +
           word(isRecoveryEnabledFlag) + L",recoveryInterval=" + std::to_wstring(recoveryInterval) +
           L",connectionPolicy=" + connectionPolicy->toString() + L",isTryAllServicesFlag=" +
           word(isTryAllServicesFlag) + L",isKeepConnectionAliveFlag=" +
           word(isKeepConnectionAliveFlag) + L",isConnectedFlag=" + word(isConnectedFlag) +
           L",isInRecoveryFlag=" + word(isInRecoveryFlag) + L",isWantToBeConnectedFlag=" +
           word(isWantToBeConnectedFlag) + L",lastOperationTime=" +
           std::to_wstring(lastOperationTime) + L",currentHost='" + currentHost + L"'}";
}

void ConnectionManager::addListener(const std::shared_ptr<IConnectionStatusListener>& listener) {
    ErrorUtils::isNullEx(listener.get(), L"vorn_std::ConnectionManager::addListener", ListenerLabel);
    AutoLock<Lock> guard(&lock);
    listeners.insert(listener);
    startThreadIfNecessary(notificationThread, NotificationKind);
}

void ConnectionManager::removeListener(const std::shared_ptr<IConnectionStatusListener>& listener) {
    ErrorUtils::isNullEx(listener.get(), L"vorn_std::ConnectionManager::removeListener",
                         ListenerLabel);
    AutoLock<Lock> guard(&lock);
    listeners.erase(listener);
}

void ConnectionManager::connect() {
    AutoLock<Lock> guard(&lock);
    isWantToBeConnectedFlag = true;
    if (isInRecoveryFlag) {
        VornConnectException racing(name + RecoveryInProgressText);
        racing.logDebug(Connect);
        throw racing;
    }
    if (isConnectedFlag) {
        VORN_CALL(Connect, L"Already connected.");
        return;
    }
    try {
        initialConnectAttempt();
    } catch (const VornConnectException&) {
        VornLoggerSTD::getInstance().STD2001(Connect, name.c_str());
        doRecovery(true);
        VORN_CALL(Connect, L"Doing recovery.");
        throw;
    }
    isConnectedFlag = true;
    setLastOperationTime();
    startThreadIfNecessary(recoveryThread, RecoveryKind);
    wakeThread(recoveryThread, RecoveryKind);
    announceConnected(Connect);
}

void ConnectionManager::initialConnectAttempt() {
    if (isTryAllServicesFlag) {
        attemptToConnectToAllHosts(false);
    } else {
        attemptToConnectToOneHost();
    }
}

void ConnectionManager::attemptToConnectToOneHost() {
    int index = isRecoveryEnabledFlag ? connectionPolicy->getIndexForNextConnectionAttempt(false, true)
                                      : 0;
    std::wstring host;
    try {
        host = callUseServiceConnectionInfo(connImpl, index);
    } catch (const VornObjectNotFoundException&) {
        if (index == 0) {
            throw;
        }
        index = 0;
        host = callUseServiceConnectionInfo(connImpl, index);
    }
    connectAt(index, host);
}

// The attempt is recorded before the connection is tried, the success after.
void ConnectionManager::connectAt(int index, const std::wstring& host) {
    connectionPolicy->setIndexOfConnectionInfoInLastAttempt(index);
    callEstablishConnection(connImpl);
    connectionPolicy->setIndexOfConnectionInfoInLastSuccessful(index);
    currentHost = host;
}

void ConnectionManager::attemptToConnectToAllHosts(bool isRecovery) {
    bool wrapped = false;
    int index = connectionPolicy->getIndexForNextConnectionAttempt(isRecovery, true);
    for (;;) {
        VORN_TRACE(AllHosts, L"Attempting host <%d>.", index);
        try {
            std::wstring host;
            try {
                host = callUseServiceConnectionInfo(connImpl, index);
            } catch (const VornObjectNotFoundException&) {
                if (wrapped || index == 0) {
                    throw;
                }
                wrapped = true;
                index = 0;
                host = callUseServiceConnectionInfo(connImpl, index);
            }
            connectAt(index, host);
            return;
        } catch (const VornConnectException& e) {
            VORN_DEBUG(AllHosts, IgnoredText, e.toString().c_str());
        } catch (const VornObjectNotFoundException& e) {
            if (index == 0) {
                VORN_CALL(AllHosts, L"No service configured.");
                throw;
            }
            VornConnectException exhausted(name + NoServiceReachedText, e);
            exhausted.logDebug(AllHosts);
            throw exhausted;
        }
        index = connectionPolicy->getIndexForNextConnectionAttempt(isRecovery, false);
    }
}

void ConnectionManager::disconnect() {
    AutoLock<Lock> guard(&lock);
    if (isKeepConnectionAliveFlag) {
        VORN_CALL(Disconnect, L"Keep connection alive enabled.");
        return;
    }
    isWantToBeConnectedFlag = false;
    if (isConnectedFlag) {
        const std::wstring host = currentHost;
        callDisconnectConnection(connImpl);
        currentHost.clear();
        isConnectedFlag = false;
        wakeThread(recoveryThread, RecoveryKind);
        VornLoggerSTD::getInstance().STD0005(Disconnect, name.c_str(), host.c_str());
        notifyListeners(false, host);
    } else {
        isInRecoveryFlag = false;
        VORN_CALL(Disconnect, L"Is not connected.");
    }
}

void ConnectionManager::doRecovery(bool dropActiveConnection) {
    AutoLock<Lock> guard(&lock);
    if (dropActiveConnection && isConnectedFlag) {
        const std::wstring host = currentHost;
        try {
            callDisconnectConnection(connImpl);
        } catch (const VornException& e) {
            VORN_DEBUG(DoRecovery, IgnoredText, e.toString().c_str());
        }
        isInRecoveryFlag = false;
        currentHost.clear();
        isConnectedFlag = false;
        VornLoggerSTD::getInstance().STD0005(DoRecovery, name.c_str(), host.c_str());
        notifyListeners(false, host);
    }
    if (isWantToBeConnectedFlag && isRecoveryEnabledFlag && !isConnectedFlag) {
        VORN_CALL(DoRecovery, L"Initiate recovery.");
        isInRecoveryFlag = true;
        startThreadIfNecessary(recoveryThread, RecoveryKind);
        wakeThread(recoveryThread, RecoveryKind);
    }
}

// On the recovery thread. Recovery always walks the whole list. Any exception
// other than the two expected ones ends the thread with recovery still flagged.
void ConnectionManager::processRecovery() {
    AutoLock<Lock> guard(&lock);
    try {
        attemptToConnectToAllHosts(true);
    } catch (const VornConnectException&) {
        VornLoggerSTD::getInstance().STD2001(ProcessRecovery, name.c_str());
        return;
    } catch (const VornObjectNotFoundException&) {
        VornLoggerSTD::getInstance().STD2001(ProcessRecovery, name.c_str());
        return;
    }
    isInRecoveryFlag = false;
    if (isWantToBeConnectedFlag) {
        isConnectedFlag = true;
        setLastOperationTime();
        announceConnected(ProcessRecovery);
    } else {
        try {
            callDisconnectConnection(connImpl);
        } catch (const VornConnectException& e) {
            VORN_DEBUG(ProcessRecovery, IgnoredText, e.toString().c_str());
        }
    }
}

void ConnectionManager::announceConnected(const wchar_t* function) {
    VornLoggerSTD::getInstance().STD0004(function, name.c_str(), currentHost.c_str());
    notifyListeners(true, currentHost);
}

// Without the lock: only a VornConnectException means the connection is dead.
void ConnectionManager::sendHeartBeat(const std::shared_ptr<ISendHeartBeat>& sender) {
    try {
        doSendHeartBeat(sender);
        VORN_TRACE(SendHeartBeat, L"Heartbeat successful.");
    } catch (abi::__forced_unwind&) {
        throw;
    } catch (const VornConnectException& e) {
        VORN_DEBUG(SendHeartBeat,
                   L"%ls. ISendHeartBeat::sendHeartBeat throw <%ls> to indicate heart beat failed. "
                   L"Initiating recovery.",
                   name.c_str(), e.toString().c_str());
        doRecovery(true);
    } catch (const VornException& e) {
        VORN_DEBUG(SendHeartBeat, L"%ls. ISendHeartBeat::sendHeartBeat unexpectedly throw <%ls>.",
                   name.c_str(), e.toString().c_str());
    } catch (const std::exception& e) {
        VORN_DEBUG(SendHeartBeat, L"%ls. ISendHeartBeat::sendHeartBeat unexpectedly throw <%ls>.",
                   name.c_str(), vorn_std_internal::fromPlatformUtf8(e.what()).c_str());
    } catch (...) {
        VORN_DEBUG(SendHeartBeat, L"%ls. ISendHeartBeat::sendHeartBeat unexpectedly throw exception.",
                   name.c_str());
    }
}

void ConnectionManager::notifyListeners(bool isUp, const std::wstring& host) {
    AutoLock<Lock> guard(&lock);
    if (listeners.empty()) {
        return;
    }
    startThreadIfNecessary(notificationThread, NotificationKind);
    statusQueue.push_back(std::make_shared<ServiceStatus>(isUp, host));
    wakeThread(notificationThread, NotificationKind);
}

void ConnectionManager::notifyListener(const std::shared_ptr<IConnectionStatusListener>& listener,
                                       bool isUp, const std::wstring& host) {
    try {
        doStatusChanged(listener, isUp, host);
    } catch (abi::__forced_unwind&) {
        throw;
    } catch (const VornException& e) {
        VORN_DEBUG(NotifyListener,
                   L"%ls. IConnectionStatusListener::statusChanged(%d,%ls) unexpectedly throw <%ls>.",
                   name.c_str(), isUp ? 1 : 0, host.c_str(), e.toString().c_str());
    } catch (const std::exception& e) {
        VORN_DEBUG(NotifyListener,
                   L"%ls. IConnectionStatusListener::statusChanged(%d,%ls) unexpectedly throw <%ls>.",
                   name.c_str(), isUp ? 1 : 0, host.c_str(),
                   vorn_std_internal::fromPlatformUtf8(e.what()).c_str());
    } catch (...) {
        VORN_DEBUG(NotifyListener,
                   L"%ls. IConnectionStatusListener::statusChanged(%d,%ls) unexpectedly throw "
                   L"exception.",
                   name.c_str(), isUp ? 1 : 0, host.c_str());
    }
}

std::set<std::shared_ptr<IConnectionStatusListener>> ConnectionManager::getListeners() {
    AutoLock<Lock> guard(&lock);
    return listeners;
}

std::shared_ptr<ConnectionManager::ServiceStatus> ConnectionManager::getStatus() {
    AutoLock<Lock> guard(&lock);
    if (statusQueue.empty()) {
        return nullptr;
    }
    std::shared_ptr<ServiceStatus> status = statusQueue.front();
    statusQueue.pop_front();
    return status;
}

template <typename T>
void ConnectionManager::startThreadIfNecessary(std::shared_ptr<T>& thread, const wchar_t* kind) {
    if (!thread) {
        VORN_DEBUG(StartThread, L"Creating %ls %ls thread.", name.c_str(), kind);
        thread = std::make_shared<T>(this);
    }
    if (thread->getState() != Thread::THREAD_RUNNING) {
        VORN_DEBUG(StartThread, L"Starting %ls %ls thread.", name.c_str(), kind);
        thread->start();
        VORN_DEBUG(StartThread, L"Started %ls %ls thread.", name.c_str(), kind);
    }
}

void ConnectionManager::wakeThread(const std::shared_ptr<AbstractNotificationThread>& thread,
                                   const wchar_t* kind) {
    if (thread && thread->getState() == Thread::THREAD_RUNNING) {
        thread->wakeup();
    } else {
        VORN_DEBUG(WakeThread, L"There is no %ls %ls thread or it is not alive.", name.c_str(), kind);
    }
}

// Both threads are told to stop under the lock, then waited for outside it:
// the recovery thread takes this lock, so joining it with the lock held
// would hang for ever.
void ConnectionManager::shutdown() {
    std::vector<Waitable*> threads;
    {
        AutoLock<Lock> guard(&lock);
        setKeepConnectionAlive(false);
        try {
            disconnect();
        } catch (const VornConnectException& e) {
            VORN_DEBUG(Shutdown, IgnoredText, e.toString().c_str());
        }
        if (recoveryThread) {
            recoveryThread->shutdown();
            threads.push_back(recoveryThread.get());
        }
        if (notificationThread) {
            notificationThread->shutdown();
            threads.push_back(notificationThread.get());
        }
    }
    if (!threads.empty()) {
        Concurrency::waitForMultipleObjects(threads, Concurrency::WAIT_ALL, -1);
    }
}

}  // namespace vorn_std
