#pragma once

/// Marks what the library exports: classes and free functions. Everything else stays hidden.
#if defined(_WIN32)
#if defined(DOM_BUILDING)
#define DOM_API __declspec(dllexport)
#else
#define DOM_API __declspec(dllimport)
#endif
#else
#define DOM_API __attribute__((visibility("default")))
#endif
