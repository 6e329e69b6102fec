<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>FvdOpenMsDlg</name>
    <message>
        <source>Open Microsoft Store</source>
        <translation>Ouvrir le Microsoft Store</translation>
    </message>
    <message>
        <source>100% free, no limitations</source>
        <translation>100&#xa0;% gratuit, sans limitation</translation>
    </message>
    <message>
        <source>No ads, no subscriptions</source>
        <translation>Sans publicité ni abonnement</translation>
    </message>
    <message>
        <source>5-star rating on the Microsoft Store</source>
        <translation>Noté 5 étoiles sur le Microsoft Store</translation>
    </message>
    <message>
        <source>Download 100% Free YouTube MP3 Music Downloader</source>
        <extracomment>&quot;YouTube MP3 Music Downloader&quot; is a description, not a name: translate it.</extracomment>
        <translation>Téléchargement 100&#xa0;% gratuit&#xa0;: téléchargeur de musique MP3 pour YouTube</translation>
    </message>
    <message>
        <source>High-quality MP3 from YouTube videos</source>
        <translation>MP3 de haute qualité à partir de vidéos YouTube</translation>
    </message>
    <message>
        <source>&lt;b&gt;100 % free app&lt;/b&gt; for saving music from YouTube in MP3, fast and simple.</source>
        <translation>&lt;b&gt;Application 100&#xa0;% gratuite&lt;/b&gt; pour enregistrer la musique de YouTube en MP3, vite et simplement.</translation>
    </message>
    <message>
        <source>Download 100% Free </source>
        <extracomment>The name of the offered application follows.</extracomment>
        <translation>Téléchargement 100&#xa0;% gratuit&#xa0;: </translation>
    </message>
    <message>
        <source>Fast, simple and reliable</source>
        <translation>Rapide, simple et fiable</translation>
    </message>
    <message>
        <source> — a 100% free app from our trusted&lt;br/&gt; partners, available on the Microsoft Store.</source>
        <extracomment>The name of the offered application stands before it, in bold.</extracomment>
        <translation> — une application 100&#xa0;% gratuite de nos&lt;br/&gt; partenaires de confiance, disponible sur le Microsoft Store.</translation>
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
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>QuestionDlg</name>
    <message>
        <source>Why are you uninstalling the app?</source>
        <translation>Pourquoi désinstallez-vous l’application&#xa0;?</translation>
    </message>
    <message>
        <source>I was looking for a free program</source>
        <translation>Je cherchais un logiciel gratuit</translation>
    </message>
    <message>
        <source>The quality is not good enough</source>
        <translation>La qualité n’est pas suffisante</translation>
    </message>
    <message>
        <source>Missing features</source>
        <translation>Il manque des fonctionnalités</translation>
    </message>
    <message>
        <source>Uninstall %1</source>
        <translation>Désinstaller %1</translation>
    </message>
</context>
<context>
    <name>Widget</name>
    <message>
        <source>Delete program settings, custom presets and history</source>
        <translation>Supprimer les paramètres du programme, les préréglages personnalisés et l’historique</translation>
    </message>
    <message>
        <source>Delete settings and history</source>
        <translation>Supprimer les paramètres et l’historique</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Tout cocher</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>Désinstaller</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Tout décocher</translation>
    </message>
    <message>
        <source>Uninstallation</source>
        <translation>Désinstallation</translation>
    </message>
    <message>
        <source>%1 is running.
Please click OK to close this application or click Cancel to exit.</source>
        <extracomment>%1 is an application&apos;s name. Cancel ends the removal, not the application.</extracomment>
        <translation>%1 est en cours d’exécution.
Cliquez sur OK pour fermer cette application ou sur Annuler pour interrompre la désinstallation.</translation>
    </message>
    <message>
        <source>Installed applications</source>
        <translation>Applications installées</translation>
    </message>
</context>
</TS>
