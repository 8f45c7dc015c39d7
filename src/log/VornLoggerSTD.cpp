#include "vorn_std/log/VornLoggerSTD.h"

#include "vorn_std/log/NTServiceLogger.h"

namespace vorn_std {

template class Singleton<VornLoggerSTD>;

namespace {
constexpr const wchar_t* CatalogueModule = L"VornStd";
}

// Each message function hands its own qualified name, the caller's function
// and its text to the level of its number.
#define VORN_DEFINE_MESSAGE(CLASS, NUMBER, LEVEL, TEXT, PARAMS, ARGS)                         \
    void CLASS::NUMBER(const wchar_t* function VORN_UNPAREN PARAMS) {                        \
        LEVEL(L"vorn_std::" #CLASS "::" #NUMBER, function != nullptr ? function : L"",       \
              TEXT VORN_UNPAREN ARGS);                                                       \
    }
#define VORN_DEFINE_STD_MESSAGE(NUMBER, LEVEL, TEXT, PARAMS, ARGS) \
    VORN_DEFINE_MESSAGE(VornLoggerSTD, NUMBER, LEVEL, TEXT, PARAMS, ARGS)
#define VORN_DEFINE_SL_MESSAGE(NUMBER, LEVEL, TEXT, PARAMS, ARGS) \
    VORN_DEFINE_MESSAGE(NTServiceLogger, NUMBER, LEVEL, TEXT, PARAMS, ARGS)

VornLoggerSTD::VornLoggerSTD() = default;
VornLoggerSTD::~VornLoggerSTD() = default;
std::wstring VornLoggerSTD::getSingletonName() { return L"vorn_std::VornLoggerSTD"; }
std::wstring VornLoggerSTD::getModuleName() const { return CatalogueModule; }

VORN_STD_MESSAGES(VORN_DEFINE_STD_MESSAGE)

NTServiceLogger::NTServiceLogger() = default;
NTServiceLogger::~NTServiceLogger() = default;
std::wstring NTServiceLogger::getModuleName() const { return CatalogueModule; }

VORN_SL_MESSAGES(VORN_DEFINE_SL_MESSAGE)

}  // namespace vorn_std
