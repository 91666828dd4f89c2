#include "forms/page_rules.h"

#include <algorithm>
#include <stdexcept>
#include <string>

namespace survey {
namespace {

constexpr auto kBefore = MarkCleared::kBeforeSave;
constexpr auto kAfter = MarkCleared::kAfterSave;

// A handler without a name here does not report under one: the page's own file says what it does.
constexpr ErrorName kNone = {};

// clang-format off
const std::vector<PageRules> kPageRules = {
    {"frmPage2", kAfter,
     {"frmPage2", "GetPage Routine"}, {"frmPage2", "SavePage Routine"},
     {"frmPage2", "Print Routine"}},
    {"frmHostels", MarkCleared::kNever,
     kNone, kNone, {"frmPage2", "Print Routine"}},
    {"frmPage4", kBefore,
     {"frmPage4", "GetPage Routine"}, {"frmPage4", "SavePage Routine"},
     {"frmPage4", "Print Routine"}},
    {"frmStudentTotal", kBefore,
     {"frmStudentTotal", "GetPage Routine"}, {"frmStudentTotal", "SavePage Routine"},
     {"frmStudentTotal", "Print Routine"}},
    {"frmPage3", kBefore,
     {"frmPage3", "GetPage Routine"}, {"frmPage3", "SavePage Routine"},
     {"frmPage3", "Print Routine"}},
    {"frmPage5", kBefore,
     {"frmPage3", "GetPage Routine"}, {"frmPage5", "SavePage Routine"},
     {"frmPage5", "Print Routine"}},
    {"frmPage6_1", kBefore,
     {"frmPage3", "GetPage Routine"}, {"frmPage6_1", "SavePage Routine"},
     {"frmPage6", "Print Routine"}},
    {"frmPage8", kBefore,
     {"frmPage8", "GetPage Routine"}, {"frmPage5", "SavePage Routine"},
     {"frmPage8", "Print Routine"}},
    {"frmPage9", kBefore,
     {"frmPage8", "GetPage Routine"}, {"frmPage5", "SavePage Routine"},
     {"frmPage9", "Print Routine"}},
    {"frmPage9_1", kBefore,
     {"frmPage9_1", "GetPage Routine"}, {"frmPage9_1", "SavePage Routine"},
     {"frmPage9", "Print Routine"}},
    {"frmOtherProgrammes", kAfter,
     {"frmOtherProgrammes", "Get Data Routine"}, {"frmOtherProgrammes", "Save Data Routine"},
     {"frmPage12_1", "Print Routine"}},
    {"frmPage12_1", kAfter,
     {"frmPage12_1", "GetPage Routine"}, {"frmPage12_1", "SavePage Routine"},
     {"frmPage12_1", "Print Routine"}},
    {"frmPage12_2", kBefore,
     kNone, {"frmPage12_1", "SavePage Routine"}, {"frmPage12_2", "Print Routine"}},
    {"frmPage9_10", kBefore,
     {"frmPage9_10", "GetPage Routine"}, {"frmPage9_10", "SavePage Routine"},
     {"frmPage9_10", "Print Routine"}},
    {"frmPage9_10_1", kBefore,
     {"frmPage9_10_1", "GetPage Routine"}, {"frmPage9_10_1", "SavePage Routine"},
     {"frmPage9_10_1", "Print Routine"}},
    {"frmPage14", kBefore,
     {"frmPage9_10_1", "GetPage Routine"}, {"frmPage14", "SavePage Routine"},
     {"frmPage14", "Print Routine"}},
    {"frmPage13", kBefore,
     {"frmPage13", "GetPage Routine"}, {"frmPage14", "SavePage Routine"},
     {"frmPage13", "Print Routine"}},
    {"frmEducatorData", kAfter,
     kNone, kNone, {"frmEducatorData", "Print Routine"}},
    {"frmLecQualifications1", kAfter,
     kNone, kNone, {"frmLecQualifications1", "Print Routine"}},
    {"frmLecQualifications2", kAfter,
     kNone, kNone, {"frmLecQualifications2", "Print Routine"}},
    {"frmEducatorTeaching1", kBefore,
     {"frmEducatorTeaching1", "Load Routine"}, {"frmEducatrorTeaching1", "Save Routine"},
     {"frmEducatorData", "Print Routine"}},
    {"frmEducatorTeaching", kBefore,
     {"frmEducatorTeaching", "Load Routine"}, {"frmEducatrorTeaching", "Save Routine"},
     {"frmEducatorData", "Print Routine"}},
    {"frmEducatorTeaching2", kBefore,
     {"frmEducatorTeaching2", "GetPage Routine"}, {"frmStaffQualification", "SavePage Routine"},
     {"frmEducatorTeaching2", "Print Routine"}},
};
// clang-format on

}  // namespace

const PageRules& RulesOf(std::string_view page) {
  const auto rules = std::find_if(kPageRules.begin(), kPageRules.end(),
                                  [&](const PageRules& row) { return row.page == page; });
  if (rules == kPageRules.end()) throw std::out_of_range(std::string(page) + " is no page");
  return *rules;
}

}  // namespace survey
