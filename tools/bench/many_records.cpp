#include "many_records.h"

#include <functional>

#include "base/text.h"
#include "store/recordset.h"

namespace survey::bench {
namespace {

// Stores the records that fulfil the condition so many times more, each time changed, in all tables
// that hold records of staff, or in those that hold other records of a campus.
void CopyRecords(Connection& store, bool of_staff, const std::string& condition, int copies,
                 const std::function<std::string(const std::string& table, int copy)>& change) {
  Recordset tables;
  tables.Open(
      "select name from sqlite_master where type = 'table' and name like 'tbl%' and sql like "
      "'%CampusEmisNumber%' and sql " +
          std::string(of_staff ? "like" : "not like") + " '%IDNumber%'",
      &store);
  std::string script = "begin;";
  for (; !tables.Eof(); tables.MoveNext()) {
    const std::string table = tables.Field("name").Text();
    script += "create temp table copied as select * from " + table + " where " + condition + ";";
    for (int copy = 1; copy <= copies; ++copy) {
      script += "update copied set " + change(table, copy) + ";insert into " + table +
                " select * from copied;";
    }
    script += "drop table copied;";
  }
  store.ExecuteScript((script + "commit").c_str());
}

}  // namespace

std::string StaffId(int member) { return std::to_string(7'001'010'000 + member); }

void AddStaff(FormHost& host, int members, testing::Figures& figures) {
  testing::FillStaffMember(host, StaffId(1), figures);
  CopyRecords(*host.survey().DatabaseConnection, true, "IDNumber = '" + StaffId(1) + "'",
              members - 1, [](const std::string& table, int copy) {
                const std::string id = "IDNumber = '" + StaffId(copy + 1) + "'";
                if (table != "tbl_StaffDetail") return id;
                return id + ", Surname = '" + UpperCase(testing::WordOf(copy + 1)) + "'";
              });
}

void AddSites(FormHost& host, int sites) {
  const Survey& survey = host.survey();
  CopyRecords(*survey.DatabaseConnection, false,
              "CollegeEmisNumber = " + NumberText(survey.CollegeEmisNumber) +
                  " and CampusEmisNumber = " + NumberText(survey.CampusEmisNumber),
              sites, [](const std::string&, int copy) {
                return "CollegeEmisNumber = " + std::to_string(100'000 + copy) +
                       ", CampusEmisNumber = " + std::to_string(200'000 + copy);
              });
}

}  // namespace survey::bench
