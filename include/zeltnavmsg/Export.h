#ifndef ZELTNAVMSG_EXPORT_H
#define ZELTNAVMSG_EXPORT_H

// Symbols of the public API. A shared build compiles everything else with hidden
// visibility, so only what carries this mark is exported.
#if defined(_WIN32)
#if defined(ZELTNAVMSG_SHARED) && defined(ZELTNAVMSG_BUILDING)
#define ZELTNAVMSG_API __declspec(dllexport)
#elif defined(ZELTNAVMSG_SHARED)
#define ZELTNAVMSG_API __declspec(dllimport)
#else
#define ZELTNAVMSG_API
#endif
#elif defined(__GNUC__) || defined(__clang__)
#define ZELTNAVMSG_API __attribute__((visibility("default")))
#else
#define ZELTNAVMSG_API
#endif

#endif
