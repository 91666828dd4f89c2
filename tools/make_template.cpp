// Makes the empty survey database from the lists of colleges, provinces, subjects and occupational
// qualifications.

#include <exception>
#include <iostream>

#include "template/survey_lists.h"
#include "template/template.h"

namespace {

constexpr int kDone = 0;
constexpr int kFailed = 1;
constexpr int kUsage = 2;

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: make-template DATA_FOLDER OUTPUT_FILE\n";
    return kUsage;
  }
  try {
    const survey::SurveyLists lists = survey::ReadSurveyLists(argv[1]);
    survey::MakeTemplate(lists, argv[2]);
    std::cout << argv[2] << ": " << lists.provinces.size() << " provinces, " << lists.sites.size()
              << " sites, " << lists.subjects.size() << " subjects, " << lists.qualifications.size()
              << " qualifications\n";
    return kDone;
  } catch (const std::exception& error) {
    std::cerr << "make-template: " << error.what() << "\n";
    return kFailed;
  }
}
