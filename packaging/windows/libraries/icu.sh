# Of its two libraries the one for single texts: capitals, normal forms and UTF-8, which need none of
# its data.
fetch_sources icu 72.1-3+deb12u1
dpkg-source -x icu_*.dsc source
cat > CMakeLists.txt << 'end'
cmake_minimum_required(VERSION 3.25)
project(icu LANGUAGES CXX)
set(CMAKE_CXX_STANDARD 17)
file(GLOB files source/source/common/*.cpp source/source/stubdata/stubdata.cpp)
add_library(icuuc STATIC ${files})
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
