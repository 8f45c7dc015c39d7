#include "vorn_std/thread/Executor.h"

namespace vorn_std {

Executor::~Executor() = default;

std::wstring Executor::toString() const { return L"Executor{}"; }

}  // namespace vorn_std
