#include "vorn_std/thread/Waitable.h"

#include "internal/WaitablePimpl.h"

namespace vorn_std {

Waitable::Waitable(bool autoReset, bool signaled)
    : pimpl(std::make_shared<vorn_std_internal::WaitablePimpl>(autoReset, signaled)) {}

Waitable::~Waitable() { pimpl->destroy(); }

std::wstring Waitable::toString() const { return L"Waitable{}"; }

bool Waitable::isSignaled() const { return pimpl->isSignaled(); }
bool Waitable::isAutoReset() const { return pimpl->isAutoReset(); }
void Waitable::setAutoReset(bool autoReset) { pimpl->setAutoReset(autoReset); }
void Waitable::setSignaled(bool signaled) { pimpl->setSignaled(signaled); }
void Waitable::signal() { pimpl->signal(); }
void Waitable::subscribe(Subscription& subscription) { pimpl->subscribe(subscription); }
void Waitable::unsubscribe(Subscription& subscription) { pimpl->unsubscribe(subscription); }

}  // namespace vorn_std
