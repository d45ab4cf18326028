// The scripts in completion/, put into the program when it is built.

#ifndef ZARN_VOCABULARY_SCRIPT_TEMPLATES_H
#define ZARN_VOCABULARY_SCRIPT_TEMPLATES_H

namespace vocabulary {

extern const char bashTemplate[];
extern const char fishTemplate[];
extern const char zshTemplate[];

}  // namespace vocabulary

#endif  // ZARN_VOCABULARY_SCRIPT_TEMPLATES_H
