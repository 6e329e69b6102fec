<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en_US">
<context>
    <name>FvdOpenMsDlg</name>
    <message>
        <source>Open Microsoft Store</source>
        <translation>Открыть Microsoft Store</translation>
    </message>
    <message>
        <source>100% free, no limitations</source>
        <translation>100% бесплатно, без ограничений</translation>
    </message>
    <message>
        <source>No ads, no subscriptions</source>
        <translation>Без рекламы, без подписок</translation>
    </message>
    <message>
        <source>5-star rating on the Microsoft Store</source>
        <translation>Оценка 5 звёзд в Microsoft Store</translation>
    </message>
    <message>
        <source>Download 100% Free YouTube MP3 Music Downloader</source>
        <extracomment>&quot;YouTube MP3 Music Downloader&quot; is a description, not a name: translate it.</extracomment>
        <translation>Скачать 100% бесплатно: загрузчик музыки MP3 с&#xa0;YouTube</translation>
    </message>
    <message>
        <source>High-quality MP3 from YouTube videos</source>
        <translation>MP3 высокого качества из видео YouTube</translation>
    </message>
    <message>
        <source>&lt;b&gt;100 % free app&lt;/b&gt; for saving music from YouTube in MP3, fast and simple.</source>
        <translation>&lt;b&gt;100% бесплатное приложение&lt;/b&gt; для быстрого и простого сохранения музыки с&#xa0;YouTube в MP3.</translation>
    </message>
    <message>
        <source>Download 100% Free </source>
        <extracomment>The name of the offered application follows.</extracomment>
        <translation>Скачать 100% бесплатно: </translation>
    </message>
    <message>
        <source>Fast, simple and reliable</source>
        <translation>Быстро, просто и надёжно</translation>
    </message>
    <message>
        <source> — a 100% free app from our trusted&lt;br/&gt; partners, available on the Microsoft Store.</source>
        <extracomment>The name of the offered application stands before it, in bold.</extracomment>
        <translation> — 100% бесплатное приложение от наших&lt;br/&gt; надёжных партнёров, доступное в Microsoft Store.</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>QuestionDlg</name>
    <message>
        <source>Why are you uninstalling the app?</source>
        <translation>Почему вы удаляете приложение?</translation>
    </message>
    <message>
        <source>I was looking for a free program</source>
        <translation>Мне нужна бесплатная программа</translation>
    </message>
    <message>
        <source>The quality is not good enough</source>
        <translation>Недостаточно высокое качество</translation>
    </message>
    <message>
        <source>Missing features</source>
        <translation>Не хватает функций</translation>
    </message>
    <message>
        <source>Uninstall %1</source>
        <translation>Удаление %1</translation>
    </message>
</context>
<context>
    <name>Widget</name>
    <message>
        <source>Delete program settings, custom presets and history</source>
        <translation>Удалить настройки программы, пользовательские пресеты и историю</translation>
    </message>
    <message>
        <source>Delete settings and history</source>
        <translation>Удалить настройки и историю</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Выделить все</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Снять выделение</translation>
    </message>
    <message>
        <source>Uninstallation</source>
        <translation>Удаление</translation>
    </message>
    <message>
        <source>%1 is running.
Please click OK to close this application or click Cancel to exit.</source>
        <extracomment>%1 is an application&apos;s name. Cancel ends the removal, not the application.</extracomment>
        <translation>Программа %1 запущена.
Нажмите «ОК», чтобы закрыть эту программу, или «Отмена», чтобы прервать удаление.</translation>
    </message>
    <message>
        <source>Installed applications</source>
        <translation>Установленные приложения</translation>
    </message>
</context>
</TS>
