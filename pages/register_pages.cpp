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

void RegisterPages(Forms& forms) {
  forms.Register<FrmPage2>("frmPage2");
  forms.Register<FrmHostels>("frmHostels");
  forms.Register<FrmPage4>("frmPage4");
  forms.Register<FrmStudentTotal>("frmStudentTotal");
  forms.Register<FrmPage3>("frmPage3");
  forms.Register<FrmPage5>("frmPage5");
  forms.Register<FrmPage6_1>("frmPage6_1");
  forms.Register<FrmPage8>("frmPage8");
  forms.Register<FrmPage9>("frmPage9");
  forms.Register<FrmPage9_1>("frmPage9_1");
  forms.Register<FrmOtherProgrammes>("frmOtherProgrammes");
  forms.Register<FrmPage12_1>("frmPage12_1");
  forms.Register<FrmAddQualification>("frmAddQualification");
  forms.Register<FrmPage12_2>("frmPage12_2");
  forms.Register<FrmPage9_10>("frmPage9_10");
  forms.Register<FrmPage9_10_1>("frmPage9_10_1");
  forms.Register<FrmPage14>("frmPage14");
  forms.Register<FrmPage13>("frmPage13");
  forms.Register<FrmSelectEducator>("frmSelectEducator");
  forms.Register<FrmEducatorData>("frmEducatorData");
  forms.Register<FrmLecQualifications1>("frmLecQualifications1");
  forms.Register<FrmLecQualifications2>("frmLecQualifications2");
  forms.Register<FrmEducatorTeaching1>("frmEducatorTeaching1");
  forms.Register<FrmEducatorTeaching>("frmEducatorTeaching");
  forms.Register<FrmAddSubjects>("frmAddSubjects");
  forms.Register<FrmEducatorTeaching2>("frmEducatorTeaching2");
}

}  // namespace survey
