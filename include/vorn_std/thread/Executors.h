#pragma once

#include <memory>
#include <string>

#include "vorn_std/base/Object.h"
#include "vorn_std/thread/Callable.h"
#include "vorn_std/thread/ThreadFactory.h"

namespace vorn_std {

// Helpers of the thread layer.
class VORNSTD_API Executors : public Object {
public:
    // Runs a Runnable and returns the given result.
    template <typename T>
    class RunnableAdapter : public Callable<T> {
    public:
        RunnableAdapter(const std::shared_ptr<Runnable>& task, T result)
            : task(task), result(result) {}
        T operator()() override {
            task->run();
            return result;
        }

    private:
        std::shared_ptr<Runnable> task;
        T result;
    };

    // Throws VornIllegalArgumentException for a null task.
    static std::shared_ptr<Callable<void*>> callable(const std::shared_ptr<Runnable>& task);
    static std::shared_ptr<ThreadFactory> defaultThreadFactory(const std::wstring& name);
};

}  // namespace vorn_std
