// The one visibility macro: what carries it is part of the binary interface.

#ifndef ZARN_EXPORT_H
#define ZARN_EXPORT_H

#if __cplusplus < 201703L
#error "zarn needs C++17: compile with -std=c++17 or a later standard"
#endif

// Defined while a static library is built: who links that does not offer it to others.
#ifdef ZARN_STATIC
#define ZARN_EXPORT
#else
#define ZARN_EXPORT __attribute__((visibility("default")))
#endif

#endif  // ZARN_EXPORT_H
