// The one visibility macro: what carries it is part of the binary interface.

#ifndef ZARN_EXPORT_H
#define ZARN_EXPORT_H

// Defined while a static library is built: who links that does not offer it to others.
#ifdef ZARN_STATIC
#define ZARN_EXPORT
#else
#define ZARN_EXPORT __attribute__((visibility("default")))
#endif

#endif  // ZARN_EXPORT_H
