#include "vorn_std/thread/Executors.h"

#include "vorn_std/base/ErrorUtils.h"
#include "vorn_std/thread/DefaultThreadFactory.h"

namespace vorn_std {

std::shared_ptr<Callable<void*>> Executors::callable(const std::shared_ptr<Runnable>& task) {
    ErrorUtils::isNullEx(task.get(), L"vorn_std::Executors::callable", L"Task");
    return std::make_shared<RunnableAdapter<void*>>(task, nullptr);
}

std::shared_ptr<ThreadFactory> Executors::defaultThreadFactory(const std::wstring& name) {
    return std::make_shared<DefaultThreadFactory>(name);
}

}  // namespace vorn_std
