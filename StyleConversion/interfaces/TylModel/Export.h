// Which symbols the symbol-model library exports. TYLMODEL_BUILD is defined while a shared library is
// compiled, TYLMODEL_STATIC in a static one and in programs that link its objects.
#pragma once

#if defined(TYLMODEL_STATIC)
#define TYLMODEL_API
#elif defined(_WIN32)
#if defined(TYLMODEL_BUILD)
#define TYLMODEL_API __declspec(dllexport)
#else
#define TYLMODEL_API __declspec(dllimport)
#endif
#else
#define TYLMODEL_API __attribute__((visibility("default")))
#endif
