// The stand-in for the user's web browser: shows nothing, and notes the address that it is to open in "Browser.txt" of
// the installation in use.
#include <windows.h>

#include "host/standins/Record.h"

int WINAPI wWinMain(HINSTANCE, HINSTANCE, LPWSTR address, int) {
  return nv::host::record(L"Browser.txt", address) ? 0 : 1;
}
