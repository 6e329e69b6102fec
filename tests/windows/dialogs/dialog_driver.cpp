#include "tests/windows/dialogs/dialog_driver.h"

#include <windows.h>

DialogDriver::Step sendSystemClose()
{
    return [](QDialog& dialog) {
        PostMessageW(reinterpret_cast<HWND>(dialog.winId()), WM_SYSCOMMAND, SC_CLOSE, 0);
    };
}
