#pragma once

#include "vorn_std/log/ILogEventLayout.h"
#include "vorn_std/pattern/AutoRegisterClass.h"

namespace vorn_std {

// The library's log line:
//   "2024-05-01 13:04:05:006 INFO STD0009 File.cpp[12] text\n"
// and, with debug, the thread id after the priority and the function before
// the text:
//   "2024-05-01 13:04:05:006 DEBUG [0x1a2b] File.cpp[12] vorn_std::File::exists: text\n"
// Local time, with a colon before the milliseconds. Exactly one line feed ends
// each record. debug is fixed at creation: newInstance() sets it from the
// property "debug" with the exact value "true".
class VORNSTD_API VornLogLayout : public ILogEventLayout, public AutoRegisterClass<VornLogLayout> {
public:
    explicit VornLogLayout(bool debug = false);

    std::wstring toString() const override;
    std::wstring getClassName() const override;
    Configurable* newInstance(const Properties& properties) override;
    std::wstring format(const LogEvent& event) override;
    bool isDebug() const { return debug; }

private:
    const bool debug;
};

}  // namespace vorn_std
