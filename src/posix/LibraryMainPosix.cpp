#include "vorn_std/base/Library.h"

// The shared object's own load and unload hooks. Nothing here may rely on a
// namespace-scope object with a dynamic initialiser: this constructor runs
// before them, and at exit this destructor runs after the exit list.
namespace {

__attribute__((constructor)) void onLibraryLoad() { vorn_std::libraryInitialize(); }

__attribute__((destructor)) void onLibraryUnload() { vorn_std::libraryTerminate(); }

}  // namespace
