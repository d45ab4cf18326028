// The modern face: what a tool declares lands in its variables, and one line in main does the rest.
//
// It stands on the plain interface of zarn.h, which stays within reach: a parser gives the plain
// object with -> and *, and both faces may be mixed. zarn.h does not include it.

#ifndef ZARN_TYPED_H
#define ZARN_TYPED_H

#include "zarn/typed/conversion.h"
#include "zarn/typed/declaration.h"
#include "zarn/typed/diagnosis.h"
#include "zarn/typed/handlers.h"
#include "zarn/typed/parser.h"
#include "zarn/typed/quantities.h"
#include "zarn/typed/result.h"
#include "zarn/typed/value.h"
#include "zarn/zarn.h"

#endif  // ZARN_TYPED_H
