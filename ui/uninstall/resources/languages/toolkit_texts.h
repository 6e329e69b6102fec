// Read by lupdate only, never compiled. The toolkit comes without translations of its own, so the
// buttons of its message box are translated here, in the context under which it looks them up.
QT_TRANSLATE_NOOP("QPlatformTheme", "OK")
QT_TRANSLATE_NOOP("QPlatformTheme", "Cancel")
