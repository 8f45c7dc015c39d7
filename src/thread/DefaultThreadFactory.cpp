#include "vorn_std/thread/DefaultThreadFactory.h"

#include "vorn_std/base/ErrorUtils.h"

namespace vorn_std {

// Never destroyed: factories may be made until the very end of the process.
AtomicInteger& DefaultThreadFactory::poolNumber = *new AtomicInteger();

DefaultThreadFactory::DefaultThreadFactory(const std::wstring& name)
    : namePrefix(name.empty() ? L"pool-" + std::to_wstring(poolNumber.getAndIncrement()) +
                                    L"-thread-"
                              : name + L"-thread-") {}

std::wstring DefaultThreadFactory::toString() const {
    return L"DefaultThreadFactory{namePrefix='" + namePrefix + L"'}";
}

std::shared_ptr<Thread> DefaultThreadFactory::newThread(const std::shared_ptr<Runnable>& runnable) {
    ErrorUtils::isNullEx(runnable.get(), L"vorn_std::DefaultThreadFactory::newThread",
                         L"Runnable");
    return std::make_shared<Thread>(runnable,
                                    namePrefix + std::to_wstring(threadNumber.getAndIncrement()));
}

}  // namespace vorn_std
