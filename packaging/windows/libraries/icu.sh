# Only capitals, normal forms and UTF-8 are asked of it, which take these files and none of its data. Who
# links another function lacks a symbol and adds its file.
fetch_sources icu 72.1-3+deb12u1
dpkg-source -x icu_*.dsc source
cat > CMakeLists.txt << 'end'
cmake_minimum_required(VERSION 3.25)
project(icu LANGUAGES CXX)
set(CMAKE_CXX_STANDARD 17)
set(files appendable bytesinkutil bytestream bytestrie charstr cmemory cstring edits localebuilder locid
  loclikely locmap normalizer2 normalizer2impl patternprops propname putil resource stringpiece
  uarrsort ucase uchar ucln_cmn ucmndata ucol_swp udata udatamem udataswp uenum uhash uinvchar uloc
  uloc_keytype uloc_tag umapfile umath umutex uniset unifilt unifunct uniset_closure unisetspan unistr
  unistr_case unistr_case_locale uobject uresbund uresdata uscript_props ustrcase ustrcase_locale
  ustrenum ustring ustrtrns utf_impl util utrace utrie2 utrie_swap ucptrie uvector wintz)
list(TRANSFORM files REPLACE "(.+)" "source/source/common/\\1.cpp")
add_library(icuuc STATIC ${files} source/source/stubdata/stubdata.cpp)
target_include_directories(icuuc PRIVATE source/source/common)
target_compile_definitions(icuuc PRIVATE U_COMMON_IMPLEMENTATION U_STATIC_IMPLEMENTATION)
install(TARGETS icuuc ARCHIVE DESTINATION lib)
install(DIRECTORY source/source/common/unicode DESTINATION include)
end
# Who includes the headers links the static library.
sed -i '1i #ifndef U_STATIC_IMPLEMENTATION\n#define U_STATIC_IMPLEMENTATION\n#endif' \
  source/source/common/unicode/uconfig.h
cmake -G Ninja -S . -B build -DCMAKE_TOOLCHAIN_FILE="$toolchain" -DCMAKE_BUILD_TYPE=Release \
  -DCMAKE_INSTALL_PREFIX="$prefix"
cmake --build build -j "$jobs"
cmake --install build
mkdir "$prefix/licences"
cp source/LICENSE "$prefix/licences/icu"
