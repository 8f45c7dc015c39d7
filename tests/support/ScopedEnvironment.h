#pragma once

#include <stdlib.h>

#include <string>

namespace vorn_test {

// Sets an environment variable for the life of the object, then puts back
// what was there before (or removes it).
class ScopedEnvironment {
public:
    ScopedEnvironment(const char* name, const char* value)
        : name(name), hadValue(getenv(name) != nullptr), previous(hadValue ? getenv(name) : "") {
        setenv(name, value, 1);
    }
    ~ScopedEnvironment() {
        hadValue ? setenv(name.c_str(), previous.c_str(), 1) : unsetenv(name.c_str());
    }
    ScopedEnvironment(const ScopedEnvironment&) = delete;
    ScopedEnvironment& operator=(const ScopedEnvironment&) = delete;

private:
    std::string name;
    bool hadValue;
    std::string previous;
};

}  // namespace vorn_test
