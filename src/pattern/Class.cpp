#include "vorn_std/pattern/Class.h"

#include <cxxabi.h>

namespace vorn_std {

template class Singleton<Class>;

Class::Class() = default;
Class::~Class() = default;

std::wstring Class::getSingletonName() { return L"vorn_std::Class"; }

std::wstring Class::toString() const { return L"Class{}"; }

bool Class::validKey(const std::wstring& key) const { return !key.empty(); }

void Class::registerClass(const std::wstring& key, const std::shared_ptr<Object>& object) {
    registerObject(key, object);
}

bool Class::registerClassNoEx(const std::wstring& key, const std::shared_ptr<Object>& object) {
    try {
        registerObject(key, object);
        return true;
    } catch (const VornIllegalArgumentException&) {
        return false;
    }
}

}  // namespace vorn_std
