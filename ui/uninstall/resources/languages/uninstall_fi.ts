<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fi_FI" sourcelanguage="en_US">
<context>
    <name>FvdOpenMsDlg</name>
    <message>
        <source>Open Microsoft Store</source>
        <translation>Avaa Microsoft Store</translation>
    </message>
    <message>
        <source>100% free, no limitations</source>
        <translation>100&#xa0;% ilmainen, ei rajoituksia</translation>
    </message>
    <message>
        <source>No ads, no subscriptions</source>
        <translation>Ei mainoksia, ei tilauksia</translation>
    </message>
    <message>
        <source>5-star rating on the Microsoft Store</source>
        <translation>5 tähden arvio Microsoft Storessa</translation>
    </message>
    <message>
        <source>Download 100% Free YouTube MP3 Music Downloader</source>
        <extracomment>&quot;YouTube MP3 Music Downloader&quot; is a description, not a name: translate it.</extracomment>
        <translation>Lataa 100&#xa0;% ilmainen YouTube-musiikin MP3-lataaja</translation>
    </message>
    <message>
        <source>High-quality MP3 from YouTube videos</source>
        <translation>Laadukkaat MP3-tiedostot YouTube-videoista</translation>
    </message>
    <message>
        <source>&lt;b&gt;100 % free app&lt;/b&gt; for saving music from YouTube in MP3, fast and simple.</source>
        <translation>&lt;b&gt;100&#xa0;% ilmainen sovellus&lt;/b&gt;, jolla tallennat musiikkia YouTubesta MP3-muotoon nopeasti ja helposti.</translation>
    </message>
    <message>
        <source>Download 100% Free </source>
        <extracomment>The name of the offered application follows.</extracomment>
        <translation>Lataa 100&#xa0;% ilmainen </translation>
    </message>
    <message>
        <source>Fast, simple and reliable</source>
        <translation>Nopea, helppo ja luotettava</translation>
    </message>
    <message>
        <source> — a 100% free app from our trusted&lt;br/&gt; partners, available on the Microsoft Store.</source>
        <extracomment>The name of the offered application stands before it, in bold.</extracomment>
        <translation> – 100&#xa0;% ilmainen sovellus luotettavilta&lt;br/&gt; kumppaneiltamme, saatavilla Microsoft Storesta.</translation>
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
        <translation>Peruuta</translation>
    </message>
</context>
<context>
    <name>QuestionDlg</name>
    <message>
        <source>Why are you uninstalling the app?</source>
        <translation>Miksi poistat sovelluksen?</translation>
    </message>
    <message>
        <source>I was looking for a free program</source>
        <translation>Etsin ilmaista ohjelmaa</translation>
    </message>
    <message>
        <source>The quality is not good enough</source>
        <translation>Laatu ei ole tarpeeksi hyvä</translation>
    </message>
    <message>
        <source>Missing features</source>
        <translation>Ominaisuuksia puuttuu</translation>
    </message>
    <message>
        <source>Uninstall %1</source>
        <translation>Poista asennus: %1</translation>
    </message>
</context>
<context>
    <name>Widget</name>
    <message>
        <source>Delete program settings, custom presets and history</source>
        <translation>Poista ohjelman asetukset, mukautetut esiasetukset ja historia</translation>
    </message>
    <message>
        <source>Delete settings and history</source>
        <translation>Poista asetukset ja historia</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Valitse kaikki</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>Poista asennus</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Tyhjennä valinta</translation>
    </message>
    <message>
        <source>Uninstallation</source>
        <translation>Asennuksen poisto</translation>
    </message>
    <message>
        <source>%1 is running.
Please click OK to close this application or click Cancel to exit.</source>
        <extracomment>%1 is an application&apos;s name. Cancel ends the removal, not the application.</extracomment>
        <translation>%1 on käynnissä.
Sulje sovellus valitsemalla OK tai keskeytä asennuksen poisto valitsemalla Peruuta.</translation>
    </message>
    <message>
        <source>Installed applications</source>
        <translation>Asennetut sovellukset</translation>
    </message>
</context>
</TS>
