<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en_US">
<context>
    <name>FvdOpenMsDlg</name>
    <message>
        <source>Open Microsoft Store</source>
        <translation>開啟 Microsoft Store</translation>
    </message>
    <message>
        <source>100% free, no limitations</source>
        <translation>100% 免費，沒有任何限制</translation>
    </message>
    <message>
        <source>No ads, no subscriptions</source>
        <translation>無廣告，無須訂閱</translation>
    </message>
    <message>
        <source>5-star rating on the Microsoft Store</source>
        <translation>Microsoft Store 5 星評價</translation>
    </message>
    <message>
        <source>Download 100% Free YouTube MP3 Music Downloader</source>
        <extracomment>&quot;YouTube MP3 Music Downloader&quot; is a description, not a name: translate it.</extracomment>
        <translation>下載 100% 免費的 YouTube MP3 音樂下載工具</translation>
    </message>
    <message>
        <source>High-quality MP3 from YouTube videos</source>
        <translation>從 YouTube 影片取得高音質 MP3</translation>
    </message>
    <message>
        <source>&lt;b&gt;100 % free app&lt;/b&gt; for saving music from YouTube in MP3, fast and simple.</source>
        <translation>&lt;b&gt;100% 免費的應用程式&lt;/b&gt;，快速又輕鬆地將 YouTube 音樂儲存為 MP3。</translation>
    </message>
    <message>
        <source>Download 100% Free </source>
        <extracomment>The name of the offered application follows.</extracomment>
        <translation>下載 100% 免費的 </translation>
    </message>
    <message>
        <source>Fast, simple and reliable</source>
        <translation>快速、簡單又可靠</translation>
    </message>
    <message>
        <source> — a 100% free app from our trusted&lt;br/&gt; partners, available on the Microsoft Store.</source>
        <extracomment>The name of the offered application stands before it, in bold.</extracomment>
        <translation> ——由我們信賴的合作夥伴推出的&lt;br/&gt;100% 免費應用程式，可在 Microsoft Store 取得。</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>QuestionDlg</name>
    <message>
        <source>Why are you uninstalling the app?</source>
        <translation>您為什麼要解除安裝此應用程式？</translation>
    </message>
    <message>
        <source>I was looking for a free program</source>
        <translation>我想找免費的程式</translation>
    </message>
    <message>
        <source>The quality is not good enough</source>
        <translation>品質不夠好</translation>
    </message>
    <message>
        <source>Missing features</source>
        <translation>缺少我需要的功能</translation>
    </message>
    <message>
        <source>Uninstall %1</source>
        <translation>解除安裝 %1</translation>
    </message>
</context>
<context>
    <name>Widget</name>
    <message>
        <source>Delete program settings, custom presets and history</source>
        <translation>刪除程式設定、自訂預設集和歷程記錄</translation>
    </message>
    <message>
        <source>Delete settings and history</source>
        <translation>刪除設定和歷程記錄</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>全選</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>解除安裝</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>全部不選</translation>
    </message>
    <message>
        <source>Uninstallation</source>
        <translation>解除安裝</translation>
    </message>
    <message>
        <source>%1 is running.
Please click OK to close this application or click Cancel to exit.</source>
        <extracomment>%1 is an application&apos;s name. Cancel ends the removal, not the application.</extracomment>
        <translation>%1 正在執行。
請按一下 [確定] 關閉此應用程式，或按一下 [取消] 停止解除安裝。</translation>
    </message>
    <message>
        <source>Installed applications</source>
        <translation>已安裝的應用程式</translation>
    </message>
</context>
</TS>
