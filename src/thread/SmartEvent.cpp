#include "vorn_std/thread/SmartEvent.h"

#include "internal/EventHandle.h"

namespace vorn_std {

SmartEvent::SmartEvent(bool manualReset, bool initialState)
    : handle(vorn_std_internal::createEventHandle(initialState)), manualReset(manualReset) {}

SmartEvent::~SmartEvent() { vorn_std_internal::closeEventHandle(handle); }

std::wstring SmartEvent::toString() const {
    return L"SmartEvent{handle=" + std::to_wstring(handle) + L"}";
}

}  // namespace vorn_std
