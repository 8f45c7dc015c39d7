#include "vorn_std/thread/Runnable.h"

namespace vorn_std {

Runnable::~Runnable() = default;

std::wstring Runnable::toString() const { return L"Runnable{}"; }

}  // namespace vorn_std
