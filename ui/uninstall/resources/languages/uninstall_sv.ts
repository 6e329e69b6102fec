<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv_SE" sourcelanguage="en_US">
<context>
    <name>FvdOpenMsDlg</name>
    <message>
        <source>Open Microsoft Store</source>
        <translation>Öppna Microsoft Store</translation>
    </message>
    <message>
        <source>100% free, no limitations</source>
        <translation>100&#xa0;% gratis, inga begränsningar</translation>
    </message>
    <message>
        <source>No ads, no subscriptions</source>
        <translation>Ingen reklam, inga abonnemang</translation>
    </message>
    <message>
        <source>5-star rating on the Microsoft Store</source>
        <translation>5-stjärnigt betyg i Microsoft Store</translation>
    </message>
    <message>
        <source>Download 100% Free YouTube MP3 Music Downloader</source>
        <extracomment>&quot;YouTube MP3 Music Downloader&quot; is a description, not a name: translate it.</extracomment>
        <translation>Ladda ner 100&#xa0;% gratis: MP3-nedladdare för YouTube-musik</translation>
    </message>
    <message>
        <source>High-quality MP3 from YouTube videos</source>
        <translation>MP3 av hög kvalitet från YouTube-videor</translation>
    </message>
    <message>
        <source>&lt;b&gt;100 % free app&lt;/b&gt; for saving music from YouTube in MP3, fast and simple.</source>
        <translation>&lt;b&gt;100&#xa0;% gratis app&lt;/b&gt; för att spara musik från YouTube som MP3, snabbt och enkelt.</translation>
    </message>
    <message>
        <source>Download 100% Free </source>
        <extracomment>The name of the offered application follows.</extracomment>
        <translation>Ladda ner 100&#xa0;% gratis: </translation>
    </message>
    <message>
        <source>Fast, simple and reliable</source>
        <translation>Snabb, enkel och pålitlig</translation>
    </message>
    <message>
        <source> — a 100% free app from our trusted&lt;br/&gt; partners, available on the Microsoft Store.</source>
        <extracomment>The name of the offered application stands before it, in bold.</extracomment>
        <translation> – en 100&#xa0;% gratis app från våra betrodda&lt;br/&gt; partner, tillgänglig i Microsoft Store.</translation>
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
        <translation>Avbryt</translation>
    </message>
</context>
<context>
    <name>QuestionDlg</name>
    <message>
        <source>Why are you uninstalling the app?</source>
        <translation>Varför avinstallerar du appen?</translation>
    </message>
    <message>
        <source>I was looking for a free program</source>
        <translation>Jag letade efter ett gratisprogram</translation>
    </message>
    <message>
        <source>The quality is not good enough</source>
        <translation>Kvaliteten är inte bra nog</translation>
    </message>
    <message>
        <source>Missing features</source>
        <translation>Funktioner saknas</translation>
    </message>
    <message>
        <source>Uninstall %1</source>
        <translation>Avinstallera %1</translation>
    </message>
</context>
<context>
    <name>Widget</name>
    <message>
        <source>Delete program settings, custom presets and history</source>
        <translation>Ta bort programinställningar, egna förinställningar och historik</translation>
    </message>
    <message>
        <source>Delete settings and history</source>
        <translation>Ta bort inställningar och historik</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Markera alla</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>Avinstallera</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Markera inga</translation>
    </message>
    <message>
        <source>Uninstallation</source>
        <translation>Avinstallation</translation>
    </message>
    <message>
        <source>%1 is running.
Please click OK to close this application or click Cancel to exit.</source>
        <extracomment>%1 is an application&apos;s name. Cancel ends the removal, not the application.</extracomment>
        <translation>%1 körs.
Klicka på OK för att stänga programmet eller på Avbryt för att avbryta avinstallationen.</translation>
    </message>
    <message>
        <source>Installed applications</source>
        <translation>Installerade program</translation>
    </message>
</context>
</TS>
