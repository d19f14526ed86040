// Which symbols the drawing-database library exports.
#pragma once

#if defined(_WIN32)
#if defined(OXDB_BUILD)
#define OXDB_API __declspec(dllexport)
#else
#define OXDB_API __declspec(dllimport)
#endif
#else
#define OXDB_API __attribute__((visibility("default")))
#endif
