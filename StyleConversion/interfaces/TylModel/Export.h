// Which symbols the symbol-model library exports.
#pragma once

#if defined(_WIN32)
#if defined(TYLMODEL_BUILD)
#define TYLMODEL_API __declspec(dllexport)
#else
#define TYLMODEL_API __declspec(dllimport)
#endif
#else
#define TYLMODEL_API __attribute__((visibility("default")))
#endif
