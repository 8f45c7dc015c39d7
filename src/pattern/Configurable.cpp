#include "vorn_std/pattern/Configurable.h"

namespace vorn_std {

Configurable::~Configurable() = default;

std::wstring Configurable::toString() const { return L"Configurable{}"; }

void Configurable::setProperty(const std::wstring&, const std::wstring&) {}

}  // namespace vorn_std
