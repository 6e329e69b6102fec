<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>FvdOpenMsDlg</name>
    <message>
        <source>Open Microsoft Store</source>
        <translation>Microsoft Store öffnen</translation>
    </message>
    <message>
        <source>100% free, no limitations</source>
        <translation>100&#xa0;% kostenlos, ohne Einschränkungen</translation>
    </message>
    <message>
        <source>No ads, no subscriptions</source>
        <translation>Keine Werbung, keine Abonnements</translation>
    </message>
    <message>
        <source>5-star rating on the Microsoft Store</source>
        <translation>5-Sterne-Bewertung im Microsoft Store</translation>
    </message>
    <message>
        <source>Download 100% Free YouTube MP3 Music Downloader</source>
        <extracomment>&quot;YouTube MP3 Music Downloader&quot; is a description, not a name: translate it.</extracomment>
        <translation>100&#xa0;% gratis herunterladen: YouTube-MP3-Musikdownloader</translation>
    </message>
    <message>
        <source>High-quality MP3 from YouTube videos</source>
        <translation>MP3 in hoher Qualität aus YouTube-Videos</translation>
    </message>
    <message>
        <source>&lt;b&gt;100 % free app&lt;/b&gt; for saving music from YouTube in MP3, fast and simple.</source>
        <translation>&lt;b&gt;Zu 100&#xa0;% kostenlose App&lt;/b&gt;, um Musik von YouTube schnell und einfach als MP3 zu speichern.</translation>
    </message>
    <message>
        <source>Download 100% Free </source>
        <extracomment>The name of the offered application follows.</extracomment>
        <translation>100&#xa0;% gratis herunterladen: </translation>
    </message>
    <message>
        <source>Fast, simple and reliable</source>
        <translation>Schnell, einfach und zuverlässig</translation>
    </message>
    <message>
        <source> — a 100% free app from our trusted&lt;br/&gt; partners, available on the Microsoft Store.</source>
        <extracomment>The name of the offered application stands before it, in bold.</extracomment>
        <translation> – eine zu 100&#xa0;% kostenlose App unserer&lt;br/&gt; vertrauenswürdigen Partner, erhältlich im Microsoft Store.</translation>
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
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>QuestionDlg</name>
    <message>
        <source>Why are you uninstalling the app?</source>
        <translation>Warum deinstallieren Sie die App?</translation>
    </message>
    <message>
        <source>I was looking for a free program</source>
        <translation>Ich suchte ein Gratisprogramm</translation>
    </message>
    <message>
        <source>The quality is not good enough</source>
        <translation>Die Qualität ist nicht gut genug</translation>
    </message>
    <message>
        <source>Missing features</source>
        <translation>Es fehlen Funktionen</translation>
    </message>
    <message>
        <source>Uninstall %1</source>
        <translation>%1 deinstallieren</translation>
    </message>
</context>
<context>
    <name>Widget</name>
    <message>
        <source>Delete program settings, custom presets and history</source>
        <translation>Programmeinstellungen, eigene Voreinstellungen und Verlauf löschen</translation>
    </message>
    <message>
        <source>Delete settings and history</source>
        <translation>Einstellungen und Verlauf löschen</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Alle auswählen</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>Deinstallieren</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Keine auswählen</translation>
    </message>
    <message>
        <source>Uninstallation</source>
        <translation>Deinstallation</translation>
    </message>
    <message>
        <source>%1 is running.
Please click OK to close this application or click Cancel to exit.</source>
        <extracomment>%1 is an application&apos;s name. Cancel ends the removal, not the application.</extracomment>
        <translation>%1 wird gerade ausgeführt.
Klicken Sie auf „OK“, um diese Anwendung zu schließen, oder auf „Abbrechen“, um die Deinstallation abzubrechen.</translation>
    </message>
    <message>
        <source>Installed applications</source>
        <translation>Installierte Anwendungen</translation>
    </message>
</context>
</TS>
