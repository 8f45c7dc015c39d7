#pragma once

#include <memory>
#include <string>

#include "vorn_std/base/Object.h"
#include "vorn_std/pattern/Class.h"

namespace vorn_std {

// Puts T into the class registry under the dotted name its getClassName()
// gives. T derives from AutoRegisterClass<T> beside its main base. A second
// registration of one name is silent; the prototype lives in the registry
// until the registry dies.
template <typename T>
class AutoRegisterClass : public Object {
public:
    ~AutoRegisterClass() override = default;
    std::wstring toString() const override { return getClassName(); }
    virtual std::wstring getClassName() const = 0;

    static void registerClass() {
        std::shared_ptr<T> prototype = std::make_shared<T>();
        std::shared_ptr<AutoRegisterClass<T>> asRegistered = prototype;
        const std::wstring name = asRegistered->getClassName();
        Class::getInstance().registerClassNoEx(name, std::shared_ptr<Object>(asRegistered));
    }
};

}  // namespace vorn_std
