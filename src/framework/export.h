// What the library shows to its users.
//
// ORV3CAL_API stands before every class and function that callers outside the library may use.
// ORV3CAL_BUILD_DLL is defined while the Windows library is built, ORV3CAL_USE_DLL by programs that
// link to it; a static library needs neither. Elsewhere the library is compiled with all else
// hidden.
#pragma once

#if defined(_WIN32) && defined(ORV3CAL_BUILD_DLL)
#define ORV3CAL_API __declspec(dllexport)
#elif defined(_WIN32) && defined(ORV3CAL_USE_DLL)
#define ORV3CAL_API __declspec(dllimport)
#elif defined(_WIN32)
#define ORV3CAL_API
#else
#define ORV3CAL_API __attribute__((visibility("default")))
#endif
