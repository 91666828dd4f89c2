# For make-template alone, which reads the department's lists: not in the users' program.
fetch_sources libcsv 3.0.3+dfsg-6
dpkg-source -x libcsv_*.dsc source
mkdir -p "$prefix/lib" "$prefix/include"
x86_64-w64-mingw32-gcc-posix -O2 -c source/libcsv.c -o libcsv.o
x86_64-w64-mingw32-ar rcs "$prefix/lib/libcsv.a" libcsv.o
cp source/csv.h "$prefix/include"
