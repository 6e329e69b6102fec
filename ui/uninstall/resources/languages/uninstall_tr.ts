<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr_TR" sourcelanguage="en_US">
<context>
    <name>FvdOpenMsDlg</name>
    <message>
        <source>Open Microsoft Store</source>
        <translation>Microsoft Store’u aç</translation>
    </message>
    <message>
        <source>100% free, no limitations</source>
        <translation>%100 ücretsiz, sınırlama yok</translation>
    </message>
    <message>
        <source>No ads, no subscriptions</source>
        <translation>Reklam yok, abonelik yok</translation>
    </message>
    <message>
        <source>5-star rating on the Microsoft Store</source>
        <translation>Microsoft Store’da 5 yıldızlı değerlendirme</translation>
    </message>
    <message>
        <source>Download 100% Free YouTube MP3 Music Downloader</source>
        <extracomment>&quot;YouTube MP3 Music Downloader&quot; is a description, not a name: translate it.</extracomment>
        <translation>%100 ücretsiz indirin: YouTube MP3 müzik indirici</translation>
    </message>
    <message>
        <source>High-quality MP3 from YouTube videos</source>
        <translation>YouTube videolarından yüksek kaliteli MP3</translation>
    </message>
    <message>
        <source>&lt;b&gt;100 % free app&lt;/b&gt; for saving music from YouTube in MP3, fast and simple.</source>
        <translation>&lt;b&gt;%100 ücretsiz uygulama&lt;/b&gt;: YouTube müziklerini MP3 olarak hızlı ve kolayca kaydedin.</translation>
    </message>
    <message>
        <source>Download 100% Free </source>
        <extracomment>The name of the offered application follows.</extracomment>
        <translation>%100 ücretsiz indirin: </translation>
    </message>
    <message>
        <source>Fast, simple and reliable</source>
        <translation>Hızlı, basit ve güvenilir</translation>
    </message>
    <message>
        <source> — a 100% free app from our trusted&lt;br/&gt; partners, available on the Microsoft Store.</source>
        <extracomment>The name of the offered application stands before it, in bold.</extracomment>
        <translation> — güvenilir iş ortaklarımızdan %100&lt;br/&gt; ücretsiz uygulama; Microsoft Store’da.</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
</context>
<context>
    <name>QuestionDlg</name>
    <message>
        <source>Why are you uninstalling the app?</source>
        <translation>Uygulamayı neden kaldırıyorsunuz?</translation>
    </message>
    <message>
        <source>I was looking for a free program</source>
        <translation>Ücretsiz bir program arıyordum</translation>
    </message>
    <message>
        <source>The quality is not good enough</source>
        <translation>Kalitesi yeterince iyi değil</translation>
    </message>
    <message>
        <source>Missing features</source>
        <translation>Eksik özellikler</translation>
    </message>
    <message>
        <source>Uninstall %1</source>
        <translation>%1 uygulamasını kaldır</translation>
    </message>
</context>
<context>
    <name>Widget</name>
    <message>
        <source>Delete program settings, custom presets and history</source>
        <translation>Program ayarlarını, özel ön ayarları ve geçmişi sil</translation>
    </message>
    <message>
        <source>Delete settings and history</source>
        <translation>Ayarları ve geçmişi sil</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Tümünü seç</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>Kaldır</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Hiçbirini seçme</translation>
    </message>
    <message>
        <source>Uninstallation</source>
        <translation>Kaldırma</translation>
    </message>
    <message>
        <source>%1 is running.
Please click OK to close this application or click Cancel to exit.</source>
        <extracomment>%1 is an application&apos;s name. Cancel ends the removal, not the application.</extracomment>
        <translation>%1 çalışıyor.
Bu uygulamayı kapatmak için Tamam’ı, kaldırma işlemini durdurmak için İptal’i tıklatın.</translation>
    </message>
    <message>
        <source>Installed applications</source>
        <translation>Yüklü uygulamalar</translation>
    </message>
</context>
</TS>
