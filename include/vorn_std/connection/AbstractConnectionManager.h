#pragma once

#include <memory>
#include <string>

#include "vorn_std/base/Export.h"

namespace vorn_std {

class IConnectionImplementer;
class IConnectionStatusListener;
class ISendHeartBeat;

// The shape of a connection manager. The five protected call operations only
// forward to the host's objects; a subclass may override them to surround
// each call with its own logic.
class VORNSTD_API AbstractConnectionManager {
public:
    virtual ~AbstractConnectionManager();

    virtual std::wstring getClassName() const = 0;
    virtual std::shared_ptr<IConnectionImplementer> getConnectionImplementer() const = 0;
    virtual std::wstring getName() const = 0;
    virtual std::shared_ptr<ISendHeartBeat> getHeartBeatSender() const = 0;
    virtual bool isHeartBeatEnabled() const = 0;
    virtual int getHeartBeatInterval() const = 0;
    virtual bool isRecoveryEnabled() const = 0;
    virtual int getRecoveryInterval() const = 0;
    virtual bool isConnected() const = 0;
    virtual bool isInRecovery() const = 0;
    virtual std::wstring getHost() const = 0;
    virtual void setHeartBeatSender(const std::shared_ptr<ISendHeartBeat>& sender) = 0;
    virtual void setHeartBeatEnabled(bool enabled) = 0;
    virtual void setHeartBeatInterval(int ms) = 0;
    virtual void setRecoveryEnabled(bool enabled) = 0;
    virtual void setRecoveryInterval(int ms) = 0;
    virtual void setLastOperationTime();
    virtual std::wstring toString() const = 0;
    virtual void addListener(const std::shared_ptr<IConnectionStatusListener>& listener) = 0;
    virtual void removeListener(const std::shared_ptr<IConnectionStatusListener>& listener) = 0;
    virtual void connect() = 0;
    virtual void disconnect() = 0;
    virtual void doRecovery(bool dropActiveConnection) = 0;
    virtual void shutdown() = 0;

protected:
    virtual std::wstring callUseServiceConnectionInfo(
        const std::shared_ptr<IConnectionImplementer>& implementer, int index);
    virtual void callEstablishConnection(const std::shared_ptr<IConnectionImplementer>& implementer);
    virtual void callDisconnectConnection(
        const std::shared_ptr<IConnectionImplementer>& implementer);
    virtual void doStatusChanged(const std::shared_ptr<IConnectionStatusListener>& listener,
                                 bool isUp, const std::wstring& host);
    virtual void doSendHeartBeat(const std::shared_ptr<ISendHeartBeat>& sender);
};

}  // namespace vorn_std
