# Writes to GUIDE what stands in README before the parts for the department and for developers.
file(READ ${README} text)
string(FIND "${text}" "\n# For the department" end)
if(end EQUAL -1)
  message(FATAL_ERROR "${README} has no part \"For the department\"")
endif()
string(SUBSTRING "${text}" 0 ${end} guide)
file(WRITE ${GUIDE} "${guide}")
