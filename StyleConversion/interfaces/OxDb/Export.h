// Which symbols the drawing-database library exports. OXDB_BUILD is defined while a shared library is
// compiled, OXDB_STATIC in a static one and in programs that link its objects.
#pragma once

#if defined(OXDB_STATIC)
#define OXDB_API
#elif defined(_WIN32)
#if defined(OXDB_BUILD)
#define OXDB_API __declspec(dllexport)
#else
#define OXDB_API __declspec(dllimport)
#endif
#else
#define OXDB_API __attribute__((visibility("default")))
#endif
