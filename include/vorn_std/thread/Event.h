#pragma once

#include "vorn_std/thread/Waitable.h"

namespace vorn_std {

// A Waitable that any thread sets with signal() and clears with reset().
class VORNSTD_API Event : public Waitable {
public:
    Event(bool autoReset, bool signaled);
    ~Event() override;

    std::wstring toString() const override;
    void signal() override;
    virtual void reset();
};

}  // namespace vorn_std
