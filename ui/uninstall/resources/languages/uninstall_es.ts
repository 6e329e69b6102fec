<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_US">
<context>
    <name>FvdOpenMsDlg</name>
    <message>
        <source>Open Microsoft Store</source>
        <translation>Abrir Microsoft Store</translation>
    </message>
    <message>
        <source>100% free, no limitations</source>
        <translation>100&#xa0;% gratis, sin limitaciones</translation>
    </message>
    <message>
        <source>No ads, no subscriptions</source>
        <translation>Sin anuncios ni suscripciones</translation>
    </message>
    <message>
        <source>5-star rating on the Microsoft Store</source>
        <translation>Valoración de 5 estrellas en Microsoft Store</translation>
    </message>
    <message>
        <source>Download 100% Free YouTube MP3 Music Downloader</source>
        <extracomment>&quot;YouTube MP3 Music Downloader&quot; is a description, not a name: translate it.</extracomment>
        <translation>Descargue 100&#xa0;% gratis el descargador de música MP3 de YouTube</translation>
    </message>
    <message>
        <source>High-quality MP3 from YouTube videos</source>
        <translation>MP3 de alta calidad a partir de vídeos de YouTube</translation>
    </message>
    <message>
        <source>&lt;b&gt;100 % free app&lt;/b&gt; for saving music from YouTube in MP3, fast and simple.</source>
        <translation>&lt;b&gt;Aplicación 100&#xa0;% gratuita&lt;/b&gt; para guardar música de YouTube en MP3 de forma rápida y sencilla.</translation>
    </message>
    <message>
        <source>Download 100% Free </source>
        <extracomment>The name of the offered application follows.</extracomment>
        <translation>Descargue 100&#xa0;% gratis </translation>
    </message>
    <message>
        <source>Fast, simple and reliable</source>
        <translation>Rápido, sencillo y fiable</translation>
    </message>
    <message>
        <source> — a 100% free app from our trusted&lt;br/&gt; partners, available on the Microsoft Store.</source>
        <extracomment>The name of the offered application stands before it, in bold.</extracomment>
        <translation> — una aplicación 100&#xa0;% gratuita de nuestros&lt;br/&gt; socios de confianza, disponible en Microsoft Store.</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
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
        <translation>¿Por qué desinstala la aplicación?</translation>
    </message>
    <message>
        <source>I was looking for a free program</source>
        <translation>Buscaba un programa gratuito</translation>
    </message>
    <message>
        <source>The quality is not good enough</source>
        <translation>La calidad no es suficiente</translation>
    </message>
    <message>
        <source>Missing features</source>
        <translation>Faltan funciones</translation>
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
        <translation>Eliminar la configuración del programa, los ajustes preestablecidos propios y el historial</translation>
    </message>
    <message>
        <source>Delete settings and history</source>
        <translation>Eliminar configuración e historial</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>Desinstalar</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Anular selección</translation>
    </message>
    <message>
        <source>Uninstallation</source>
        <translation>Desinstalación</translation>
    </message>
    <message>
        <source>%1 is running.
Please click OK to close this application or click Cancel to exit.</source>
        <extracomment>%1 is an application&apos;s name. Cancel ends the removal, not the application.</extracomment>
        <translation>%1 se está ejecutando.
Haga clic en Aceptar para cerrar esta aplicación o en Cancelar para interrumpir la desinstalación.</translation>
    </message>
    <message>
        <source>Installed applications</source>
        <translation>Aplicaciones instaladas</translation>
    </message>
</context>
</TS>
