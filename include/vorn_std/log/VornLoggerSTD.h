#pragma once

#include "vorn_std/log/VornLogger.h"
#include "vorn_std/log/VornLoggerSTDMessages.h"
#include "vorn_std/pattern/Singleton.h"

// Spreads a parenthesised list into a declaration: VORN_UNPAREN (, int a) is ", int a".
#define VORN_UNPAREN(...) __VA_ARGS__
#define VORN_DECLARE_MESSAGE(NUMBER, LEVEL, TEXT, PARAMS, ARGS) \
    void NUMBER(const wchar_t* function VORN_UNPAREN PARAMS);

namespace vorn_std {

// The library's catalogue: STD0nnn are INFO, STD2nnn ERROR, STD3nnn WARN.
// Module "VornStd". Made at library load.
class VORNSTD_API VornLoggerSTD : public VornLogger, public Singleton<VornLoggerSTD> {
public:
    std::wstring getModuleName() const override;

    VORN_STD_MESSAGES(VORN_DECLARE_MESSAGE)

private:
    friend class Singleton<VornLoggerSTD>;
    VornLoggerSTD();
    ~VornLoggerSTD() override;
    static std::wstring getSingletonName();
};

extern template class Singleton<VornLoggerSTD>;

}  // namespace vorn_std
