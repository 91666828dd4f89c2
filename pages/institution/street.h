#ifndef PAGES_INSTITUTION_STREET_H_
#define PAGES_INSTITUTION_STREET_H_

#include "grid/grid.h"
#include "store/value.h"

namespace survey {

// Street number and street name are stored as one text with a blank between them. This takes it
// apart at its first blank, so that a number with a blank in it comes back in two halves. A null
// leaves both cells as they were; a text without a blank is shown as the name, and then
// InvalidProcedureCall() is thrown.
void ShowStreet(const Value& street, Cell number, Cell name, Grid& grid);

}  // namespace survey

#endif  // PAGES_INSTITUTION_STREET_H_
