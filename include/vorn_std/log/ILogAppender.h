#pragma once

#include <memory>
#include <string>

#include "vorn_std/pattern/Configurable.h"

namespace vorn_std_internal {
struct AppenderState;
}

namespace vorn_std {

class ILogEventFilter;
class ILogEventLayout;
class LogEvent;

// Where events end up. append() is the one entry: it takes the appender's own
// (re-entrant) lock, asks the filter, formats with the layout and hands the
// result to localAppend(), which subclasses implement without locking. An
// appender without a filter appends nothing. Any thread may append; the lock
// is taken after the logger's.
class VORNSTD_API ILogAppender : public Configurable {
public:
    ILogAppender(const std::shared_ptr<ILogEventFilter>& filter,
                 const std::shared_ptr<ILogEventLayout>& layout);
    ~ILogAppender() override;

    void append(const LogEvent& event);
    void setFilter(const std::shared_ptr<ILogEventFilter>& filter);
    void setLayout(const std::shared_ptr<ILogEventLayout>& layout);
    // Forwards to the filter, then to the layout, where they exist.
    void setProperty(const std::wstring& key, const std::wstring& value) override;

protected:
    // The formatted line, when there is a layout.
    virtual void localAppend(const std::wstring& line) = 0;
    // The bare event, when there is none.
    virtual void localAppend(const LogEvent& event) = 0;

private:
    std::shared_ptr<vorn_std_internal::AppenderState> state;
};

}  // namespace vorn_std
