// The system's headers, which depend on their order.
#pragma once

#include <windows.h>
// behind <windows.h>
#include <commctrl.h>
#include <objbase.h>
#include <ocidl.h>
#include <oleauto.h>
#include <olectl.h>
#include <sddl.h>
#include <shellapi.h>
#include <uxtheme.h>
#include <vssym32.h>
#include <windowsx.h>
