// Read by lupdate only, never compiled. The program contains no translations of Qt's own texts, so
// the buttons of its message box are translated here, in the context in which Qt looks them up.
QT_TRANSLATE_NOOP("QPlatformTheme", "OK")
QT_TRANSLATE_NOOP("QPlatformTheme", "Cancel")
