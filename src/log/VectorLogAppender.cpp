#include "vorn_std/log/VectorLogAppender.h"

#include "vorn_std/log/DebugFileFilter.h"
#include "vorn_std/log/StaticLog.h"
#include "vorn_std/log/VornLogLayout.h"
#include "vorn_std/thread/AutoLock.h"

namespace vorn_std {

VectorLogAppender::VectorLogAppender()
    : ILogAppender(std::make_shared<DebugFileFilter>(), std::make_shared<VornLogLayout>(false)),
      registration(this, [](ILogAppender*) {}) {
    StaticLog::addAppender(registration);
}

VectorLogAppender::~VectorLogAppender() { StaticLog::removeAppender(registration); }

std::wstring VectorLogAppender::toString() const { return L"VectorLogAppender{}"; }

Configurable* VectorLogAppender::newInstance(const Properties&) { return new VectorLogAppender(); }

std::wstring VectorLogAppender::getClassName() const { return L"vorn_std.VectorLogAppender"; }

std::vector<std::wstring> VectorLogAppender::getLogStatements() {
    AutoLock<Lock> guard(&statementsLock);
    return statements;
}

void VectorLogAppender::clear() {
    AutoLock<Lock> guard(&statementsLock);
    statements.clear();
}

void VectorLogAppender::localAppend(const std::wstring& line) {
    AutoLock<Lock> guard(&statementsLock);
    statements.push_back(line);
}

void VectorLogAppender::localAppend(const LogEvent&) {}

}  // namespace vorn_std
