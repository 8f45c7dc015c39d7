#pragma once

#include <memory>
#include <string>

#include "vorn_std/pattern/ObjectFactory.h"
#include "vorn_std/pattern/Singleton.h"

namespace vorn_std {

// The process-wide registry of classes by dotted name, such as
// "vorn_std.VornLogLayout", so that a configuration file can name a class and
// get an object: look the name up as Configurable and call newInstance().
class VORNSTD_API Class : public Singleton<Class>, public ObjectFactory<std::wstring>, public Object {
public:
    std::wstring toString() const override;
    // Exceptions of registerObject pass through.
    void registerClass(const std::wstring& key, const std::shared_ptr<Object>& object);
    // False where an argument check refused the registration.
    bool registerClassNoEx(const std::wstring& key, const std::shared_ptr<Object>& object);

protected:
    bool validKey(const std::wstring& key) const override;

private:
    friend class Singleton<Class>;
    Class();
    ~Class() override;
    static std::wstring getSingletonName();
};

extern template class Singleton<Class>;

}  // namespace vorn_std
