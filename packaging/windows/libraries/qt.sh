# Qt's Core, Gui, Widgets, PrintSupport and Test as DLLs, of the version of the system's Qt, whose moc
# and its like are used.
fetch_sources qt6-base 6.4.2+dfsg-10
dpkg-source -x qt6-base_*.dsc source

# DirectWrite draws the letters and is had with Direct2D alone; the platform plugin that draws all with
# Direct2D does not link with mingw-w64.
left_out="direct2d1_1
  sql network dbus xml concurrent opengl vulkan tabletevent icu glib pkg_config
  system_zlib system_png system_jpeg system_freetype system_harfbuzz system_pcre2 system_doubleconversion
  graphicsview mdiarea wizard dial lcdnumber fontcombobox fontdialog colordialog errormessage
  splashscreen columnview datawidgetmapper keysequenceedit undocommand undostack undogroup undoview
  printpreviewwidget printpreviewdialog textmarkdownwriter textodfwriter
  syntaxhighlighter movie jpeg gif ico transposeproxymodel concatenatetablesproxymodel
  jalalicalendar islamiccivilcalendar hijricalendar sharedmemory systemsemaphore"
cmake -G Ninja -S source -B build -DCMAKE_TOOLCHAIN_FILE="$toolchain" -DCMAKE_BUILD_TYPE=Release \
  -DCMAKE_INSTALL_PREFIX="$prefix" -DBUILD_SHARED_LIBS=ON -DINPUT_opengl=no \
  -DQT_BUILD_TESTS=OFF -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_BENCHMARKS=OFF \
  $(printf -- '-DFEATURE_%s=OFF ' $left_out)
cmake --build build -j "$jobs"
cmake --install build --strip
mkdir "$prefix/licences"
cp source/debian/copyright "$prefix/licences/qt6-base"
