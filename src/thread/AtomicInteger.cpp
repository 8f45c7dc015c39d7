#include "vorn_std/thread/AtomicInteger.h"

namespace vorn_std {

std::wstring AtomicInteger::toString() const { return format(L"AtomicInteger"); }

}  // namespace vorn_std
