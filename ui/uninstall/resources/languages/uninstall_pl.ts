<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL" sourcelanguage="en_US">
<context>
    <name>FvdOpenMsDlg</name>
    <message>
        <source>Open Microsoft Store</source>
        <translation>Otwórz Microsoft Store</translation>
    </message>
    <message>
        <source>100% free, no limitations</source>
        <translation>W 100% za darmo, bez ograniczeń</translation>
    </message>
    <message>
        <source>No ads, no subscriptions</source>
        <translation>Bez reklam, bez subskrypcji</translation>
    </message>
    <message>
        <source>5-star rating on the Microsoft Store</source>
        <translation>5-gwiazdkowa ocena w Microsoft Store</translation>
    </message>
    <message>
        <source>Download 100% Free YouTube MP3 Music Downloader</source>
        <extracomment>&quot;YouTube MP3 Music Downloader&quot; is a description, not a name: translate it.</extracomment>
        <translation>Pobierz w 100% darmowy program do pobierania muzyki MP3 z&#xa0;YouTube</translation>
    </message>
    <message>
        <source>High-quality MP3 from YouTube videos</source>
        <translation>Wysokiej jakości pliki MP3 z filmów w YouTube</translation>
    </message>
    <message>
        <source>&lt;b&gt;100 % free app&lt;/b&gt; for saving music from YouTube in MP3, fast and simple.</source>
        <translation>&lt;b&gt;W 100% bezpłatna aplikacja&lt;/b&gt; do szybkiego i łatwego zapisywania muzyki z YouTube w formacie MP3.</translation>
    </message>
    <message>
        <source>Download 100% Free </source>
        <extracomment>The name of the offered application follows.</extracomment>
        <translation>Pobierz w 100% darmowy </translation>
    </message>
    <message>
        <source>Fast, simple and reliable</source>
        <translation>Szybko, prosto i niezawodnie</translation>
    </message>
    <message>
        <source> — a 100% free app from our trusted&lt;br/&gt; partners, available on the Microsoft Store.</source>
        <extracomment>The name of the offered application stands before it, in bold.</extracomment>
        <translation> — w 100% bezpłatna aplikacja od naszych&lt;br/&gt; zaufanych partnerów, dostępna w Microsoft Store.</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
</context>
<context>
    <name>QuestionDlg</name>
    <message>
        <source>Why are you uninstalling the app?</source>
        <translation>Dlaczego odinstalowujesz aplikację?</translation>
    </message>
    <message>
        <source>I was looking for a free program</source>
        <translation>Szukam bezpłatnego programu</translation>
    </message>
    <message>
        <source>The quality is not good enough</source>
        <translation>Niewystarczająca jakość</translation>
    </message>
    <message>
        <source>Missing features</source>
        <translation>Brakuje funkcji</translation>
    </message>
    <message>
        <source>Uninstall %1</source>
        <translation>Odinstaluj %1</translation>
    </message>
</context>
<context>
    <name>Widget</name>
    <message>
        <source>Delete program settings, custom presets and history</source>
        <translation>Usuń ustawienia programu, niestandardowe ustawienia wstępne i historię</translation>
    </message>
    <message>
        <source>Delete settings and history</source>
        <translation>Usuń ustawienia i historię</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Zaznacz wszystko</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>Odinstaluj</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Odznacz wszystko</translation>
    </message>
    <message>
        <source>Uninstallation</source>
        <translation>Odinstalowywanie</translation>
    </message>
    <message>
        <source>%1 is running.
Please click OK to close this application or click Cancel to exit.</source>
        <extracomment>%1 is an application&apos;s name. Cancel ends the removal, not the application.</extracomment>
        <translation>Program %1 jest uruchomiony.
Kliknij przycisk OK, aby zamknąć ten program, lub przycisk Anuluj, aby przerwać odinstalowywanie.</translation>
    </message>
    <message>
        <source>Installed applications</source>
        <translation>Zainstalowane aplikacje</translation>
    </message>
</context>
</TS>
