<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>FvdOpenMsDlg</name>
    <message>
        <source>Open Microsoft Store</source>
        <translation>Microsoft Store を開く</translation>
    </message>
    <message>
        <source>100% free, no limitations</source>
        <translation>100% 無料、制限なし</translation>
    </message>
    <message>
        <source>No ads, no subscriptions</source>
        <translation>広告なし、サブスクリプション不要</translation>
    </message>
    <message>
        <source>5-star rating on the Microsoft Store</source>
        <translation>Microsoft Store で 5 つ星の評価</translation>
    </message>
    <message>
        <source>Download 100% Free YouTube MP3 Music Downloader</source>
        <extracomment>&quot;YouTube MP3 Music Downloader&quot; is a description, not a name: translate it.</extracomment>
        <translation>100% 無料でダウンロード: YouTube MP3 音楽ダウンローダー</translation>
    </message>
    <message>
        <source>High-quality MP3 from YouTube videos</source>
        <translation>YouTube 動画から高音質の MP3 を作成</translation>
    </message>
    <message>
        <source>&lt;b&gt;100 % free app&lt;/b&gt; for saving music from YouTube in MP3, fast and simple.</source>
        <translation>&lt;b&gt;100% 無料のアプリ&lt;/b&gt;で YouTube の音楽をすばやく簡単に MP3 で保存。</translation>
    </message>
    <message>
        <source>Download 100% Free </source>
        <extracomment>The name of the offered application follows.</extracomment>
        <translation>100% 無料でダウンロード: </translation>
    </message>
    <message>
        <source>Fast, simple and reliable</source>
        <translation>高速・シンプル・高い信頼性</translation>
    </message>
    <message>
        <source> — a 100% free app from our trusted&lt;br/&gt; partners, available on the Microsoft Store.</source>
        <extracomment>The name of the offered application stands before it, in bold.</extracomment>
        <translation> — 信頼できるパートナーが提供する&lt;br/&gt;100% 無料のアプリです。Microsoft Store で入手できます。</translation>
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
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>QuestionDlg</name>
    <message>
        <source>Why are you uninstalling the app?</source>
        <translation>アプリをアンインストールする理由は何ですか？</translation>
    </message>
    <message>
        <source>I was looking for a free program</source>
        <translation>無料のソフトを探していた</translation>
    </message>
    <message>
        <source>The quality is not good enough</source>
        <translation>品質が十分ではない</translation>
    </message>
    <message>
        <source>Missing features</source>
        <translation>必要な機能がない</translation>
    </message>
    <message>
        <source>Uninstall %1</source>
        <translation>%1 のアンインストール</translation>
    </message>
</context>
<context>
    <name>Widget</name>
    <message>
        <source>Delete program settings, custom presets and history</source>
        <translation>プログラムの設定、カスタム プリセット、履歴を削除します</translation>
    </message>
    <message>
        <source>Delete settings and history</source>
        <translation>設定と履歴を削除する</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>すべて選択</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>アンインストール</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>選択を解除</translation>
    </message>
    <message>
        <source>Uninstallation</source>
        <translation>アンインストール</translation>
    </message>
    <message>
        <source>%1 is running.
Please click OK to close this application or click Cancel to exit.</source>
        <extracomment>%1 is an application&apos;s name. Cancel ends the removal, not the application.</extracomment>
        <translation>%1 は実行中です。
このアプリケーションを閉じるには [OK] を、アンインストールを中止するには [キャンセル] をクリックしてください。</translation>
    </message>
    <message>
        <source>Installed applications</source>
        <translation>インストール済みのアプリケーション</translation>
    </message>
</context>
</TS>
