#include "template/schema.h"

namespace survey {

// A text is compared without regard to case. A column is null until a statement names it. Nothing
// is unique: no statement relies on it, and a second record for one ID number is allowed.
const char kSchema[] = R"sql(

-- Students

CREATE TABLE tbl_StudentEnrolment (
  CollegeEmisNumber NUMERIC, CampusEmisNumber NUMERIC,
  ProgrammeTypeCD NUMERIC, GenderCD NUMERIC, SurveyYear NUMERIC, Quantity NUMERIC);

CREATE TABLE tbl_StudentAgreements (
  CollegeEmisNumber NUMERIC, CampusEmisNumber NUMERIC,
  ProgrammeTypeCD NUMERIC, AgreementTypeCD NUMERIC, GenderCD NUMERIC, SurveyYear NUMERIC,
  Quantity NUMERIC);

CREATE TABLE tbl_StudentRegistration (
  CollegeEmisNumber NUMERIC, CampusEmisNumber NUMERIC,
  ProgrammeRegistrationTypeCD NUMERIC, ProgrammeDurationTypeCD NUMERIC, GenderCD NUMERIC,
  SurveyYear NUMERIC, Quantity NUMERIC);

CREATE TABLE tbl_StudentFTE (
  CollegeEmisNumber NUMERIC, CampusEmisNumber NUMERIC,
  ProgrammeRegistrationTypeCD NUMERIC, VocationalFieldFTECD NUMERIC, SurveyYear NUMERIC,
  Quantity NUMERIC);

CREATE TABLE tbl_StudentPopulationGroup191 (
  CollegeEmisNumber NUMERIC, CampusEmisNumber NUMERIC,
  ProgrammeRegistrationTypeCD NUMERIC, VocationalField191CD NUMERIC, PopulationGroupCD NUMERIC,
  GenderCD NUMERIC, SurveyYear NUMERIC, Quantity NUMERIC);

CREATE TABLE tbl_StudentPopulationGroupNCV (
  CollegeEmisNumber NUMERIC, CampusEmisNumber NUMERIC,
  ProgrammeRegistrationTypeCD NUMERIC, ProgrammeNCVCD NUMERIC, PopulationGroupCD NUMERIC,
  GenderCD NUMERIC, SurveyYear NUMERIC, Quantity NUMERIC);

CREATE TABLE tbl_StudentPopulationGroupNSC (
  CollegeEmisNumber NUMERIC, CampusEmisNumber NUMERIC,
  Grade NUMERIC, PopulationGroupCD NUMERIC, GenderCD NUMERIC, SurveyYear NUMERIC,
  Quantity NUMERIC);

CREATE TABLE tbl_StudentPopulationGroupAET (
  CollegeEmisNumber NUMERIC, CampusEmisNumber NUMERIC,
  AETLevel NUMERIC, PopulationGroupCD NUMERIC, GenderCD NUMERIC, SurveyYear NUMERIC,
  Quantity NUMERIC);

CREATE TABLE tbl_Level5Programmes (
  CollegeEmisNumber NUMERIC, CampusEmisNumber NUMERIC,
  ProgrammeName TEXT COLLATE NOCASE, InstitutionHE TEXT COLLATE NOCASE, ProgrammeLevel NUMERIC,
  MaleEnrolment NUMERIC, SurveyYear NUMERIC, FemaleEnrolment NUMERIC);

CREATE TABLE tbl_StudentRegistrationOccupational (
  CollegeEmisNumber NUMERIC, CampusEmisNumber NUMERIC,
  NQFID NUMERIC, Quantity NUMERIC, SurveyYear NUMERIC);

CREATE TABLE tbl_StudentPopulationGroupOcc (
  CollegeEmisNumber NUMERIC, CampusEmisNumber NUMERIC,
  OrganisingFieldCD NUMERIC, PopulationGroupCD NUMERIC, GenderCD NUMERIC, SurveyYear NUMERIC,
  Quantity NUMERIC);

CREATE TABLE tbl_StudentAgeLevel2 (
  CollegeEmisNumber NUMERIC, CampusEmisNumber NUMERIC,
  ProgrammeNCVCD NUMERIC, Age NUMERIC, SurveyYear NUMERIC, Quantity NUMERIC);

CREATE TABLE tbl_StudentAgeEnrolment (
  CollegeEmisNumber NUMERIC, CampusEmisNumber NUMERIC,
  ProgrammeTypeCD NUMERIC, Age NUMERIC, GenderCD NUMERIC, SurveyYear NUMERIC, Quantity NUMERIC);

CREATE TABLE tbl_SNEStudentEnrolment (
  CollegeEmisNumber NUMERIC, CampusEmisNumber NUMERIC,
  ProgrammeTypeCD NUMERIC, DisabilityCD NUMERIC, GenderCD NUMERIC, SurveyYear NUMERIC,
  Quantity NUMERIC);

-- One row for a province or for a country, never both.
CREATE TABLE tbl_StudentBoarders (
  CollegeEmisNumber NUMERIC, CampusEmisNumber NUMERIC,
  ProvinceCD NUMERIC, Country TEXT COLLATE NOCASE, MaleEnrolment NUMERIC,
  FemaleEnrolment NUMERIC, SurveyYear NUMERIC);

-- Institution

-- The year is a text in this table alone.
CREATE TABLE tbl_GeneralInformation (
  CollegeEmisNumber NUMERIC, CampusEmisNumber NUMERIC,
  CollegeName TEXT COLLATE NOCASE, CampusName TEXT COLLATE NOCASE,
  ProvinceCD NUMERIC, SiteType NUMERIC,
  Postal_box TEXT COLLATE NOCASE, Postal_bag TEXT COLLATE NOCASE,
  Postal_office TEXT COLLATE NOCASE, Postal_city TEXT COLLATE NOCASE,
  Postal_Code TEXT COLLATE NOCASE,
  Physical_Building TEXT COLLATE NOCASE, Physical_Street TEXT COLLATE NOCASE,
  Physical_City TEXT COLLATE NOCASE, Physical_Code TEXT COLLATE NOCASE,
  Municipalarea TEXT COLLATE NOCASE, Manager TEXT COLLATE NOCASE,
  Telephone TEXT COLLATE NOCASE, Facsimile TEXT COLLATE NOCASE, Cellphone TEXT COLLATE NOCASE,
  email TEXT COLLATE NOCASE, website TEXT COLLATE NOCASE,
  MISSystem NUMERIC, MISProgramme NUMERIC, MISProgrammeOther TEXT COLLATE NOCASE,
  MISManagerName TEXT COLLATE NOCASE, MISTelephone TEXT COLLATE NOCASE,
  MISFacsimile TEXT COLLATE NOCASE, MISEmail TEXT COLLATE NOCASE, MISYear TEXT COLLATE NOCASE,
  SurveyYear TEXT COLLATE NOCASE);

CREATE TABLE tbl_StaffCount (
  CollegeEmisNumber NUMERIC, CampusEmisNumber NUMERIC,
  StaffCategoryCD NUMERIC, GenderCD NUMERIC, RemunerationCD NUMERIC, DurationCD NUMERIC,
  AppointmentNatureCD NUMERIC, SurveyYear NUMERIC, Quantity NUMERIC);

CREATE TABLE tbl_LectureStaff (
  CollegeEmisNumber NUMERIC, CampusEmisNumber NUMERIC,
  RemunerationCD NUMERIC, GenderCD NUMERIC, DegreeTypeCD NUMERIC, SurveyYear NUMERIC,
  Quantity NUMERIC);

-- A hostel is saved new under one spelling of its postal code and changed under the other; both
-- columns hold what was written last.
CREATE TABLE tbl_Hostels (
  CollegeEmisNumber NUMERIC, CampusEmisNumber NUMERIC, SurveyYear NUMERIC,
  HostelName TEXT COLLATE NOCASE, Physical_Building TEXT COLLATE NOCASE,
  Physical_Street TEXT COLLATE NOCASE, Physical_City TEXT COLLATE NOCASE,
  Physical_Code TEXT COLLATE NOCASE, Telephone TEXT COLLATE NOCASE, Facsimile TEXT COLLATE NOCASE,
  GISLat TEXT COLLATE NOCASE, GISLong TEXT COLLATE NOCASE, physicalcode TEXT COLLATE NOCASE);

CREATE TABLE tbl_SETAAccreditation (
  CollegeEmisNumber NUMERIC, CampusEmisNumber NUMERIC, SurveyYear NUMERIC, SETAID NUMERIC);

-- Staff

CREATE TABLE tbl_StaffDetail (
  CollegeEmisNumber NUMERIC, CampusEmisNumber NUMERIC, SiteType NUMERIC, StaffCategoryCD NUMERIC,
  Title TEXT COLLATE NOCASE, Initials TEXT COLLATE NOCASE, Surname TEXT COLLATE NOCASE,
  IDNumber TEXT COLLATE NOCASE, CitizenStatusCD NUMERIC, PersalNo TEXT COLLATE NOCASE,
  SaceNumber TEXT COLLATE NOCASE, GenderCD NUMERIC, DateOfBirth TEXT COLLATE NOCASE,
  PopulationGroupCD NUMERIC, Cellphone TEXT COLLATE NOCASE, HomeTelephone TEXT COLLATE NOCASE,
  HomeLanguageCD NUMERIC, DisabilityCD NUMERIC, DisabilityOther TEXT COLLATE NOCASE,
  PersonnelCategoryCD NUMERIC, AppointmentNatureCD NUMERIC, RemunerationCD NUMERIC,
  DurationCD NUMERIC, EmployeeNumber TEXT COLLATE NOCASE, Nationality TEXT COLLATE NOCASE,
  SurveyYear NUMERIC);

CREATE TABLE tbl_StaffTraining (
  CollegeEmisNumber NUMERIC, CampusEmisNumber NUMERIC, SurveyYear NUMERIC,
  IDNumber TEXT COLLATE NOCASE, CourseName TEXT COLLATE NOCASE, CourseHours NUMERIC,
  ServiceProvider TEXT COLLATE NOCASE);

CREATE TABLE tbl_StaffQualificationType (
  CollegeEmisNumber NUMERIC, CampusEmisNumber NUMERIC, SurveyYear NUMERIC,
  IDNumber TEXT COLLATE NOCASE, QualificationTypeCD NUMERIC, TradeDescription TEXT COLLATE NOCASE,
  QualificationOther TEXT COLLATE NOCASE, WorkplaceExperience NUMERIC);

CREATE TABLE tbl_LecturerContactMonth (
  CollegeEmisNumber NUMERIC, CampusEmisNumber NUMERIC, SurveyYear NUMERIC,
  IDNumber TEXT COLLATE NOCASE, MonthCD NUMERIC);

CREATE TABLE tbl_LecturerTeachingSubject (
  CollegeEmisNumber NUMERIC, CampusEmisNumber NUMERIC, SurveyYear NUMERIC,
  IDNumber TEXT COLLATE NOCASE, SubjectCode TEXT COLLATE NOCASE, TeachingHours NUMERIC,
  TeachingExperience NUMERIC, TrainingYears NUMERIC);

CREATE TABLE tbl_LecturerQualificationSubject (
  CollegeEmisNumber NUMERIC, CampusEmisNumber NUMERIC, SurveyYear NUMERIC,
  IDNumber TEXT COLLATE NOCASE, SubjectCode TEXT COLLATE NOCASE, TeachingExperience NUMERIC,
  TrainingYears NUMERIC);

CREATE TABLE tbl_LecturerTeachingFields (
  CollegeEmisNumber NUMERIC, CampusEmisNumber NUMERIC, SurveyYear NUMERIC,
  IDNumber TEXT COLLATE NOCASE, OrganisingFieldCD NUMERIC, TeachingHours NUMERIC,
  TeachingExperience NUMERIC, TrainingYears NUMERIC);

CREATE TABLE tbl_SubjectLoad (SubjectCode TEXT COLLATE NOCASE, CollegeEmisNumber NUMERIC);

-- Lists

CREATE TABLE lst_college (
  CollegeEmisNumber NUMERIC, CollegeName TEXT COLLATE NOCASE, CampusEmisNumber NUMERIC,
  CampusName TEXT COLLATE NOCASE, SiteType NUMERIC, ProvinceCD NUMERIC);

CREATE TABLE lst_province (ProvinceCD NUMERIC, Province TEXT COLLATE NOCASE);

-- The engine numbers the subjects: a statement that adds one leaves the number out.
CREATE TABLE lst_Subject (
  SubjectID INTEGER PRIMARY KEY, SubjectCode TEXT COLLATE NOCASE,
  Description TEXT COLLATE NOCASE, Programme TEXT COLLATE NOCASE);

CREATE TABLE lst_OccupationalQualification (
  NQFID NUMERIC, QualificationTitle TEXT COLLATE NOCASE, NQFField NUMERIC,
  NQFLevel TEXT COLLATE NOCASE);

-- By site

CREATE INDEX site_StudentEnrolment ON tbl_StudentEnrolment (CollegeEmisNumber, CampusEmisNumber);
CREATE INDEX site_StudentAgreements
  ON tbl_StudentAgreements (CollegeEmisNumber, CampusEmisNumber);
CREATE INDEX site_StudentRegistration
  ON tbl_StudentRegistration (CollegeEmisNumber, CampusEmisNumber);
CREATE INDEX site_StudentFTE ON tbl_StudentFTE (CollegeEmisNumber, CampusEmisNumber);
CREATE INDEX site_StudentPopulationGroup191
  ON tbl_StudentPopulationGroup191 (CollegeEmisNumber, CampusEmisNumber);
CREATE INDEX site_StudentPopulationGroupNCV
  ON tbl_StudentPopulationGroupNCV (CollegeEmisNumber, CampusEmisNumber);
CREATE INDEX site_StudentPopulationGroupNSC
  ON tbl_StudentPopulationGroupNSC (CollegeEmisNumber, CampusEmisNumber);
CREATE INDEX site_StudentPopulationGroupAET
  ON tbl_StudentPopulationGroupAET (CollegeEmisNumber, CampusEmisNumber);
CREATE INDEX site_Level5Programmes ON tbl_Level5Programmes (CollegeEmisNumber, CampusEmisNumber);
CREATE INDEX site_StudentRegistrationOccupational
  ON tbl_StudentRegistrationOccupational (CollegeEmisNumber, CampusEmisNumber);
CREATE INDEX site_StudentPopulationGroupOcc
  ON tbl_StudentPopulationGroupOcc (CollegeEmisNumber, CampusEmisNumber);
CREATE INDEX site_StudentAgeLevel2 ON tbl_StudentAgeLevel2 (CollegeEmisNumber, CampusEmisNumber);
CREATE INDEX site_StudentAgeEnrolment
  ON tbl_StudentAgeEnrolment (CollegeEmisNumber, CampusEmisNumber);
CREATE INDEX site_SNEStudentEnrolment
  ON tbl_SNEStudentEnrolment (CollegeEmisNumber, CampusEmisNumber);
CREATE INDEX site_StudentBoarders ON tbl_StudentBoarders (CollegeEmisNumber, CampusEmisNumber);
CREATE INDEX site_GeneralInformation
  ON tbl_GeneralInformation (CollegeEmisNumber, CampusEmisNumber);
CREATE INDEX site_StaffCount ON tbl_StaffCount (CollegeEmisNumber, CampusEmisNumber);
CREATE INDEX site_LectureStaff ON tbl_LectureStaff (CollegeEmisNumber, CampusEmisNumber);
CREATE INDEX site_Hostels ON tbl_Hostels (CollegeEmisNumber, CampusEmisNumber);
CREATE INDEX site_SETAAccreditation
  ON tbl_SETAAccreditation (CollegeEmisNumber, CampusEmisNumber);
CREATE INDEX site_StaffDetail ON tbl_StaffDetail (CollegeEmisNumber, CampusEmisNumber);

-- By campus alone: control totals and the choice of a site

CREATE INDEX campus_StudentRegistration ON tbl_StudentRegistration (CampusEmisNumber);
CREATE INDEX campus_GeneralInformation ON tbl_GeneralInformation (CampusEmisNumber);
CREATE INDEX campus_college ON lst_college (CampusEmisNumber);

-- By person

CREATE INDEX person_StaffDetail ON tbl_StaffDetail (IDNumber);
CREATE INDEX person_StaffTraining ON tbl_StaffTraining (IDNumber);
CREATE INDEX person_StaffQualificationType ON tbl_StaffQualificationType (IDNumber);
CREATE INDEX person_LecturerContactMonth ON tbl_LecturerContactMonth (IDNumber);
CREATE INDEX person_LecturerTeachingSubject ON tbl_LecturerTeachingSubject (IDNumber);
CREATE INDEX person_LecturerQualificationSubject ON tbl_LecturerQualificationSubject (IDNumber);
CREATE INDEX person_LecturerTeachingFields ON tbl_LecturerTeachingFields (IDNumber);

-- By code, for the queries that bring a record and its list entry together

CREATE INDEX code_Subject ON lst_Subject (SubjectCode);
CREATE INDEX code_OccupationalQualification ON lst_OccupationalQualification (NQFID);

)sql";

}  // namespace survey
