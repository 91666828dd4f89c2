#ifndef TEMPLATE_STORE_TABLES_H_
#define TEMPLATE_STORE_TABLES_H_

#include <string>
#include <vector>

namespace survey {

struct StoreColumn {
  std::string name;
  bool is_text;  // else a number
};

struct StoreTable {
  std::string name;
  std::vector<StoreColumn> columns;  // in the order of the schema
};

// The tables of every survey database, in the order of the schema.
const std::vector<StoreTable>& StoreTables();

}  // namespace survey

#endif  // TEMPLATE_STORE_TABLES_H_
