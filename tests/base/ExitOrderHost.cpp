// A host that logs from its process-wide objects' destructors and then
// returns from main, to show that those last lines reach the debugger output
// in reverse order of creation, after the log has been destroyed.
#include <cstring>
#include <string>

#include "internal/StaticLogControl.h"
#include "internal/Trace.h"
#include "internal/UnloadList.h"
#include "vorn_std/VornStd.h"

namespace {

struct Farewell {
    std::wstring name;
    ~Farewell() {
        VORN_DEBUG(L"Farewell::~Farewell", L"%ls says goodbye (initialized=%d).", name.c_str(),
                   vorn_std_internal::StaticLogControl::isInitialized() ? 1 : 0);
    }
};

void keepUntilUnload(const wchar_t* name) {
    auto* object = new Farewell{name};
    vorn_std_internal::UnloadList::add([object] { delete object; });
}

}  // namespace

int main(int argc, char** argv) {
    keepUntilUnload(L"first");
    keepUntilUnload(L"second");
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
