<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en_US">
<context>
    <name>FvdOpenMsDlg</name>
    <message>
        <source>Open Microsoft Store</source>
        <translation>Apri Microsoft Store</translation>
    </message>
    <message>
        <source>100% free, no limitations</source>
        <translation>100% gratis, senza limitazioni</translation>
    </message>
    <message>
        <source>No ads, no subscriptions</source>
        <translation>Niente pubblicità, nessun abbonamento</translation>
    </message>
    <message>
        <source>5-star rating on the Microsoft Store</source>
        <translation>Valutazione a 5 stelle nel Microsoft Store</translation>
    </message>
    <message>
        <source>Download 100% Free YouTube MP3 Music Downloader</source>
        <extracomment>&quot;YouTube MP3 Music Downloader&quot; is a description, not a name: translate it.</extracomment>
        <translation>Scarica 100% gratis il downloader di musica MP3 da YouTube</translation>
    </message>
    <message>
        <source>High-quality MP3 from YouTube videos</source>
        <translation>MP3 di alta qualità dai video di YouTube</translation>
    </message>
    <message>
        <source>&lt;b&gt;100 % free app&lt;/b&gt; for saving music from YouTube in MP3, fast and simple.</source>
        <translation>&lt;b&gt;App 100% gratuita&lt;/b&gt; per salvare la musica da YouTube in MP3, in modo rapido e semplice.</translation>
    </message>
    <message>
        <source>Download 100% Free </source>
        <extracomment>The name of the offered application follows.</extracomment>
        <translation>Scarica 100% gratis </translation>
    </message>
    <message>
        <source>Fast, simple and reliable</source>
        <translation>Veloce, semplice e affidabile</translation>
    </message>
    <message>
        <source> — a 100% free app from our trusted&lt;br/&gt; partners, available on the Microsoft Store.</source>
        <extracomment>The name of the offered application stands before it, in bold.</extracomment>
        <translation> — un’app 100% gratuita dei nostri partner&lt;br/&gt; di fiducia, disponibile nel Microsoft Store.</translation>
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
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>QuestionDlg</name>
    <message>
        <source>Why are you uninstalling the app?</source>
        <translation>Perché disinstalli l’app?</translation>
    </message>
    <message>
        <source>I was looking for a free program</source>
        <translation>Cercavo un programma gratuito</translation>
    </message>
    <message>
        <source>The quality is not good enough</source>
        <translation>La qualità non è sufficiente</translation>
    </message>
    <message>
        <source>Missing features</source>
        <translation>Mancano alcune funzioni</translation>
    </message>
    <message>
        <source>Uninstall %1</source>
        <translation>Disinstalla %1</translation>
    </message>
</context>
<context>
    <name>Widget</name>
    <message>
        <source>Delete program settings, custom presets and history</source>
        <translation>Elimina le impostazioni del programma, i preset personalizzati e la cronologia</translation>
    </message>
    <message>
        <source>Delete settings and history</source>
        <translation>Elimina impostazioni e cronologia</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Seleziona tutto</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>Disinstalla</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Deseleziona tutto</translation>
    </message>
    <message>
        <source>Uninstallation</source>
        <translation>Disinstallazione</translation>
    </message>
    <message>
        <source>%1 is running.
Please click OK to close this application or click Cancel to exit.</source>
        <extracomment>%1 is an application&apos;s name. Cancel ends the removal, not the application.</extracomment>
        <translation>%1 è in esecuzione.
Fai clic su OK per chiudere l’applicazione o su Annulla per interrompere la disinstallazione.</translation>
    </message>
    <message>
        <source>Installed applications</source>
        <translation>Applicazioni installate</translation>
    </message>
</context>
</TS>
