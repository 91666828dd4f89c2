#include "forms/page_chain.h"

#include <algorithm>

namespace survey {
namespace {

constexpr auto kAsk = Guard::kConfirmUnsaved;
constexpr auto kUS = Leaving::kUnloadThenShow;
constexpr auto kSU = Leaving::kShowThenUnload;
constexpr auto kStays = Leaving::kStays;
constexpr auto kId = Passes::kEducatorId;
constexpr auto kIdAndEmis = Passes::kEducatorIdAndEmisNumber;

}  // namespace

// clang-format off
const std::vector<Link>& PageChain() {
  static const std::vector<Link> chain = {
      {"frmPage2", "cmdNext", "frmHostels", kAsk, kUS},
      {"frmPage2", "cmdPrevious", "frmMainMenu", kAsk, kSU},

      {"frmHostels", "cmdNext", "frmPage4", kAsk, kUS},
      {"frmHostels", "cmdPrevious", "frmPage2", kAsk, kUS},
      {"frmHostels", "cmdMenu", "frmMainMenu", kAsk, kUS},

      {"frmPage4", "cmdNext", "frmStudentTotal", kAsk, kUS},
      {"frmPage4", "cmdPrevious", "frmHostels", kAsk, kUS},
      {"frmPage4", "cmdMenu", "frmMainMenu", kAsk, kUS},
      {"frmPage4", "cmdStaff", "frmSelectEducator", Guard::kNone, kSU},

      {"frmStudentTotal", "cmdNext", "frmPage3", kAsk, kSU},
      {"frmStudentTotal", "cmdPrevious", "frmPage4", kAsk, kSU},
      {"frmStudentTotal", "cmdMenu", "frmMainMenu", kAsk, kUS},

      {"frmPage3", "cmdNext", "frmPage5", kAsk, kUS},
      {"frmPage3", "cmdPrevious", "frmStudentTotal", kAsk, kUS},
      {"frmPage3", "cmdMenu", "frmMainMenu", kAsk, kUS},

      {"frmPage5", "cmdNext", "frmPage6_1", kAsk, kUS},
      {"frmPage5", "cmdPrevious", "frmPage3", kAsk, kUS},
      {"frmPage5", "cmdMenu", "frmMainMenu", kAsk, kUS},

      {"frmPage6_1", "cmdNext", "frmPage8", kAsk, kUS},
      {"frmPage6_1", "cmdPrevious", "frmPage5", kAsk, kUS},
      {"frmPage6_1", "cmdMenu", "frmMainMenu", kAsk, kUS},

      {"frmPage8", "cmdNext", "frmPage9", kAsk, kUS},
      {"frmPage8", "cmdPrevious", "frmPage6_1", kAsk, kUS},
      {"frmPage8", "cmdMenu", "frmMainMenu", kAsk, kUS},

      {"frmPage9", "cmdNext", "frmPage9_1", kAsk, kUS},
      {"frmPage9", "cmdPrevious", "frmPage8", kAsk, kUS},
      {"frmPage9", "cmdMenu", "frmMainMenu", kAsk, kUS},

      {"frmPage9_1", "cmdNext", "frmOtherProgrammes", kAsk, kSU},
      {"frmPage9_1", "cmdPrevious", "frmPage9", kAsk, kSU},
      {"frmPage9_1", "cmdMenu", "frmMainMenu", kAsk, kUS},

      {"frmOtherProgrammes", "cmdNext", "frmPage12_1", kAsk, kSU},
      {"frmOtherProgrammes", "cmdPrevious", "frmPage9_1", kAsk, kSU},
      {"frmOtherProgrammes", "cmdMenu", "frmMainMenu", kAsk, kSU},

      {"frmPage12_1", "cmdNext", "frmPage12_2", kAsk, kSU},
      {"frmPage12_1", "cmdPrevious", "frmOtherProgrammes", kAsk, kSU},
      {"frmPage12_1", "cmdMenu", "frmMainMenu", kAsk, kSU},

      {"frmPage12_2", "cmdNext", "frmPage9_10", kAsk, kUS},
      {"frmPage12_2", "cmdPrevious", "frmPage12_1", kAsk, kUS},
      {"frmPage12_2", "cmdMenu", "frmMainMenu", kAsk, kSU},

      {"frmPage9_10", "cmdNext", "frmPage9_10_1", kAsk, kSU},
      {"frmPage9_10", "cmdPrevious", "frmPage12_2", kAsk, kSU},
      {"frmPage9_10", "cmdMenu", "frmMainMenu", kAsk, kUS},

      {"frmPage9_10_1", "cmdNext", "frmPage14", kAsk, kUS},
      {"frmPage9_10_1", "cmdPrevious", "frmPage9_10", kAsk, kUS},
      {"frmPage9_10_1", "cmdMenu", "frmMainMenu", kAsk, kUS},

      {"frmPage14", "cmdNext", "frmPage13", kAsk, kUS},
      {"frmPage14", "cmdPrevious", "frmPage9_10_1", kAsk, kUS},
      {"frmPage14", "cmdMenu", "frmMainMenu", kAsk, kUS},

      {"frmPage13", "cmdNext", "frmSelectEducator", kAsk, kUS},
      {"frmPage13", "cmdPrevious", "frmPage14", kAsk, kUS},
      {"frmPage13", "cmdMenu", "frmMainMenu", kAsk, kUS},

      // The staff list and the six staff pages. Button names and captions do not always match.
      {"frmSelectEducator", "cmdPrevious", "frmPage13", Guard::kNone, kSU},
      {"frmSelectEducator", "cmdMenu", "frmMainMenu", Guard::kNone, kSU},
      {"frmSelectEducator", "cmdEdit", "frmEducatorData", Guard::kOwn, kStays, kIdAndEmis},
      {"frmSelectEducator", "cmdAddNew", "frmEducatorData", Guard::kOwn, kStays, kIdAndEmis},
      {"frmSelectEducator", "cmdLoad", "frmEducatorTeaching", Guard::kOwn, kStays, kId},
      {"frmSelectEducator", "cmdLoad2", "frmEducatorTeaching2", Guard::kOwn, kStays, kId},
      {"frmSelectEducator", "cmdStaffteaching", "frmEducatorTeaching1", Guard::kOwn, kStays, kId},
      {"frmSelectEducator", "cmdSpecialisation", "frmLecQualifications1", Guard::kOwn, kStays, kId},

      {"frmEducatorData", "cmdNext", "frmLecQualifications1", Guard::kNone, kSU, kId},
      {"frmEducatorData", "cmdPrevious", "frmSelectEducator", Guard::kOwn, Leaving::kUnloadOnly},

      {"frmLecQualifications1", "cmdNext", "frmLecQualifications2", kAsk, kUS, kIdAndEmis},
      {"frmLecQualifications1", "cmdMenu", "frmSelectEducator", kAsk, kUS},

      {"frmLecQualifications2", "cmdNext", "frmLecQualifications1", kAsk, kUS, kIdAndEmis},
      {"frmLecQualifications2", "cmdEducatorList", "frmSelectEducator", kAsk, kUS},

      {"frmEducatorTeaching1", "cmdForward", "frmEducatorTeaching", kAsk, kSU, kId},
      {"frmEducatorTeaching1", "cmdNext", "frmLecQualifications2", Guard::kNone, kSU, kId},
      {"frmEducatorTeaching1", "cmdPrevious", "frmSelectEducator", Guard::kNone, kSU},

      {"frmEducatorTeaching", "cmdForward", "frmEducatorTeaching2", kAsk, kSU, kId},
      {"frmEducatorTeaching", "cmdNext", "frmEducatorTeaching1", Guard::kNone, kSU, kId},
      {"frmEducatorTeaching", "cmdPrevious", "frmSelectEducator", Guard::kNone, kSU},

      {"frmEducatorTeaching2", "cmdNext", "frmEducatorTeaching", Guard::kNone, kSU, kId},
      {"frmEducatorTeaching2", "cmdPrevious", "frmSelectEducator", Guard::kNone, kSU},
  };
  return chain;
}
// clang-format on

const Link* FindLink(std::string_view page, std::string_view button) {
  const auto& chain = PageChain();
  const auto link = std::find_if(chain.begin(), chain.end(), [&](const Link& candidate) {
    return candidate.page == page && candidate.button == button;
  });
  return link == chain.end() ? nullptr : &*link;
}

}  // namespace survey
