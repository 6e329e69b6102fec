<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL" sourcelanguage="en_US">
<context>
    <name>FvdOpenMsDlg</name>
    <message>
        <source>Open Microsoft Store</source>
        <translation>Microsoft Store openen</translation>
    </message>
    <message>
        <source>100% free, no limitations</source>
        <translation>100% gratis, zonder beperkingen</translation>
    </message>
    <message>
        <source>No ads, no subscriptions</source>
        <translation>Geen reclame, geen abonnementen</translation>
    </message>
    <message>
        <source>5-star rating on the Microsoft Store</source>
        <translation>Beoordeeld met 5 sterren in de Microsoft Store</translation>
    </message>
    <message>
        <source>Download 100% Free YouTube MP3 Music Downloader</source>
        <extracomment>&quot;YouTube MP3 Music Downloader&quot; is a description, not a name: translate it.</extracomment>
        <translation>100% gratis downloaden: YouTube-MP3-muziekdownloader</translation>
    </message>
    <message>
        <source>High-quality MP3 from YouTube videos</source>
        <translation>MP3 van hoge kwaliteit uit YouTube-video’s</translation>
    </message>
    <message>
        <source>&lt;b&gt;100 % free app&lt;/b&gt; for saving music from YouTube in MP3, fast and simple.</source>
        <translation>&lt;b&gt;100% gratis app&lt;/b&gt; om snel en eenvoudig muziek van YouTube als MP3 op te slaan.</translation>
    </message>
    <message>
        <source>Download 100% Free </source>
        <extracomment>The name of the offered application follows.</extracomment>
        <translation>100% gratis downloaden: </translation>
    </message>
    <message>
        <source>Fast, simple and reliable</source>
        <translation>Snel, eenvoudig en betrouwbaar</translation>
    </message>
    <message>
        <source> — a 100% free app from our trusted&lt;br/&gt; partners, available on the Microsoft Store.</source>
        <extracomment>The name of the offered application stands before it, in bold.</extracomment>
        <translation> — een 100% gratis app van onze vertrouwde&lt;br/&gt; partners, verkrijgbaar in de Microsoft Store.</translation>
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
        <translation>Annuleren</translation>
    </message>
</context>
<context>
    <name>QuestionDlg</name>
    <message>
        <source>Why are you uninstalling the app?</source>
        <translation>Waarom verwijdert u de app?</translation>
    </message>
    <message>
        <source>I was looking for a free program</source>
        <translation>Ik zocht een gratis programma</translation>
    </message>
    <message>
        <source>The quality is not good enough</source>
        <translation>De kwaliteit is niet goed genoeg</translation>
    </message>
    <message>
        <source>Missing features</source>
        <translation>Er ontbreken functies</translation>
    </message>
    <message>
        <source>Uninstall %1</source>
        <translation>%1 verwijderen</translation>
    </message>
</context>
<context>
    <name>Widget</name>
    <message>
        <source>Delete program settings, custom presets and history</source>
        <translation>Programma-instellingen, eigen voorinstellingen en geschiedenis verwijderen</translation>
    </message>
    <message>
        <source>Delete settings and history</source>
        <translation>Instellingen en geschiedenis verwijderen</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Alles selecteren</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Niets selecteren</translation>
    </message>
    <message>
        <source>Uninstallation</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>%1 is running.
Please click OK to close this application or click Cancel to exit.</source>
        <extracomment>%1 is an application&apos;s name. Cancel ends the removal, not the application.</extracomment>
        <translation>%1 is actief.
Klik op OK om deze toepassing te sluiten of klik op Annuleren om het verwijderen af te breken.</translation>
    </message>
    <message>
        <source>Installed applications</source>
        <translation>Geïnstalleerde toepassingen</translation>
    </message>
</context>
</TS>
