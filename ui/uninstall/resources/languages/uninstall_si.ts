<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sl_SI" sourcelanguage="en_US">
<context>
    <name>FvdOpenMsDlg</name>
    <message>
        <source>Open Microsoft Store</source>
        <translation>Odpri trgovino Microsoft Store</translation>
    </message>
    <message>
        <source>100% free, no limitations</source>
        <translation>100&#xa0;% brezplačno, brez omejitev</translation>
    </message>
    <message>
        <source>No ads, no subscriptions</source>
        <translation>Brez oglasov, brez naročnin</translation>
    </message>
    <message>
        <source>5-star rating on the Microsoft Store</source>
        <translation>Ocena 5 zvezdic v trgovini Microsoft Store</translation>
    </message>
    <message>
        <source>Download 100% Free YouTube MP3 Music Downloader</source>
        <extracomment>&quot;YouTube MP3 Music Downloader&quot; is a description, not a name: translate it.</extracomment>
        <translation>Prenesite 100&#xa0;% brezplačen program za prenos glasbe MP3 z&#xa0;YouTuba</translation>
    </message>
    <message>
        <source>High-quality MP3 from YouTube videos</source>
        <translation>Visokokakovosten MP3 iz videoposnetkov YouTube</translation>
    </message>
    <message>
        <source>&lt;b&gt;100 % free app&lt;/b&gt; for saving music from YouTube in MP3, fast and simple.</source>
        <translation>&lt;b&gt;100&#xa0;% brezplačna aplikacija&lt;/b&gt; za hitro in preprosto shranjevanje glasbe z&#xa0;YouTuba v MP3.</translation>
    </message>
    <message>
        <source>Download 100% Free </source>
        <extracomment>The name of the offered application follows.</extracomment>
        <translation>Prenesite 100&#xa0;% brezplačen </translation>
    </message>
    <message>
        <source>Fast, simple and reliable</source>
        <translation>Hitro, preprosto in zanesljivo</translation>
    </message>
    <message>
        <source> — a 100% free app from our trusted&lt;br/&gt; partners, available on the Microsoft Store.</source>
        <extracomment>The name of the offered application stands before it, in bold.</extracomment>
        <translation> – 100&#xa0;% brezplačna aplikacija naših zaupanja&lt;br/&gt; vrednih partnerjev, na voljo v trgovini Microsoft Store.</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>V redu</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Prekliči</translation>
    </message>
</context>
<context>
    <name>QuestionDlg</name>
    <message>
        <source>Why are you uninstalling the app?</source>
        <translation>Zakaj odstranjujete aplikacijo?</translation>
    </message>
    <message>
        <source>I was looking for a free program</source>
        <translation>Iščem brezplačen program</translation>
    </message>
    <message>
        <source>The quality is not good enough</source>
        <translation>Kakovost ni dovolj dobra</translation>
    </message>
    <message>
        <source>Missing features</source>
        <translation>Manjkajo funkcije</translation>
    </message>
    <message>
        <source>Uninstall %1</source>
        <translation>Odstrani %1</translation>
    </message>
</context>
<context>
    <name>Widget</name>
    <message>
        <source>Delete program settings, custom presets and history</source>
        <translation>Izbriši nastavitve programa, prednastavitve po meri in zgodovino</translation>
    </message>
    <message>
        <source>Delete settings and history</source>
        <translation>Izbriši nastavitve in zgodovino</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Izberi vse</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>Odstrani</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Počisti izbor</translation>
    </message>
    <message>
        <source>Uninstallation</source>
        <translation>Odstranitev</translation>
    </message>
    <message>
        <source>%1 is running.
Please click OK to close this application or click Cancel to exit.</source>
        <extracomment>%1 is an application&apos;s name. Cancel ends the removal, not the application.</extracomment>
        <translation>Program %1 se izvaja.
Kliknite »V redu«, da zaprete ta program, ali »Prekliči«, da prekinete odstranjevanje.</translation>
    </message>
    <message>
        <source>Installed applications</source>
        <translation>Nameščeni programi</translation>
    </message>
</context>
</TS>
