// Names of the library's classes, for headers that only point to them.

#ifndef ZARN_FWD_H
#define ZARN_FWD_H

#include "zarn/export.h"

namespace plinth2 {

class variant_t;

}  // namespace plinth2

namespace zarn_3_3 {

class EventHandler;
class IOption;
class IParser;
class IParseResult;
class WordWrappedText;
struct Value;

// The modern face.
class Item;
class Parser;
class Result;
struct Bytes;
struct Occurrence;
struct Switch;
struct Tool;

}  // namespace zarn_3_3

namespace zarn = zarn_3_3;

#endif  // ZARN_FWD_H
