#include "pages/register_pages.h"

#include "pages/institution/frmHostels.h"
#include "pages/institution/frmPage2.h"
#include "pages/institution/frmPage4.h"
#include "pages/staff/frmAddSubjects.h"
#include "pages/staff/frmEducatorData.h"
#include "pages/staff/frmEducatorTeaching.h"
#include "pages/staff/frmEducatorTeaching1.h"
#include "pages/staff/frmEducatorTeaching2.h"
#include "pages/staff/frmLecQualifications1.h"
#include "pages/staff/frmLecQualifications2.h"
#include "pages/staff/frmSelectEducator.h"
#include "pages/student/frmAddQualification.h"
#include "pages/student/frmOtherProgrammes.h"
#include "pages/student/frmPage12_1.h"
#include "pages/student/frmPage12_2.h"
#include "pages/student/frmPage13.h"
#include "pages/student/frmPage14.h"
#include "pages/student/frmPage3.h"
#include "pages/student/frmPage5.h"
#include "pages/student/frmPage6_1.h"
#include "pages/student/frmPage8.h"
#include "pages/student/frmPage9.h"
#include "pages/student/frmPage9_1.h"
#include "pages/student/frmPage9_10.h"
#include "pages/student/frmPage9_10_1.h"
#include "pages/student/frmStudentTotal.h"

namespace survey {

void RegisterPages(FormHost& host) {
  host.Register<FrmPage2>("frmPage2");
  host.Register<FrmHostels>("frmHostels");
  host.Register<FrmPage4>("frmPage4");
  host.Register<FrmStudentTotal>("frmStudentTotal");
  host.Register<FrmPage3>("frmPage3");
  host.Register<FrmPage5>("frmPage5");
  host.Register<FrmPage6_1>("frmPage6_1");
  host.Register<FrmPage8>("frmPage8");
  host.Register<FrmPage9>("frmPage9");
  host.Register<FrmPage9_1>("frmPage9_1");
  host.Register<FrmOtherProgrammes>("frmOtherProgrammes");
  host.Register<FrmPage12_1>("frmPage12_1");
  host.Register<FrmAddQualification>("frmAddQualification");
  host.Register<FrmPage12_2>("frmPage12_2");
  host.Register<FrmPage9_10>("frmPage9_10");
  host.Register<FrmPage9_10_1>("frmPage9_10_1");
  host.Register<FrmPage14>("frmPage14");
  host.Register<FrmPage13>("frmPage13");
  host.Register<FrmSelectEducator>("frmSelectEducator");
  host.Register<FrmEducatorData>("frmEducatorData");
  host.Register<FrmLecQualifications1>("frmLecQualifications1");
  host.Register<FrmLecQualifications2>("frmLecQualifications2");
  host.Register<FrmEducatorTeaching1>("frmEducatorTeaching1");
  host.Register<FrmEducatorTeaching>("frmEducatorTeaching");
  host.Register<FrmAddSubjects>("frmAddSubjects");
  host.Register<FrmEducatorTeaching2>("frmEducatorTeaching2");
}

}  // namespace survey
