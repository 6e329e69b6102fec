#include "tests/windows/dialogs/dialog_driver.h"

#include <windows.h>

DialogDriver::Step sendSystemClose()
{
    return [](QDialog& dialog) {
        PostMessageW(reinterpret_cast<HWND>(dialog.winId()), WM_SYSCOMMAND, SC_CLOSE, 0);
    };
}

DialogDriver::Step pressAltF4()
{
    return [](QDialog& dialog) {
        SetForegroundWindow(reinterpret_cast<HWND>(dialog.winId()));
        INPUT input[4] = {};
        const WORD keys[] = {VK_MENU, VK_F4, VK_F4, VK_MENU};
        for (int index = 0; index < 4; ++index) {
            input[index].type = INPUT_KEYBOARD;
            input[index].ki.wVk = keys[index];
            input[index].ki.dwFlags = index < 2 ? 0 : KEYEVENTF_KEYUP;
        }
        QCOMPARE(SendInput(4, input, sizeof(INPUT)), 4U);
    };
}
