// The one visibility macro: what carries it is part of the binary interface.

#ifndef ZARN_EXPORT_H
#define ZARN_EXPORT_H

#define ZARN_EXPORT __attribute__((visibility("default")))

#endif  // ZARN_EXPORT_H
