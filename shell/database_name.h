#ifndef SHELL_DATABASE_NAME_H_
#define SHELL_DATABASE_NAME_H_

#include <string>
#include <string_view>

namespace survey {

// Why no database may be given that name, in a sentence that names what is wrong; "" where it may.
// A file travels to every kind of computer, so that what one of them forbids is refused on all: on
// some, "Duinekop: Campus" would write into a hidden part of a file "Duinekop". `name` is trimmed.
// Separators of folders are not told of here: they are refused like a name that exists.
std::string WhyNoName(std::string_view name);

}  // namespace survey

#endif  // SHELL_DATABASE_NAME_H_
