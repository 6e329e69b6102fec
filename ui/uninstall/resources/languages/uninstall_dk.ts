<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="da_DK" sourcelanguage="en_US">
<context>
    <name>FvdOpenMsDlg</name>
    <message>
        <source>Open Microsoft Store</source>
        <translation>Åbn Microsoft Store</translation>
    </message>
    <message>
        <source>100% free, no limitations</source>
        <translation>100&#xa0;% gratis, ingen begrænsninger</translation>
    </message>
    <message>
        <source>No ads, no subscriptions</source>
        <translation>Ingen reklamer, ingen abonnementer</translation>
    </message>
    <message>
        <source>5-star rating on the Microsoft Store</source>
        <translation>5-stjernet bedømmelse i Microsoft Store</translation>
    </message>
    <message>
        <source>Download 100% Free YouTube MP3 Music Downloader</source>
        <extracomment>&quot;YouTube MP3 Music Downloader&quot; is a description, not a name: translate it.</extracomment>
        <translation>100&#xa0;% gratis download: MP3-musikdownloader til YouTube</translation>
    </message>
    <message>
        <source>High-quality MP3 from YouTube videos</source>
        <translation>MP3 i høj kvalitet fra YouTube-videoer</translation>
    </message>
    <message>
        <source>&lt;b&gt;100 % free app&lt;/b&gt; for saving music from YouTube in MP3, fast and simple.</source>
        <translation>&lt;b&gt;100&#xa0;% gratis app&lt;/b&gt; til at gemme musik fra YouTube som MP3, hurtigt og enkelt.</translation>
    </message>
    <message>
        <source>Download 100% Free </source>
        <extracomment>The name of the offered application follows.</extracomment>
        <translation>100&#xa0;% gratis download: </translation>
    </message>
    <message>
        <source>Fast, simple and reliable</source>
        <translation>Hurtig, enkel og pålidelig</translation>
    </message>
    <message>
        <source> — a 100% free app from our trusted&lt;br/&gt; partners, available on the Microsoft Store.</source>
        <extracomment>The name of the offered application stands before it, in bold.</extracomment>
        <translation> – en 100&#xa0;% gratis app fra vores betroede&lt;br/&gt; partnere, tilgængelig i Microsoft Store.</translation>
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
        <translation>Annuller</translation>
    </message>
</context>
<context>
    <name>QuestionDlg</name>
    <message>
        <source>Why are you uninstalling the app?</source>
        <translation>Hvorfor afinstallerer du appen?</translation>
    </message>
    <message>
        <source>I was looking for a free program</source>
        <translation>Jeg ledte efter et gratis program</translation>
    </message>
    <message>
        <source>The quality is not good enough</source>
        <translation>Kvaliteten er ikke god nok</translation>
    </message>
    <message>
        <source>Missing features</source>
        <translation>Der mangler funktioner</translation>
    </message>
    <message>
        <source>Uninstall %1</source>
        <translation>Afinstaller %1</translation>
    </message>
</context>
<context>
    <name>Widget</name>
    <message>
        <source>Delete program settings, custom presets and history</source>
        <translation>Slet programindstillinger, brugerdefinerede forudindstillinger og historik</translation>
    </message>
    <message>
        <source>Delete settings and history</source>
        <translation>Slet indstillinger og historik</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Vælg alle</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>Afinstaller</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Vælg ingen</translation>
    </message>
    <message>
        <source>Uninstallation</source>
        <translation>Afinstallation</translation>
    </message>
    <message>
        <source>%1 is running.
Please click OK to close this application or click Cancel to exit.</source>
        <extracomment>%1 is an application&apos;s name. Cancel ends the removal, not the application.</extracomment>
        <translation>%1 kører.
Klik på OK for at lukke programmet, eller klik på Annuller for at afbryde afinstallationen.</translation>
    </message>
    <message>
        <source>Installed applications</source>
        <translation>Installerede programmer</translation>
    </message>
</context>
</TS>
