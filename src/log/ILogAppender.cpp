#include "vorn_std/log/ILogAppender.h"

#include "internal/AppenderState.h"
#include "vorn_std/thread/AutoLock.h"

namespace vorn_std {

ILogAppender::ILogAppender(const std::shared_ptr<ILogEventFilter>& filter,
                           const std::shared_ptr<ILogEventLayout>& layout)
    : state(std::make_shared<vorn_std_internal::AppenderState>()) {
    state->filter = filter;
    state->layout = layout;
}

ILogAppender::~ILogAppender() = default;

void ILogAppender::append(const LogEvent& event) {
    AutoLock<Lock> guard(&state->lock);
    // An appender without a filter is silent; a configured one always has one.
    if (!state->filter || state->filter->decide(event) != 0) {
        return;
    }
    if (state->layout) {
        localAppend(state->layout->format(event));
    } else {
        localAppend(event);
    }
}

void ILogAppender::setFilter(const std::shared_ptr<ILogEventFilter>& filter) {
    AutoLock<Lock> guard(&state->lock);
    state->filter = filter;
}

void ILogAppender::setLayout(const std::shared_ptr<ILogEventLayout>& layout) {
    AutoLock<Lock> guard(&state->lock);
    state->layout = layout;
}

void ILogAppender::setProperty(const std::wstring& key, const std::wstring& value) {
    AutoLock<Lock> guard(&state->lock);
    if (state->filter) {
        state->filter->setProperty(key, value);
    }
    if (state->layout) {
        state->layout->setProperty(key, value);
    }
}

}  // namespace vorn_std
