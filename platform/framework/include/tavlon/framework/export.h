#pragma once

/// Marks what the shared library exports. The attributes are asked for by name, so that the object format
/// decides.
#if __has_attribute(dllexport)
#ifdef TAVLON_FRAMEWORK_BUILD
#define TAVLON_FRAMEWORK_API __attribute__((dllexport))
#else
#define TAVLON_FRAMEWORK_API __attribute__((dllimport))
#endif
#else
#define TAVLON_FRAMEWORK_API __attribute__((visibility("default")))
#endif
