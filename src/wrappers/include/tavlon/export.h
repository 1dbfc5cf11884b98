#pragma once

/// TAVLON_API marks what the library exports. The attributes are asked for by name, so that the object format
/// decides.
#if __has_attribute(dllexport)
#ifdef TAVLON_BUILDING
#define TAVLON_API __attribute__((dllexport))
#else
#define TAVLON_API __attribute__((dllimport))
#endif
#else
#define TAVLON_API __attribute__((visibility("default")))
#endif
