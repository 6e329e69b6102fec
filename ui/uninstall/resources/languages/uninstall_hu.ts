<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hu_HU" sourcelanguage="en_US">
<context>
    <name>FvdOpenMsDlg</name>
    <message>
        <source>Open Microsoft Store</source>
        <translation>A Microsoft Store megnyitása</translation>
    </message>
    <message>
        <source>100% free, no limitations</source>
        <translation>100%-ban ingyenes, korlátozások nélkül</translation>
    </message>
    <message>
        <source>No ads, no subscriptions</source>
        <translation>Nincs reklám, nincs előfizetés</translation>
    </message>
    <message>
        <source>5-star rating on the Microsoft Store</source>
        <translation>5 csillagos értékelés a Microsoft Store-ban</translation>
    </message>
    <message>
        <source>Download 100% Free YouTube MP3 Music Downloader</source>
        <extracomment>&quot;YouTube MP3 Music Downloader&quot; is a description, not a name: translate it.</extracomment>
        <translation>100%-ban ingyenes letöltés: MP3-zeneletöltő a YouTube-hoz</translation>
    </message>
    <message>
        <source>High-quality MP3 from YouTube videos</source>
        <translation>Kiváló minőségű MP3 YouTube-videókból</translation>
    </message>
    <message>
        <source>&lt;b&gt;100 % free app&lt;/b&gt; for saving music from YouTube in MP3, fast and simple.</source>
        <translation>&lt;b&gt;100%-ban ingyenes alkalmazás&lt;/b&gt;, amellyel gyorsan és egyszerűen menthet zenét a YouTube-ról MP3-ba.</translation>
    </message>
    <message>
        <source>Download 100% Free </source>
        <extracomment>The name of the offered application follows.</extracomment>
        <translation>100%-ban ingyenes letöltés: </translation>
    </message>
    <message>
        <source>Fast, simple and reliable</source>
        <translation>Gyors, egyszerű és megbízható</translation>
    </message>
    <message>
        <source> — a 100% free app from our trusted&lt;br/&gt; partners, available on the Microsoft Store.</source>
        <extracomment>The name of the offered application stands before it, in bold.</extracomment>
        <translation> – 100%-ban ingyenes alkalmazás megbízható&lt;br/&gt; partnereinktől a Microsoft Store-ban.</translation>
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
        <translation>Mégse</translation>
    </message>
</context>
<context>
    <name>QuestionDlg</name>
    <message>
        <source>Why are you uninstalling the app?</source>
        <translation>Miért távolítja el az alkalmazást?</translation>
    </message>
    <message>
        <source>I was looking for a free program</source>
        <translation>Ingyenes programot kerestem</translation>
    </message>
    <message>
        <source>The quality is not good enough</source>
        <translation>Nem elég jó a minőség</translation>
    </message>
    <message>
        <source>Missing features</source>
        <translation>Hiányzó funkciók</translation>
    </message>
    <message>
        <source>Uninstall %1</source>
        <translation>%1 eltávolítása</translation>
    </message>
</context>
<context>
    <name>Widget</name>
    <message>
        <source>Delete program settings, custom presets and history</source>
        <translation>A programbeállítások, az egyéni beállításkészletek és az előzmények törlése</translation>
    </message>
    <message>
        <source>Delete settings and history</source>
        <translation>Beállítások és előzmények törlése</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Összes kijelölése</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>Eltávolítás</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Kijelölés feloldása</translation>
    </message>
    <message>
        <source>Uninstallation</source>
        <translation>Eltávolítás</translation>
    </message>
    <message>
        <source>%1 is running.
Please click OK to close this application or click Cancel to exit.</source>
        <extracomment>%1 is an application&apos;s name. Cancel ends the removal, not the application.</extracomment>
        <translation>A(z) %1 fut.
Kattintson az OK gombra az alkalmazás bezárásához, vagy a Mégse gombra az eltávolítás megszakításához.</translation>
    </message>
    <message>
        <source>Installed applications</source>
        <translation>Telepített alkalmazások</translation>
    </message>
</context>
</TS>
