#include "vorn_std/base/Object.h"

namespace vorn_std {

Object::~Object() = default;

std::wstring Object::toString() const { return L"Object{}"; }

}  // namespace vorn_std
