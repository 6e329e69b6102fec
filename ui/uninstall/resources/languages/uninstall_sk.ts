<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sk_SK" sourcelanguage="en_US">
<context>
    <name>FvdOpenMsDlg</name>
    <message>
        <source>Open Microsoft Store</source>
        <translation>Otvoriť Microsoft Store</translation>
    </message>
    <message>
        <source>100% free, no limitations</source>
        <translation>100&#xa0;% zadarmo, bez obmedzení</translation>
    </message>
    <message>
        <source>No ads, no subscriptions</source>
        <translation>Bez reklám, bez predplatného</translation>
    </message>
    <message>
        <source>5-star rating on the Microsoft Store</source>
        <translation>5-hviezdičkové hodnotenie v Microsoft Store</translation>
    </message>
    <message>
        <source>Download 100% Free YouTube MP3 Music Downloader</source>
        <extracomment>&quot;YouTube MP3 Music Downloader&quot; is a description, not a name: translate it.</extracomment>
        <translation>Stiahnite si 100&#xa0;% bezplatný program na sťahovanie hudby MP3 z YouTube</translation>
    </message>
    <message>
        <source>High-quality MP3 from YouTube videos</source>
        <translation>MP3 vo vysokej kvalite z videí YouTube</translation>
    </message>
    <message>
        <source>&lt;b&gt;100 % free app&lt;/b&gt; for saving music from YouTube in MP3, fast and simple.</source>
        <translation>&lt;b&gt;100&#xa0;% bezplatná aplikácia&lt;/b&gt; na rýchle a jednoduché ukladanie hudby z YouTube do MP3.</translation>
    </message>
    <message>
        <source>Download 100% Free </source>
        <extracomment>The name of the offered application follows.</extracomment>
        <translation>Stiahnite si 100&#xa0;% bezplatný </translation>
    </message>
    <message>
        <source>Fast, simple and reliable</source>
        <translation>Rýchle, jednoduché a spoľahlivé</translation>
    </message>
    <message>
        <source> — a 100% free app from our trusted&lt;br/&gt; partners, available on the Microsoft Store.</source>
        <extracomment>The name of the offered application stands before it, in bold.</extracomment>
        <translation> – 100&#xa0;% bezplatná aplikácia od našich&lt;br/&gt; dôveryhodných partnerov, dostupná v Microsoft Store.</translation>
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
        <translation>Zrušiť</translation>
    </message>
</context>
<context>
    <name>QuestionDlg</name>
    <message>
        <source>Why are you uninstalling the app?</source>
        <translation>Prečo odinštalúvate aplikáciu?</translation>
    </message>
    <message>
        <source>I was looking for a free program</source>
        <translation>Hľadám bezplatný program</translation>
    </message>
    <message>
        <source>The quality is not good enough</source>
        <translation>Kvalita nie je dostatočná</translation>
    </message>
    <message>
        <source>Missing features</source>
        <translation>Chýbajú funkcie</translation>
    </message>
    <message>
        <source>Uninstall %1</source>
        <translation>Odinštalovať %1</translation>
    </message>
</context>
<context>
    <name>Widget</name>
    <message>
        <source>Delete program settings, custom presets and history</source>
        <translation>Odstrániť nastavenia programu, vlastné predvoľby a históriu</translation>
    </message>
    <message>
        <source>Delete settings and history</source>
        <translation>Odstrániť nastavenia a históriu</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Vybrať všetko</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>Odinštalovať</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Zrušiť výber</translation>
    </message>
    <message>
        <source>Uninstallation</source>
        <translation>Odinštalovanie</translation>
    </message>
    <message>
        <source>%1 is running.
Please click OK to close this application or click Cancel to exit.</source>
        <extracomment>%1 is an application&apos;s name. Cancel ends the removal, not the application.</extracomment>
        <translation>Aplikácia %1 je spustená.
Kliknutím na tlačidlo OK túto aplikáciu zatvoríte, kliknutím na tlačidlo Zrušiť prerušíte odinštalovanie.</translation>
    </message>
    <message>
        <source>Installed applications</source>
        <translation>Nainštalované aplikácie</translation>
    </message>
</context>
</TS>
