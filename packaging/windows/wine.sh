# A Windows to try programs on: Wine with a disk of its own in build/windows/wine, and a screen that
# nobody sees. Sourced.

export WINEPREFIX=$PWD/build/windows/wine WINEARCH=win64 WINEDEBUG=-all LC_ALL=C.UTF-8
export WINEDLLOVERRIDES="mscoree,mshtml,winemenubuilder.exe="

screen_said=$(mktemp)
Xvfb -displayfd 3 -noreset -nolisten tcp -screen 0 1366x768x24 3> "$screen_said" 2> /dev/null &
wine_screen=$!
trap 'wineserver -k 2> /dev/null || true; kill $wine_screen 2> /dev/null || true; rm -f "$screen_said"' EXIT
until [ -s "$screen_said" ]; do kill -0 $wine_screen; sleep 0.1; done
DISPLAY=:$(cat "$screen_said")
export DISPLAY

if [ ! -f "$WINEPREFIX/ready" ]; then
  rm -rf "$WINEPREFIX"
  mkdir -p "$WINEPREFIX"
  wineboot --init > /dev/null 2>&1
  winecfg -v win10 > /dev/null 2>&1
  # Whose own documents and desktop nobody changes.
  find "$WINEPREFIX/drive_c/users" -type l -exec rm {} \; -exec mkdir {} \;
  # The texts of windows in a font of about the widths and of the size (12 pixels) that Windows has.
  name=$(printf %s 'Open Sans' | iconv -t UTF-16LE | od -An -v -tx1 | tr -d ' \n')
  wine reg add 'HKCU\Control Panel\Desktop\WindowMetrics' /f /v MessageFont /t REG_BINARY \
    /d "f4ffffff$(printf %024d 0)90010000$(printf %016d 0)$name$(printf %0$((128 - ${#name}))d 0)" \
    > /dev/null
  # A program that crashes shall end, and not wait for an answer.
  wine reg add 'HKCU\Software\Wine\WineDbg' /f /v ShowCrashDialog /t REG_DWORD /d 0 > /dev/null
  wineserver --wait
  touch "$WINEPREFIX/ready"
fi
