#include <vorn_std/VornStd.h>

#include <cstdio>

int main() {
    try {
        throw vorn_std::VornIOException(L"outer", vorn_std::VornException(L"inner"));
    } catch (const vorn_std::VornException& e) {
        std::printf("%ls\n", e.toString().c_str());
    }
    return 0;
}
