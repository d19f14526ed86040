// Which symbols the library exports. STYLECONVERSION_BUILD is defined while a shared library is compiled,
// STYLECONVERSION_STATIC in a static one and in programs that link its objects.
#pragma once

#if defined(STYLECONVERSION_STATIC)
#define STYLECONVERSION_API
#elif defined(_WIN32)
#if defined(STYLECONVERSION_BUILD)
#define STYLECONVERSION_API __declspec(dllexport)
#else
#define STYLECONVERSION_API __declspec(dllimport)
#endif
#else
#define STYLECONVERSION_API __attribute__((visibility("default")))
#endif
