// The modern face: the interface of zarn.h with owning handles, typed values, ranges and lambdas.
//
// All of it is made of inline code over the public interface, which stays within reach: a handle
// gives the plain object with -> and *, and both faces may be mixed. zarn.h does not include it.

#ifndef ZARN_TYPED_H
#define ZARN_TYPED_H

#include "zarn/typed/declaration.h"
#include "zarn/typed/handlers.h"
#include "zarn/typed/owned.h"
#include "zarn/typed/parser.h"
#include "zarn/typed/reading.h"
#include "zarn/typed/value.h"
#include "zarn/zarn.h"

#endif  // ZARN_TYPED_H
