#pragma once

// Symbols of libvornstd are hidden unless marked: the public classes, and the
// few internal ones the test suite drives directly, carry VORNSTD_API.
#if defined(_WIN32)
#  if defined(VORNSTD_BUILDING)
#    define VORNSTD_API __declspec(dllexport)
#  else
#    define VORNSTD_API __declspec(dllimport)
#  endif
#else
#  define VORNSTD_API __attribute__((visibility("default")))
#endif
