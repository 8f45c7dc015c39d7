#pragma once

#include <string>
#include <vector>

#include "vorn_std/log/ILogAppender.h"
#include "vorn_std/thread/Lock.h"

namespace vorn_std {

// Keeps the log in memory, so a host (or a test) can read the lines back.
// Its construction attaches it to StaticLog, with a VornLogLayout and a
// DebugFileFilter; its destruction detaches it. Readers take the appender's
// own lock, not the logger's.
class VORNSTD_API VectorLogAppender : public ILogAppender {
public:
    VectorLogAppender();
    ~VectorLogAppender() override;
    VectorLogAppender(const VectorLogAppender&) = delete;
    VectorLogAppender& operator=(const VectorLogAppender&) = delete;

    std::wstring toString() const override;
    Configurable* newInstance(const Properties& properties) override;
    std::wstring getClassName() const;
    std::vector<std::wstring> getLogStatements();
    void clear();

protected:
    void localAppend(const std::wstring& line) override;
    void localAppend(const LogEvent& event) override;

private:
    std::shared_ptr<ILogAppender> registration;  // does not own this
    Lock statementsLock;
    std::vector<std::wstring> statements;  // guarded by statementsLock
};

}  // namespace vorn_std
