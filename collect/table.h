#ifndef COLLECT_TABLE_H_
#define COLLECT_TABLE_H_

#include <string>
#include <vector>

#include "collect/returned_file.h"
#include "store/value.h"
#include "template/store_tables.h"

namespace survey {

using Row = std::vector<Value>;

// What gathering makes besides the tables of the store: a column for each field of their rows.
const StoreTable& SitesTable();
const StoreTable& ProblemsTable();
const StoreTable& CodesTable();

Row SiteRow(const std::string& file, const CheckedSite& checked);
Row ProblemRow(const std::string& file, const Problem& problem);
// The numbers of the survey's tables that are so, "2.1; 2.2".
std::string TablesThat(PageFill fill, const SiteChecks& checks);
std::size_t CountOf(Finding::Kind kind, const SiteChecks& checks);

// What each code of each column means; the same for every file.
std::vector<Row> CodeRows();

}  // namespace survey

#endif  // COLLECT_TABLE_H_
