#pragma once

#include <atomic>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <string>
#include <vector>

#include "vorn_std/connection/IConnectionImplementer.h"
#include "vorn_std/connection/IConnectionStatusListener.h"
#include "vorn_std/connection/ISendHeartBeat.h"
#include "vorn_std/exception/VornConnectException.h"
#include "vorn_std/exception/VornObjectNotFoundException.h"

namespace vorn_test {

// A scripted list of services; each may be switched up or down at any time.
class ScriptedServices : public vorn_std::IConnectionImplementer {
public:
    explicit ScriptedServices(std::vector<bool> up) : upFlags(up.size()) {
        for (size_t i = 0; i < up.size(); ++i) upFlags[i] = up[i];
    }

    std::wstring toString() const override { return L"ScriptedServices{}"; }

    std::wstring useServiceConnectionInfo(int index) override {
        std::lock_guard<std::mutex> guard(mutex);
        if (index < 0 || index >= static_cast<int>(upFlags.size())) {
            throw vorn_std::VornObjectNotFoundException(L"No service " + std::to_wstring(index));
        }
        selected = index;
        positions.push_back(index);
        return L"host" + std::to_wstring(index);
    }

    void establishConnection() override {
        std::function<void()> hook;
        {
            std::lock_guard<std::mutex> guard(mutex);
            hook = beforeConnect;
        }
        if (hook) hook();
        std::lock_guard<std::mutex> guard(mutex);
        if (!upFlags[selected]) {
            throw vorn_std::VornConnectException(L"refused by host" + std::to_wstring(selected));
        }
        ++connections;
    }

    void disconnectConnection() override {
        std::lock_guard<std::mutex> guard(mutex);
        ++disconnections;
    }

    void setUp(int index, bool up) { upFlags[index] = up; }
    // Runs at the start of each connect, outside this double's mutex.
    void setBeforeConnect(std::function<void()> hook) {
        std::lock_guard<std::mutex> guard(mutex);
        beforeConnect = std::move(hook);
    }
    std::vector<int> attempted() {
        std::lock_guard<std::mutex> guard(mutex);
        return positions;
    }

    std::atomic<int> connections{0};
    std::atomic<int> disconnections{0};

private:
    std::mutex mutex;
    std::function<void()> beforeConnect;  // guarded by mutex
    std::vector<std::atomic<bool>> upFlags;
    int selected = -1;
    std::vector<int> positions;
};

// Records every status it is told, and lets a test wait for a count.
class RecordingListener : public vorn_std::IConnectionStatusListener {
public:
    std::wstring toString() const override { return L"RecordingListener{}"; }

    void statusChanged(bool isUp, const std::wstring& host) override {
        {
            std::lock_guard<std::mutex> guard(mutex);
            events.push_back((isUp ? L"up " : L"down ") + host);
        }
        changed.notify_all();
        if (onStatus) onStatus(isUp);
    }

    // The events once there are at least count of them (or after the bound).
    std::vector<std::wstring> waitFor(size_t count);

    std::function<void(bool)> onStatus;

private:
    std::mutex mutex;
    std::condition_variable changed;
    std::vector<std::wstring> events;
};

class CountingHeartBeat : public vorn_std::ISendHeartBeat {
public:
    std::wstring toString() const override { return L"CountingHeartBeat{}"; }
    void sendHeartBeat() override {
        ++sent;
        if (dead) throw vorn_std::VornConnectException(L"peer silent");
    }
    std::atomic<int> sent{0};
    std::atomic<bool> dead{false};
};

}  // namespace vorn_test
