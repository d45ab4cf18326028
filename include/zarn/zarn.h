// Everything that a tool needs to have its command line parsed.

#ifndef ZARN_ZARN_H
#define ZARN_ZARN_H

#include "plinth2/variant.h"
#include "zarn/event_handler.h"
#include "zarn/export.h"
#include "zarn/option.h"
#include "zarn/parser.h"
#include "zarn/result.h"
#include "zarn/text_layout.h"
#include "zarn/value.h"

namespace zarn = zarn_3_3;

#endif  // ZARN_ZARN_H
