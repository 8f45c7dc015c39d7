#include "vorn_std/thread/AtomicLong.h"

namespace vorn_std {

std::wstring AtomicLong::toString() const { return format(L"AtomicLong"); }

}  // namespace vorn_std
