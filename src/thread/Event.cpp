#include "vorn_std/thread/Event.h"

namespace vorn_std {

Event::Event(bool autoReset, bool signaled) : Waitable(autoReset, signaled) {}

Event::~Event() = default;

std::wstring Event::toString() const {
    return std::wstring(L"Event{autoReset=") + (isAutoReset() ? L"1" : L"0") + L",signaled=" +
           (isSignaled() ? L"1" : L"0") + L"}";
}

void Event::signal() { Waitable::signal(); }

void Event::reset() { setSignaled(false); }

}  // namespace vorn_std
