#include "vorn_std/thread/ThreadFactory.h"

namespace vorn_std {

ThreadFactory::~ThreadFactory() = default;

std::wstring ThreadFactory::toString() const { return L"ThreadFactory{}"; }

}  // namespace vorn_std
