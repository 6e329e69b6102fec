<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="el_GR" sourcelanguage="en_US">
<context>
    <name>FvdOpenMsDlg</name>
    <message>
        <source>Open Microsoft Store</source>
        <translation>Άνοιγμα του Microsoft Store</translation>
    </message>
    <message>
        <source>100% free, no limitations</source>
        <translation>100% δωρεάν, χωρίς περιορισμούς</translation>
    </message>
    <message>
        <source>No ads, no subscriptions</source>
        <translation>Χωρίς διαφημίσεις, χωρίς συνδρομές</translation>
    </message>
    <message>
        <source>5-star rating on the Microsoft Store</source>
        <translation>Βαθμολογία 5 αστέρων στο Microsoft Store</translation>
    </message>
    <message>
        <source>Download 100% Free YouTube MP3 Music Downloader</source>
        <extracomment>&quot;YouTube MP3 Music Downloader&quot; is a description, not a name: translate it.</extracomment>
        <translation>Κατεβάστε 100% δωρεάν το πρόγραμμα λήψης μουσικής MP3 από το YouTube</translation>
    </message>
    <message>
        <source>High-quality MP3 from YouTube videos</source>
        <translation>MP3 υψηλής ποιότητας από βίντεο του YouTube</translation>
    </message>
    <message>
        <source>&lt;b&gt;100 % free app&lt;/b&gt; for saving music from YouTube in MP3, fast and simple.</source>
        <translation>&lt;b&gt;100% δωρεάν εφαρμογή&lt;/b&gt; για γρήγορη και απλή αποθήκευση μουσικής από το YouTube σε MP3.</translation>
    </message>
    <message>
        <source>Download 100% Free </source>
        <extracomment>The name of the offered application follows.</extracomment>
        <translation>Κατεβάστε 100% δωρεάν το </translation>
    </message>
    <message>
        <source>Fast, simple and reliable</source>
        <translation>Γρήγορο, απλό και αξιόπιστο</translation>
    </message>
    <message>
        <source> — a 100% free app from our trusted&lt;br/&gt; partners, available on the Microsoft Store.</source>
        <extracomment>The name of the offered application stands before it, in bold.</extracomment>
        <translation> — μια 100% δωρεάν εφαρμογή αξιόπιστων&lt;br/&gt; συνεργατών μας, διαθέσιμη στο Microsoft Store.</translation>
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
        <translation>Άκυρο</translation>
    </message>
</context>
<context>
    <name>QuestionDlg</name>
    <message>
        <source>Why are you uninstalling the app?</source>
        <translation>Γιατί απεγκαθιστάτε την εφαρμογή;</translation>
    </message>
    <message>
        <source>I was looking for a free program</source>
        <translation>Έψαχνα ένα δωρεάν πρόγραμμα</translation>
    </message>
    <message>
        <source>The quality is not good enough</source>
        <translation>Η ποιότητα δεν είναι αρκετά καλή</translation>
    </message>
    <message>
        <source>Missing features</source>
        <translation>Λείπουν λειτουργίες</translation>
    </message>
    <message>
        <source>Uninstall %1</source>
        <translation>Απεγκατάσταση %1</translation>
    </message>
</context>
<context>
    <name>Widget</name>
    <message>
        <source>Delete program settings, custom presets and history</source>
        <translation>Διαγραφή ρυθμίσεων προγράμματος, προσαρμοσμένων προρρυθμίσεων και ιστορικού</translation>
    </message>
    <message>
        <source>Delete settings and history</source>
        <translation>Διαγραφή ρυθμίσεων και ιστορικού</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Επιλογή όλων</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>Απεγκατάσταση</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Καμία επιλογή</translation>
    </message>
    <message>
        <source>Uninstallation</source>
        <translation>Απεγκατάσταση</translation>
    </message>
    <message>
        <source>%1 is running.
Please click OK to close this application or click Cancel to exit.</source>
        <extracomment>%1 is an application&apos;s name. Cancel ends the removal, not the application.</extracomment>
        <translation>Η εφαρμογή %1 εκτελείται.
Κάντε κλικ στο «OK» για να την κλείσετε ή στο «Άκυρο» για να διακόψετε την απεγκατάσταση.</translation>
    </message>
    <message>
        <source>Installed applications</source>
        <translation>Εγκατεστημένες εφαρμογές</translation>
    </message>
</context>
</TS>
