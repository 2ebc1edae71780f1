#pragma once

// The system's headers, in the order that they need.
// clang-format off
#include <windows.h>
#include <commctrl.h>
#include <commdlg.h>
#include <shellapi.h>
#include <shlobj.h>
// clang-format on

// Names of ours that the headers would replace.
#undef ShellExecute
