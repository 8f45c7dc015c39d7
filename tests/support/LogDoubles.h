#pragma once

#include <functional>
#include <string>
#include <vector>

#include "vorn_std/log/DebugFileFilter.h"
#include "vorn_std/log/ILogAppender.h"
#include "vorn_std/log/LogEvent.h"
#include "vorn_std/log/VornLogLayout.h"

namespace vorn_test {

// An appender that keeps what it receives and may act (throw, log again)
// through a hook the test sets. It registers nowhere by itself.
class CapturingAppender : public vorn_std::ILogAppender {
public:
    explicit CapturingAppender(
        std::shared_ptr<vorn_std::ILogEventLayout> layout = std::make_shared<vorn_std::VornLogLayout>())
        : ILogAppender(std::make_shared<vorn_std::DebugFileFilter>(), std::move(layout)) {}

    Configurable* newInstance(const Properties&) override { return new CapturingAppender(); }

    std::vector<std::wstring> lines;
    std::vector<std::wstring> messages;  // of events that arrived without a layout
    std::function<void(const std::wstring&)> onLine;

protected:
    void localAppend(const std::wstring& line) override {
        lines.push_back(line);
        if (onLine) onLine(line);
    }
    void localAppend(const vorn_std::LogEvent& event) override {
        messages.push_back(event.getMessage());
    }
};

}  // namespace vorn_test
