#ifndef TEMPLATE_SCHEMA_H_
#define TEMPLATE_SCHEMA_H_

namespace survey {

// The tables of the survey database, in the engine's SQL. Names are for ever: every handed-in
// file has them.
extern const char kSchema[];

}  // namespace survey

#endif  // TEMPLATE_SCHEMA_H_
