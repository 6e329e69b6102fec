<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_PT" sourcelanguage="en_US">
<context>
    <name>FvdOpenMsDlg</name>
    <message>
        <source>Open Microsoft Store</source>
        <translation>Abrir a Microsoft Store</translation>
    </message>
    <message>
        <source>100% free, no limitations</source>
        <translation>100% gratuito, sem limitações</translation>
    </message>
    <message>
        <source>No ads, no subscriptions</source>
        <translation>Sem anúncios, sem subscrições</translation>
    </message>
    <message>
        <source>5-star rating on the Microsoft Store</source>
        <translation>Classificação de 5 estrelas na Microsoft Store</translation>
    </message>
    <message>
        <source>Download 100% Free YouTube MP3 Music Downloader</source>
        <extracomment>&quot;YouTube MP3 Music Downloader&quot; is a description, not a name: translate it.</extracomment>
        <translation>Download 100% gratuito: descarregador de música MP3 do YouTube</translation>
    </message>
    <message>
        <source>High-quality MP3 from YouTube videos</source>
        <translation>MP3 de alta qualidade a partir de vídeos do YouTube</translation>
    </message>
    <message>
        <source>&lt;b&gt;100 % free app&lt;/b&gt; for saving music from YouTube in MP3, fast and simple.</source>
        <translation>&lt;b&gt;Aplicação 100% gratuita&lt;/b&gt; para guardar música do YouTube em MP3, de forma rápida e simples.</translation>
    </message>
    <message>
        <source>Download 100% Free </source>
        <extracomment>The name of the offered application follows.</extracomment>
        <translation>Download 100% gratuito: </translation>
    </message>
    <message>
        <source>Fast, simple and reliable</source>
        <translation>Rápido, simples e fiável</translation>
    </message>
    <message>
        <source> — a 100% free app from our trusted&lt;br/&gt; partners, available on the Microsoft Store.</source>
        <extracomment>The name of the offered application stands before it, in bold.</extracomment>
        <translation> — uma aplicação 100% gratuita dos nossos&lt;br/&gt; parceiros de confiança, disponível na Microsoft Store.</translation>
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
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>QuestionDlg</name>
    <message>
        <source>Why are you uninstalling the app?</source>
        <translation>Porque está a desinstalar a aplicação?</translation>
    </message>
    <message>
        <source>I was looking for a free program</source>
        <translation>Estava à procura de um programa gratuito</translation>
    </message>
    <message>
        <source>The quality is not good enough</source>
        <translation>A qualidade não é suficientemente boa</translation>
    </message>
    <message>
        <source>Missing features</source>
        <translation>Faltam funcionalidades</translation>
    </message>
    <message>
        <source>Uninstall %1</source>
        <translation>Desinstalar %1</translation>
    </message>
</context>
<context>
    <name>Widget</name>
    <message>
        <source>Delete program settings, custom presets and history</source>
        <translation>Eliminar definições do programa, predefinições personalizadas e histórico</translation>
    </message>
    <message>
        <source>Delete settings and history</source>
        <translation>Eliminar definições e histórico</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Selecionar tudo</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>Desinstalar</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Desmarcar tudo</translation>
    </message>
    <message>
        <source>Uninstallation</source>
        <translation>Desinstalação</translation>
    </message>
    <message>
        <source>%1 is running.
Please click OK to close this application or click Cancel to exit.</source>
        <extracomment>%1 is an application&apos;s name. Cancel ends the removal, not the application.</extracomment>
        <translation>%1 está em execução.
Clique em OK para fechar esta aplicação ou em Cancelar para interromper a desinstalação.</translation>
    </message>
    <message>
        <source>Installed applications</source>
        <translation>Aplicações instaladas</translation>
    </message>
</context>
</TS>
