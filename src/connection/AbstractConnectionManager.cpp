#include "vorn_std/connection/AbstractConnectionManager.h"

#include "vorn_std/connection/IConnectionImplementer.h"
#include "vorn_std/connection/IConnectionStatusListener.h"
#include "vorn_std/connection/ISendHeartBeat.h"

namespace vorn_std {

AbstractConnectionManager::~AbstractConnectionManager() = default;

void AbstractConnectionManager::setLastOperationTime() {}

std::wstring AbstractConnectionManager::callUseServiceConnectionInfo(
    const std::shared_ptr<IConnectionImplementer>& implementer, int index) {
    return implementer->useServiceConnectionInfo(index);
}

void AbstractConnectionManager::callEstablishConnection(
    const std::shared_ptr<IConnectionImplementer>& implementer) {
    implementer->establishConnection();
}

void AbstractConnectionManager::callDisconnectConnection(
    const std::shared_ptr<IConnectionImplementer>& implementer) {
    implementer->disconnectConnection();
}

void AbstractConnectionManager::doStatusChanged(
    const std::shared_ptr<IConnectionStatusListener>& listener, bool isUp,
    const std::wstring& host) {
    listener->statusChanged(isUp, host);
}

void AbstractConnectionManager::doSendHeartBeat(const std::shared_ptr<ISendHeartBeat>& sender) {
    sender->sendHeartBeat();
}

}  // namespace vorn_std
