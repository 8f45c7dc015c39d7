// A host whose singletons log from their destructors; it returns from main,
// to show that those last lines reach the debugger output in reverse order
// of first use, after the log has been destroyed.
#include <cstring>
#include <string>

#include "internal/StaticLogControl.h"
#include "internal/Trace.h"
#include "vorn_std/VornStd.h"

namespace {

template <int N>
class Farewell : public vorn_std::Singleton<Farewell<N>> {
public:
    void greet() {}

private:
    friend class vorn_std::Singleton<Farewell<N>>;
    Farewell() = default;
    ~Farewell() {
        VORN_DEBUG(L"Farewell::~Farewell", L"singleton %d says goodbye (initialized=%d).", N,
                   vorn_std_internal::StaticLogControl::isInitialized() ? 1 : 0);
    }
    static std::wstring getSingletonName() { return L"Farewell"; }
};

}  // namespace

int main(int argc, char** argv) {
    Farewell<1>::getInstance().greet();
    Farewell<2>::getInstance().greet();
    // A configured log would send the farewells elsewhere; unload must undo it.
    vorn_std_internal::StaticLogControl::setCurrentThreshold(vorn_std::FATAL);
    vorn_std_internal::StaticLogControl::setInitialized(true);
    if (argc > 1 && std::strcmp(argv[1], "terminate-early") == 0) {
        vorn_std::libraryTerminate();
        vorn_std_internal::StaticLogControl::setInitialized(true);  // refused: destroyed is final
        VORN_DEBUG(L"main", L"after terminate (threshold=%ls).",
                   vorn_std::logEventPriorityToString(vorn_std::StaticLog::getThreshold()).c_str());
        try {
            vorn_std::SingletonManager::getInstance();
        } catch (const vorn_std::VornException& e) {
            VORN_DEBUG(L"main", L"%ls", e.getMessage().c_str());
        }
    }
    return 0;
}
