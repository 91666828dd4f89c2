#ifndef TOOLS_BENCH_MANY_RECORDS_H_
#define TOOLS_BENCH_MANY_RECORDS_H_

#include <string>

#include "support/page_filler.h"

namespace survey::bench {

// The ID number of the first, second ... of the staff that AddStaff adds, up to 9,999.
std::string StaffId(int member);

// As many staff members: the first entered on the pages, the others copied from him or her in the
// store under IDs and surnames of their own. Nothing may be unsaved.
void AddStaff(FormHost& host, int members, testing::Figures& figures);

// As many other sites that hold what the context's site holds of its campus, copied in the store.
void AddSites(FormHost& host, int sites);

}  // namespace survey::bench

#endif  // TOOLS_BENCH_MANY_RECORDS_H_
