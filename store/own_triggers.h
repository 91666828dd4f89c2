#ifndef STORE_OWN_TRIGGERS_H_
#define STORE_OWN_TRIGGERS_H_

#include <string_view>

namespace survey {

// The triggers of every survey database, as the engine keeps their text. A database with any other
// trigger is refused at opening: never change a blank of these.
inline constexpr std::string_view kOwnTriggers[] = {
    R"sql(CREATE TRIGGER hostel_new AFTER INSERT ON tbl_Hostels BEGIN
  UPDATE tbl_Hostels SET Physical_Code = coalesce(new.Physical_Code, new.physicalcode),
                         physicalcode = coalesce(new.Physical_Code, new.physicalcode)
  WHERE rowid = new.rowid;
END)sql",

    R"sql(CREATE TRIGGER hostel_code_changed AFTER UPDATE OF Physical_Code ON tbl_Hostels
WHEN new.Physical_Code IS NOT new.physicalcode COLLATE BINARY BEGIN
  UPDATE tbl_Hostels SET physicalcode = new.Physical_Code WHERE rowid = new.rowid;
END)sql",

    R"sql(CREATE TRIGGER hostel_other_code_changed AFTER UPDATE OF physicalcode ON tbl_Hostels
WHEN new.Physical_Code IS NOT new.physicalcode COLLATE BINARY BEGIN
  UPDATE tbl_Hostels SET Physical_Code = new.physicalcode WHERE rowid = new.rowid;
END)sql"};

}  // namespace survey

#endif  // STORE_OWN_TRIGGERS_H_
