// Which symbols the library exports to its hosts. STYLECONVERSION_BUILD is defined while the library itself
// is compiled, STYLECONVERSION_STATIC by programs that link its objects directly.
#pragma once

#if defined(_WIN32)
#if defined(STYLECONVERSION_BUILD)
#define STYLECONVERSION_API __declspec(dllexport)
#elif defined(STYLECONVERSION_STATIC)
#define STYLECONVERSION_API
#else
#define STYLECONVERSION_API __declspec(dllimport)
#endif
#else
#define STYLECONVERSION_API __attribute__((visibility("default")))
#endif
